// app/batch/Italics.h
#pragma once

#include <string>
#include <string_view>

/// A composed name with its italics, which backslashes switch: by escape sequences on a terminal,
/// else between underscores. Blanks at the end of an italic run stay upright.
std::string withItalics(std::string_view marked, bool terminal);

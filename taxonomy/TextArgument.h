// taxonomy/TextArgument.h
#pragma once

#include <string_view>

/// Callers pass null for a text that they do not have.
inline std::string_view orEmpty(const char* text) { return text ? text : ""; }

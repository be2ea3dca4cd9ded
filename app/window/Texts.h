// app/window/Texts.h
#pragma once

#include <QString>

#include <string_view>

// How texts of the database appear on the screen.

/// What stands where a value is missing.
QString missingText();

/// A text of the database as people read it; the missing text when it is empty.
QString shownOrMissing(std::string_view stored);

// app/las/LasLines.h
#pragma once

#include "app/las/LasFile.h"

#include <string>
#include <string_view>
#include <vector>

// The forms of single lines. What is wrong with one is a text for people; empty: nothing.

/// Reads a line of parameters or definitions. The description begins behind the last colon.
std::string readItem(std::string_view line, LasItem* item);

/// Reads a title, "~Tops_Data | Tops_Definition".
std::string readTitle(std::string_view line, LasSection* section);

/// Splits a row of data at `delimiter`. A field that holds it stands in quotes; other quotes are
/// none of a row's. Blanks beside a comma or tab are no part of a field, and several blanks delimit
/// as one.
std::string readRow(std::string_view line, char delimiter, std::vector<std::string>* fields);

/// Why `text` is not of the declared form ("F", "F10.4", "E", "I", "S", "DD/MM/YYYY", ...), or
/// empty. A text may be missing whatever its form.
std::string formProblem(std::string_view text, std::string_view format);
/// Whether a form is one of those.
bool isKnownFormat(std::string_view format);

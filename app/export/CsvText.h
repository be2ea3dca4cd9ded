// app/export/CsvText.h
#pragma once

#include <optional>
#include <string>

/// Appends one cell of a CSV file. Nothing for none, and a pair of quotation marks for the empty
/// text, so that the two stay apart. In quotation marks stands what a reader would else part, trim
/// or take for the end of a line.
void appendCell(std::string* line, const std::optional<std::string>& text);

// app/export/CsvText.cpp
#include "app/export/CsvText.h"

void appendCell(std::string* line, const std::optional<std::string>& text)
{
    if (!text)
        return;
    const bool bare = !text->empty() && text->find_first_of("\",;\t\r\n") == std::string::npos
        && text->front() != ' ' && text->back() != ' ';
    if (bare) {
        *line += *text;
        return;
    }
    *line += '"';
    for (const char c : *text)
        line->append(c == '"' ? 2 : 1, c);
    *line += '"';
}

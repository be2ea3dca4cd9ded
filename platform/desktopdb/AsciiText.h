// platform/desktopdb/AsciiText.h
#pragma once

#include <string_view>

namespace desktopdb {

// Characters as SQL sees them: ASCII, whatever the process's locale is.

constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

constexpr bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

constexpr char upperOf(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

/// Without the white space at both ends.
constexpr std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace desktopdb

// app/batch/NumberRange.cpp
#include "app/batch/NumberRange.h"

#include <charconv>

std::optional<NumberRange> numberRange(std::string_view text)
{
    NumberRange range;
    const char* const end = text.data() + text.size();
    const auto first = std::from_chars(text.data(), end, range.from);
    if (first.ec != std::errc() || range.from < 1)
        return std::nullopt;
    range.to = range.from;
    if (first.ptr == end)
        return range;
    const auto second = std::from_chars(first.ptr + 1, end, range.to);
    const bool good = *first.ptr == '-' && second.ec == std::errc() && second.ptr == end;
    return good && range.from <= range.to ? std::optional(range) : std::nullopt;
}

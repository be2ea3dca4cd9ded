// app/batch/NumberRange.h
#pragma once

#include <optional>
#include <string_view>

/// Whole numbers from one to another, both included.
struct NumberRange {
    long from = 0;
    long to = 0;
};

/// "100-200", or "100" for that number alone; none for any other text, for numbers below 1, and
/// when the second is the smaller one.
std::optional<NumberRange> numberRange(std::string_view text);

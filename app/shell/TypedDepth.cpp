// app/shell/TypedDepth.cpp
#include "app/shell/TypedDepth.h"

#include "util/TextUtil.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

std::optional<float> typedDepth(std::string_view text)
{
    std::string number(trimmedLeft(trimmedRight(text)));
    std::replace(number.begin(), number.end(), ',', '.');
    const char* const begin = number.c_str() + (number.starts_with('+') ? 1 : 0);
    const char* const end = number.c_str() + number.size();
    float depth = 0;
    const auto [stop, failure] = std::from_chars(begin, end, depth);
    const bool isNumber = failure == std::errc() && stop == end && std::isfinite(depth);
    return isNumber ? std::optional(depth) : std::nullopt;
}

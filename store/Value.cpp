// store/Value.cpp
#include "store/Value.h"

#include "util/TextUtil.h"

#include <algorithm>

std::string storedText(std::string_view text) { return storedWhole(trimmedRight(text)); }

std::string storedWhole(std::string_view text)
{
    std::string stored(text);
    std::ranges::replace(stored, '\'', '`');
    return stored;
}

std::string shownText(std::string_view stored)
{
    std::string shown(stored);
    std::ranges::replace(shown, '`', '\'');
    return shown;
}

Value textValue(std::string_view text)
{
    std::string stored = storedText(text);
    return stored.empty() ? Value() : Value(std::move(stored));
}

Value dateValue(Date date) { return date.isValid() ? Value(date) : Value(); }

bool sameValue(ColumnType type, const Value& stored, const Value& given)
{
    const double* a = std::get_if<double>(&stored);
    const double* b = std::get_if<double>(&given);
    if (type == ColumnType::Float && a && b)
        return static_cast<float>(*a) == static_cast<float>(*b);
    return stored == given;
}

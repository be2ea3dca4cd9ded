// platform/desktopdb/LikePattern.cpp
#include "platform/desktopdb/LikePattern.h"

namespace desktopdb {

bool isAccessPattern(std::string_view pattern, Dialect dialect)
{
    if (dialect == Dialect::Auto)
        return pattern.find_first_of("*?") != pattern.npos;
    return dialect == Dialect::Access;
}

std::string accessPattern(std::string_view pattern)
{
    std::string result;
    result.reserve(pattern.size() + 4);
    for (const char c : pattern) {
        if (c == '%' || c == '_' || c == kLikeEscape)
            result += kLikeEscape;
        result += c == '*' ? '%' : c == '?' ? '_' : c;
    }
    return result;
}

std::string escapedPattern(std::string_view pattern)
{
    std::string result;
    for (const char c : pattern) {
        if (c == kLikeEscape)
            result += kLikeEscape;
        result += c;
    }
    return result;
}

} // namespace desktopdb

// app/shell/ConnectionSettings.cpp
#include "app/shell/ConnectionSettings.h"

#include "util/TextUtil.h"

#include <algorithm>
#include <string_view>

namespace {

// Behind the brace that closes the value in braces at `start`; a doubled one is part of it.
std::size_t bracesEnd(std::string_view text, std::size_t start)
{
    for (std::size_t i = start + 1; i < text.size(); ++i) {
        if (text[i] != '}')
            continue;
        if (i + 1 == text.size() || text[i + 1] != '}')
            return i + 1;
        ++i;
    }
    return text.size();
}

// Where the value that begins at `start` ends: at the next semicolon outside braces.
std::size_t valueEnd(std::string_view text, std::size_t start)
{
    start = std::min(text.find_first_not_of(" \t", start), text.size());
    if (start < text.size() && text[start] == '{')
        start = bracesEnd(text, start);
    return std::min(text.find(';', start), text.size());
}

bool isSecret(std::string_view keyword)
{
    keyword = trimmedLeft(trimmedRight(keyword));
    return compareIgnoringCase(keyword, "PWD") == 0
        || compareIgnoringCase(keyword, "Password") == 0;
}

// A value in braces may hold what else ends a value; a closing brace in it stands twice.
std::string value(const std::string& text)
{
    if (text.find_first_of(";={} ") == std::string::npos)
        return text;
    std::string braced = "{";
    for (const char c : text)
        braced.append(c == '}' ? 2 : 1, c);
    return braced + '}';
}

} // namespace

std::string embeddedConnectString(
    const std::string& driver, const std::string& file, int kind, FileAccess access)
{
    return "Driver=" + value(driver) + ";Database=" + value(file) + ";Dialect="
        + (kind == 2 ? "Oracle" : "Access") + (access == FileAccess::Create ? ";Create=1" : "");
}

std::string withoutSecrets(const std::string& connectString)
{
    const std::string_view text = connectString;
    std::string shown;
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t equals = text.find('=', at);
        if (equals == std::string_view::npos)
            break;
        const std::size_t end = valueEnd(text, equals + 1);
        const bool secret = isSecret(text.substr(at, equals - at));
        shown += secret ? std::string(text.substr(at, equals + 1 - at)) + "***"
                        : std::string(text.substr(at, end - at));
        if (end < text.size())
            shown += ';';
        at = end + 1;
    }
    return at < text.size() ? shown + std::string(text.substr(at)) : shown;
}

// platform/desktopdb/ConnectString.cpp
#include "platform/desktopdb/ConnectString.h"

#include "platform/desktopdb/AsciiText.h"
#include "platform/desktopdb/Keywords.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace desktopdb {

namespace {
struct Pair {
    std::string_view keyword;
    std::string value;
};

// Takes a value in braces off the front, in which }} stands for }.
bool takeBraced(std::string_view& text, std::string& value)
{
    for (size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '}' && (i + 1 == text.size() || text[i + 1] != '}')) {
            text.remove_prefix(i + 1);
            return true;
        }
        value += text[i];
        i += text[i] == '}';
    }
    return false;
}

bool takePair(std::string_view& text, Pair& pair, Failure& failure)
{
    const size_t equals = text.find('=');
    if (equals == text.npos) {
        failure = {"HY000", "connection string: no = behind " + std::string(text)};
        return false;
    }
    pair.keyword = trimmed(text.substr(0, equals));
    text.remove_prefix(equals + 1);
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    if (text.starts_with('{')) {
        if (!takeBraced(text, pair.value)) {
            failure = {"HY000", "connection string: a brace is not closed"};
            return false;
        }
    } else {
        const size_t end = std::min(text.find(';'), text.size());
        pair.value = trimmed(text.substr(0, end));
        text.remove_prefix(end);
    }
    text.remove_prefix(std::min(text.find_first_not_of(" \t;"), text.size()));
    return true;
}

bool readPairs(std::string_view text, std::vector<Pair>& pairs, Failure& failure)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t;"), text.size()));
    while (!text.empty()) {
        Pair pair;
        if (!takePair(text, pair, failure))
            return false;
        const bool known = std::ranges::any_of(
            pairs, [&](const Pair& p) { return sameWord(p.keyword, pair.keyword); });
        if (!known)
            pairs.push_back(std::move(pair));
    }
    return true;
}

bool readFlag(const std::string& value, bool& flag)
{
    flag = value == "1" || sameWord(value, "yes") || sameWord(value, "true");
    return flag || value.empty() || value == "0" || sameWord(value, "no")
        || sameWord(value, "false");
}

bool readDialect(const std::string& value, Dialect& dialect)
{
    if (sameWord(value, "Access"))
        dialect = Dialect::Access;
    else if (sameWord(value, "Oracle"))
        dialect = Dialect::Oracle;
    return dialect != Dialect::Auto || value.empty() || sameWord(value, "Auto");
}

bool readTimeout(const std::string& value, int& milliseconds)
{
    const char* end = value.data() + value.size();
    return std::from_chars(value.data(), end, milliseconds).ptr == end && !value.empty()
        && milliseconds >= 0;
}

bool apply(const Pair& pair, ConnectSettings& settings)
{
    if (sameWord(pair.keyword, "Database") || sameWord(pair.keyword, "DBQ"))
        settings.open.file = pair.value;
    else if (sameWord(pair.keyword, "Create"))
        return readFlag(pair.value, settings.open.create);
    else if (sameWord(pair.keyword, "Dialect"))
        return readDialect(pair.value, settings.dialect);
    else if (sameWord(pair.keyword, "Owner"))
        settings.owner = pair.value;
    else if (sameWord(pair.keyword, "Timeout"))
        return readTimeout(pair.value, settings.open.busyTimeout);
    return true;
}
} // namespace

bool readConnectString(std::string_view text, ConnectSettings& settings, Failure& failure)
{
    settings = {};
    std::vector<Pair> pairs;
    if (!readPairs(text, pairs, failure))
        return false;
    for (const Pair& pair : pairs) {
        if (!apply(pair, settings)) {
            failure = {"HY000",
                "connection string: " + std::string(pair.keyword) + "=" + pair.value
                    + " is not understood"};
            return false;
        }
    }
    settings.open.caseSensitiveLike = settings.dialect == Dialect::Oracle;
    return true;
}

} // namespace desktopdb

// schema/StatementSplitter.cpp
#include "schema/StatementSplitter.h"

#include <cctype>

namespace {

/// Length of the comment, quoted text, word or single character that `text` starts with.
size_t tokenLength(std::string_view text)
{
    const auto upTo = [text](size_t end) { return end == text.npos ? text.size() : end + 1; };
    if (text.starts_with("--"))
        return upTo(text.find('\n'));
    if (text[0] == '\'' || text[0] == '"')
        return upTo(text.find(text[0], 1));
    size_t length = 0;
    while (length < text.size()
        && (std::isalnum(static_cast<unsigned char>(text[length])) || text[length] == '_'))
        ++length;
    return length ? length : 1;
}

bool isBlank(std::string_view token)
{
    return token.starts_with("--") || std::isspace(static_cast<unsigned char>(token[0]));
}

/// Cuts the first statement, with its semicolon, off `text`. A semicolon inside a trigger's body
/// ends no statement; the body ends with an END right behind a semicolon, as no CASE does.
std::string_view takeStatement(std::string_view& text)
{
    const std::string_view from = text;
    std::string_view before, beforeThat, second;
    int words = 0;
    while (!text.empty()) {
        const std::string_view token = text.substr(0, tokenLength(text));
        text.remove_prefix(token.size());
        if (isBlank(token))
            continue;
        if (++words == 2)
            second = token;
        if (token == ";" && (second != "TRIGGER" || (before == "END" && beforeThat == ";")))
            break;
        beforeThat = before;
        before = token;
    }
    return from.substr(0, from.size() - text.size());
}

void skipBlanks(std::string_view& text)
{
    while (!text.empty() && isBlank(text))
        text.remove_prefix(tokenLength(text));
}

} // namespace

std::vector<std::string_view> splitStatements(std::string_view text)
{
    std::vector<std::string_view> statements;
    for (skipBlanks(text); !text.empty(); skipBlanks(text)) {
        std::string_view statement = takeStatement(text);
        statement.remove_suffix(1);
        statements.push_back(statement);
    }
    return statements;
}

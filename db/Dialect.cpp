// db/Dialect.cpp
#include "db/Dialect.h"

#include "db/Session.h"

#include <algorithm>
#include <array>

namespace {

constexpr DialectFacts kDialects[] = {
    // kind, case functions, wildcard, bars as written, compact dates, date statement, owner
    {2, "UPPER", "LOWER", '%', true, true, true, true},
    {3, "UCASE", "LCASE", '*', false, false, true, true},
    {1, "UCASE", "LCASE", '*', false, false, false, false},
    {5, "UCASE", "LCASE", '*', false, false, false, false},
    {0, "UCASE", "LCASE", '*', false, false, false, true}, // and any kind without a row
};

// The statements were written for databases whose words these are.
constexpr std::string_view kUpperWord = "UPPER";
constexpr std::string_view kLowerWord = "LOWER";
constexpr char kWildcard = '%';

// A reconnection may meet another kind's rules only with another process.
const DialectFacts& wordsOfProcess()
{
    static const DialectFacts& words = dialectFacts();
    return words;
}

void replaceWord(std::string& text, std::string_view call, std::string_view word)
{
    for (std::size_t at = text.find(call); at != std::string::npos;
         at = text.find(call, at + word.size()))
        text.replace(at, word.size(), word);
}

void exchangeFunction(std::string& text, std::string_view written, std::string_view word)
{
    if (word == written)
        return;
    std::string lower(written);
    std::ranges::transform(
        lower, lower.begin(), [](char c) { return static_cast<char>(c - 'A' + 'a'); });
    for (const std::string& spelling : {std::string(written), lower})
        for (const char* opening : {"(", " ("})
            replaceWord(text, spelling + opening, word);
}

void exchangeWildcards(std::string& text, char wildcard)
{
    std::size_t from = text.find("where");
    if (from == std::string::npos)
        from = text.find("WHERE");
    if (from != std::string::npos)
        std::ranges::replace(
            text.begin() + static_cast<std::ptrdiff_t>(from), text.end(), kWildcard, wildcard);
}

} // namespace

const DialectFacts& dialectFacts()
{
    const auto* row = std::ranges::find(kDialects, dbKind, &DialectFacts::kind);
    return row == std::end(kDialects) ? std::end(kDialects)[-1] : *row;
}

std::string inDialect(std::string statement)
{
    const DialectFacts& words = wordsOfProcess();
    exchangeFunction(statement, kUpperWord, words.upperFunction);
    exchangeFunction(statement, kLowerWord, words.lowerFunction);
    exchangeWildcards(statement, words.likeWildcard);
    return statement;
}

// db/Parameters.cpp
#include "db/Parameters.h"

#include <string_view>

namespace {

constexpr char kQuote = '\'';
constexpr char kBar = '|';

// One past the quote that ends the literal opened at `open`; npos when nothing ends it.
std::size_t literalEnd(std::string_view text, std::size_t open)
{
    for (std::size_t at = text.find(kQuote, open + 1); at != std::string_view::npos;
         at = text.find(kQuote, at + 2)) {
        const bool doubled = at + 1 < text.size() && text[at + 1] == kQuote;
        if (!doubled)
            return at + 1;
    }
    return std::string_view::npos;
}

std::string unquoted(std::string_view literal)
{
    std::string text;
    for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
        text += literal[i];
        if (literal[i] == kQuote)
            ++i;
    }
    return text;
}

} // namespace

ParameterisedText withBarsAsParameters(const std::string& statement)
{
    ParameterisedText out;
    const std::string_view text = statement;
    std::size_t done = 0;
    for (std::size_t open = text.find(kQuote); open != std::string_view::npos;
         open = text.find(kQuote, done)) {
        const std::size_t end = literalEnd(text, open);
        if (end == std::string_view::npos)
            break;
        out.statement += text.substr(done, open - done);
        const std::string_view literal = text.substr(open, end - open);
        if (literal.find(kBar) == std::string_view::npos) {
            out.statement += literal;
        } else {
            out.statement += '?';
            out.parameters.push_back(unquoted(literal));
        }
        done = end;
    }
    out.statement += text.substr(done);
    return out;
}

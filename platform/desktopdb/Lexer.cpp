// platform/desktopdb/Lexer.cpp
#include "platform/desktopdb/Lexer.h"

#include "platform/desktopdb/AsciiText.h"

namespace desktopdb {

namespace {
// Bytes of other alphabets' letters are letters, as they are for the engine.
bool startsName(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'
        || static_cast<unsigned char>(c) >= 0x80;
}
bool continuesName(char c) { return startsName(c) || isDigit(c) || c == '$'; }

class Scanner {
public:
    explicit Scanner(std::string_view sql)
        : sql_(sql)
    {
    }

    Token next()
    {
        Token token;
        const size_t leadStart = pos_;
        skipLead();
        token.lead = sql_.substr(leadStart, pos_ - leadStart);
        const size_t start = pos_;
        token.kind = pos_ < sql_.size() ? take() : TokenKind::End;
        token.text = sql_.substr(start, pos_ - start);
        if (token.kind == TokenKind::Word) {
            const WordFacts facts = factsOf(token.text);
            token.word = facts.keyword;
            token.reserved = facts.reserved;
        }
        return token;
    }

private:
    char at(size_t offset = 0) const
    {
        return pos_ + offset < sql_.size() ? sql_[pos_ + offset] : '\0';
    }

    void skipLead()
    {
        for (;;) {
            while (pos_ < sql_.size() && isSpace(sql_[pos_]))
                ++pos_;
            if (at() == '-' && at(1) == '-')
                skipTo("\n");
            else if (at() == '/' && at(1) == '*')
                skipTo("*/", 2);
            else
                return;
        }
    }

    // Behind the next `end`, or to the end of the statement: the engine reads an unfinished
    // comment in the same way.
    void skipTo(std::string_view end, size_t from = 0)
    {
        const size_t found = sql_.find(end, pos_ + from);
        pos_ = found == sql_.npos ? sql_.size() : found + end.size();
    }

    TokenKind take()
    {
        const char c = sql_[pos_];
        if ((c == 'x' || c == 'X') && at(1) == '\'') {
            ++pos_;
            return takeQuoted('\'', TokenKind::Blob);
        }
        if (startsName(c))
            return takeName();
        if (isDigit(c) || (c == '.' && isDigit(at(1))))
            return takeNumber();
        switch (c) {
        case '\'':
            return takeQuoted('\'', TokenKind::Text);
        case '"':
        case '`':
            return takeQuoted(c, TokenKind::QuotedName);
        case '[':
            return takeQuoted(']', TokenKind::QuotedName);
        case '#':
            return takeDate();
        default:
            return takeSign(c);
        }
    }

    TokenKind takeName()
    {
        while (pos_ < sql_.size() && continuesName(sql_[pos_]))
            ++pos_;
        return TokenKind::Word;
    }

    void takeDigits()
    {
        while (isDigit(at()))
            ++pos_;
    }

    TokenKind takeNumber()
    {
        takeDigits();
        if (at() == '.') {
            ++pos_;
            takeDigits();
        }
        if (at() == 'e' || at() == 'E') {
            const size_t sign = at(1) == '+' || at(1) == '-' ? 1 : 0;
            if (isDigit(at(1 + sign))) {
                pos_ += 1 + sign;
                takeDigits();
            }
        }
        // 12ab or 0x1f: one piece, which the engine takes or refuses as a whole.
        while (pos_ < sql_.size() && continuesName(sql_[pos_]))
            ++pos_;
        return TokenKind::Number;
    }

    // Up to the closing mark; a doubled mark stands for itself, save in brackets.
    TokenKind takeQuoted(char close, TokenKind kind)
    {
        for (++pos_; pos_ < sql_.size(); ++pos_) {
            if (sql_[pos_] != close)
                continue;
            if (close != ']' && at(1) == close) {
                ++pos_;
                continue;
            }
            ++pos_;
            return kind;
        }
        return TokenKind::Bad;
    }

    // A date literal holds digits and separators only; any other # stands alone and is bad.
    TokenKind takeDate()
    {
        const size_t close = sql_.find_first_not_of("0123456789-/.: ", pos_ + 1);
        if (close == sql_.npos || sql_[close] != '#') {
            ++pos_;
            return TokenKind::Bad;
        }
        pos_ = close + 1;
        return TokenKind::Date;
    }

    TokenKind takeSign(char c)
    {
        static constexpr std::string_view kPairs[] = {
            "||", "<=", ">=", "<>", "!=", "==", "<<", ">>", "->"};
        for (const std::string_view pair : kPairs) {
            if (sql_.substr(pos_, 2) == pair) {
                pos_ += pair == "->" && at(2) == '>' ? 3 : 2;
                return TokenKind::Operator;
            }
        }
        ++pos_;
        switch (c) {
        case '?':
            return TokenKind::Parameter;
        case '(':
            return TokenKind::Open;
        case ')':
            return TokenKind::Close;
        case ',':
            return TokenKind::Comma;
        case '.':
            return TokenKind::Dot;
        case ';':
            return TokenKind::Semicolon;
        case '{':
        case '}':
            return TokenKind::Brace;
        default:
            return std::string_view("+-*/%=<>&|~").find(c) != std::string_view::npos
                ? TokenKind::Operator
                : TokenKind::Bad;
        }
    }

    std::string_view sql_;
    size_t pos_ = 0;
};
} // namespace

void scan(std::string_view sql, std::vector<Token>& tokens)
{
    tokens.clear();
    tokens.reserve(sql.size() / 4 + 2);
    Scanner scanner(sql);
    do
        tokens.push_back(scanner.next());
    while (tokens.back().kind != TokenKind::End);
}

} // namespace desktopdb

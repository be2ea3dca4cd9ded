// platform/desktopdb/TokenList.h
#pragma once

#include "platform/desktopdb/Lexer.h"

#include <list>
#include <string>

namespace desktopdb {

/// A statement's tokens while they are rewritten. Positions outside the list read as End, so that
/// a step may look around without asking for the borders.
class TokenList {
public:
    explicit TokenList(std::string_view sql) { scan(sql, tokens_); }

    /// Number of tokens without the final End.
    size_t size() const { return tokens_.size() - 1; }
    const Token& operator[](size_t i) const { return i < tokens_.size() ? tokens_[i] : end_; }
    Token& edit(size_t i) { return tokens_[i]; }

    TokenKind kind(size_t i) const { return (*this)[i].kind; }
    Keyword word(size_t i) const { return (*this)[i].word; }
    bool isName(size_t i) const
    {
        return kind(i) == TokenKind::Word || kind(i) == TokenKind::QuotedName;
    }
    bool isOperator(size_t i, std::string_view sign) const
    {
        return kind(i) == TokenKind::Operator && (*this)[i].text == sign;
    }

    void replace(size_t i, TokenKind kind, std::string text)
    {
        tokens_[i].kind = kind;
        tokens_[i].word = Keyword::None;
        tokens_[i].text = keep(std::move(text));
    }
    /// Takes `n` tokens out. The space in front of them stays.
    void erase(size_t i, size_t n = 1)
    {
        if (tokens_[i + n].lead.empty())
            tokens_[i + n].lead = tokens_[i].lead;
        const auto first = tokens_.begin() + static_cast<std::ptrdiff_t>(i);
        tokens_.erase(first, first + static_cast<std::ptrdiff_t>(n));
    }
    /// Puts a token in front of position `i`, behind a blank.
    void insert(size_t i, TokenKind kind, std::string text)
    {
        Token token;
        token.kind = kind;
        token.lead = " ";
        token.text = keep(std::move(text));
        tokens_.insert(tokens_.begin() + static_cast<std::ptrdiff_t>(i), token);
    }

private:
    std::string_view keep(std::string text) { return texts_.emplace_back(std::move(text)); }

    std::vector<Token> tokens_;
    std::list<std::string> texts_; // never moves what it holds
    Token end_;
};

/// The name without its quotes.
std::string_view plainName(const Token& token);

/// A text literal with its quotes taken off and doubled quotes made single.
std::string textOf(std::string_view literal);

/// `text` as a literal.
std::string literalOf(std::string_view text);

} // namespace desktopdb

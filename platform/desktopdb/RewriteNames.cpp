// platform/desktopdb/RewriteNames.cpp
// The steps that look at names: braces, table owners, reserved words, function words.
#include "platform/desktopdb/RewriteSteps.h"

namespace desktopdb {

namespace {
bool isOwner(std::string_view name, std::string_view knownOwner)
{
    if (!knownOwner.empty())
        return sameWord(name, knownOwner);
    // The engine's own two databases are no owners.
    return !sameWord(name, "main") && !sameWord(name, "temp");
}

/// Walks a statement and knows at each token whether a table is named there.
class TableWalk {
public:
    TableWalk(TokenList& tokens, StatementKind kind, std::string_view knownOwner)
        : tokens_(tokens)
        , knownOwner_(knownOwner)
        , inHeader_(kind == StatementKind::Define)
        , defines_(kind == StatementKind::Define)
    {
    }

    std::vector<TableUse> run()
    {
        for (i_ = 0; i_ < tokens_.size(); ++i_)
            visit();
        return std::move(tables_);
    }

private:
    struct Scope {
        bool inFrom = false; // a comma is followed by another table
        bool expectTable = false;
    };
    Scope& scope() { return scopes_.back(); }

    void visit()
    {
        switch (tokens_.kind(i_)) {
        case TokenKind::Open:
            open();
            break;
        case TokenKind::Close:
            if (scopes_.size() > 1)
                scopes_.pop_back();
            break;
        case TokenKind::Comma:
            scope().expectTable = scope().inFrom;
            break;
        case TokenKind::Word:
        case TokenKind::QuotedName:
            visitName();
            break;
        default:
            scope().expectTable = false;
        }
    }

    // A bracket where a table is due holds tables of its own: FROM (a JOIN b ON ...).
    void open()
    {
        const Scope inner{scope().expectTable, scope().expectTable};
        scope().expectTable = false;
        scopes_.push_back(inner);
    }

    void visitName()
    {
        if (steer(tokens_.word(i_)))
            return;
        if (scope().expectTable) {
            takeTable();
            return;
        }
        const bool threeParts = tokens_.kind(i_ + 1) == TokenKind::Dot
            && tokens_.kind(i_ + 3) == TokenKind::Dot && tokens_.isName(i_ + 2);
        if (threeParts && isOwner(plainName(tokens_[i_]), knownOwner_))
            tokens_.erase(i_, 2);
        // Parts of one dotted name are not looked at again.
        while (tokens_.kind(i_ + 1) == TokenKind::Dot)
            i_ += 2;
    }

    // Words that begin or end a list of tables. True when the word is dealt with.
    bool steer(Keyword word)
    {
        switch (word) {
        case Keyword::From:
            scope().inFrom = scope().expectTable = !isDistinctFrom();
            return true;
        case Keyword::Join:
            scope().inFrom = scope().expectTable = true;
            return true;
        case Keyword::Into:
        case Keyword::Update:
            scope().expectTable = true;
            return true;
        case Keyword::References:
            scope().expectTable = defines_;
            return defines_;
        case Keyword::Table:
        case Keyword::View:
        case Keyword::Index:
        case Keyword::Trigger:
            return steerObject();
        case Keyword::On:
            scope().expectTable = inHeader_;
            inHeader_ = false;
            return true;
        case Keyword::If:
        case Keyword::Not:
        case Keyword::Exists:
            return true; // TABLE IF NOT EXISTS still waits for its name
        case Keyword::Or:
            if (scope().expectTable)
                ++i_; // UPDATE OR REPLACE t
            return true;
        case Keyword::Begin:
        case Keyword::As:
            inHeader_ = false;
            return true;
        case Keyword::Select:
        case Keyword::Where:
        case Keyword::Group:
        case Keyword::Order:
        case Keyword::Having:
        case Keyword::Limit:
        case Keyword::Union:
        case Keyword::Intersect:
        case Keyword::Except:
        case Keyword::Set:
        case Keyword::Returning:
        case Keyword::Values:
            inHeader_ = inHeader_ && word != Keyword::Select;
            scope() = {};
            return true;
        default:
            return false;
        }
    }

    bool isDistinctFrom() const
    {
        return i_ >= 2 && tokens_.word(i_ - 1) == Keyword::Distinct
            && (tokens_.word(i_ - 2) == Keyword::Is || tokens_.word(i_ - 2) == Keyword::Not);
    }

    // CREATE UNIQUE INDEX, DROP VIEW and so on: the object's word is among the first few. All
    // other places hold columns of that name.
    bool steerObject()
    {
        constexpr size_t kLastPlace = 3;
        if (!inHeader_ || i_ == 0 || i_ > kLastPlace)
            return false;
        scope().expectTable = true;
        return true;
    }

    void takeTable()
    {
        scope().expectTable = false;
        const bool qualified = tokens_.kind(i_ + 1) == TokenKind::Dot && tokens_.isName(i_ + 2);
        if (qualified && isOwner(plainName(tokens_[i_]), knownOwner_))
            tokens_.erase(i_, 2);
        else if (qualified)
            i_ += 2;
        TableUse use{plainName(tokens_[i_]), {}};
        const size_t alias = tokens_.word(i_ + 1) == Keyword::As ? i_ + 2 : i_ + 1;
        if (scope().inFrom && tokens_.isName(alias) && tokens_.word(alias) == Keyword::None) {
            use.alias = plainName(tokens_[alias]);
            i_ = alias;
        }
        tables_.push_back(use);
    }

    TokenList& tokens_;
    std::string_view knownOwner_;
    bool inHeader_; // before the body of a CREATE, DROP or ALTER
    bool defines_;
    size_t i_ = 0;
    std::vector<Scope> scopes_{Scope{}};
    std::vector<TableUse> tables_;
};

void bracket(TokenList& tokens, size_t i)
{
    tokens.replace(i, TokenKind::QuotedName, "[" + std::string(tokens[i].text) + "]");
}

// Words that mean something only where tables are made.
bool meansNothingOutsideDefinitions(const Token& token)
{
    switch (token.word) {
    case Keyword::References:
    case Keyword::Check:
    case Keyword::Constraint:
    case Keyword::Foreign:
    case Keyword::Primary:
    case Keyword::Unique:
    case Keyword::Index:
    case Keyword::Table:
    case Keyword::Add:
    case Keyword::Alter:
    case Keyword::Create:
    case Keyword::Drop:
    case Keyword::Commit:
        return true;
    default:
        return sameWord(token.text, "TO") || sameWord(token.text, "TRANSACTION")
            || sameWord(token.text, "DEFERRABLE") || sameWord(token.text, "AUTOINCREMENT");
    }
}

bool standsAlone(const TokenList& tokens, size_t i)
{
    const TokenKind before = i ? tokens.kind(i - 1) : TokenKind::End;
    const TokenKind after = tokens.kind(i + 1);
    return (before == TokenKind::Open || before == TokenKind::Comma)
        && (after == TokenKind::Comma || after == TokenKind::Close);
}

// At the start of a column's definition: a table constraint, or a column so named?
bool opensConstraint(const TokenList& tokens, size_t i)
{
    switch (tokens.word(i)) {
    case Keyword::Constraint:
        return true;
    case Keyword::Check:
    case Keyword::Unique:
        return tokens.kind(i + 1) == TokenKind::Open;
    case Keyword::Primary:
    case Keyword::Foreign:
        return sameWord(tokens[i + 1].text, "KEY");
    default:
        return false;
    }
}

bool isNameHere(const TokenList& tokens, size_t i, StatementKind kind, bool columnStart)
{
    const Keyword word = tokens.word(i);
    if (i && tokens.kind(i - 1) == TokenKind::Dot)
        return true;
    if (standsAlone(tokens, i))
        return word != Keyword::Null;
    if (kind == StatementKind::Define)
        return columnStart && !opensConstraint(tokens, i);
    if (word == Keyword::Order || word == Keyword::Group)
        return tokens.word(i + 1) != Keyword::By;
    return i > 0 && meansNothingOutsideDefinitions(tokens[i]);
}

// Whether the brackets opened last hold the columns of CREATE TABLE.
bool createsTable(const TokenList& tokens)
{
    return tokens.word(0) == Keyword::Create
        && (tokens.word(1) == Keyword::Table || tokens.word(2) == Keyword::Table);
}
} // namespace

void unwrapEscapes(TokenList& tokens)
{
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens.kind(i) != TokenKind::Brace)
            continue;
        const std::string_view word = tokens[i + 1].text;
        const bool keepsWord = sameWord(word, "escape");
        const bool known = keepsWord || sameWord(word, "d") || sameWord(word, "t")
            || sameWord(word, "ts") || sameWord(word, "fn") || sameWord(word, "oj");
        tokens.erase(i, tokens[i].text == "{" && known && !keepsWord ? 2 : 1);
        --i; // what followed has moved here; unsigned arithmetic brings the 0 back
    }
}

std::vector<TableUse> resolveOwners(
    TokenList& tokens, StatementKind kind, std::string_view knownOwner)
{
    return TableWalk(tokens, kind, knownOwner).run();
}

void bracketReservedNames(TokenList& tokens, StatementKind kind)
{
    const bool columnsFollow = createsTable(tokens);
    int depth = 0;
    for (size_t i = 0; i < tokens.size(); ++i) {
        const TokenKind before = i ? tokens.kind(i - 1) : TokenKind::End;
        if (tokens.kind(i) == TokenKind::Word && tokens[i].reserved) {
            const bool columnStart = columnsFollow && depth == 1
                && (before == TokenKind::Open || before == TokenKind::Comma);
            if (isNameHere(tokens, i, kind, columnStart))
                bracket(tokens, i);
        }
        depth += tokens.kind(i) == TokenKind::Open;
        depth -= tokens.kind(i) == TokenKind::Close;
        // A view's query and a trigger's body are statements like any other.
        const bool opensBody = tokens.word(i) == Keyword::Begin || tokens.word(i) == Keyword::As;
        if (kind == StatementKind::Define && depth == 0 && opensBody)
            kind = StatementKind::Change;
    }
}

void renameFunctions(TokenList& tokens)
{
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens.kind(i + 1) != TokenKind::Open)
            continue;
        // The words keep their meaning for the steps behind, so only the text changes.
        if (tokens.word(i) == Keyword::Ucase) {
            tokens.edit(i).text = "UPPER";
            tokens.edit(i).word = Keyword::Upper;
        } else if (tokens.word(i) == Keyword::Lcase) {
            tokens.edit(i).text = "LOWER";
            tokens.edit(i).word = Keyword::Lower;
        }
    }
}

} // namespace desktopdb

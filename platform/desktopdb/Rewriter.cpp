// platform/desktopdb/Rewriter.cpp
#include "platform/desktopdb/Rewriter.h"

#include "platform/desktopdb/AsciiText.h"
#include "platform/desktopdb/DateForms.h"
#include "platform/desktopdb/RewriteSteps.h"

#include <algorithm>

namespace desktopdb {

namespace {
bool isTransactionWord(const Token& token)
{
    switch (token.word) {
    case Keyword::Begin:
    case Keyword::Commit:
    case Keyword::End:
    case Keyword::Rollback:
        return true;
    default:
        return sameWord(token.text, "SAVEPOINT") || sameWord(token.text, "RELEASE");
    }
}

// WITH introduces either kind; only the statement behind it tells which.
StatementKind kindBehindWith(const TokenList& tokens)
{
    int depth = 0;
    for (size_t i = 1; i < tokens.size(); ++i) {
        depth += tokens.kind(i) == TokenKind::Open;
        depth -= tokens.kind(i) == TokenKind::Close;
        if (depth == 0) {
            switch (tokens.word(i)) {
            case Keyword::Insert:
            case Keyword::Update:
            case Keyword::Delete:
            case Keyword::Replace:
                return StatementKind::Change;
            case Keyword::Select:
                return StatementKind::Query;
            default:
                break;
            }
        }
    }
    return StatementKind::Query;
}

StatementKind kindOf(const TokenList& tokens)
{
    switch (tokens.word(0)) {
    case Keyword::Select:
    case Keyword::Values:
    case Keyword::Explain:
        return StatementKind::Query;
    case Keyword::With:
        return kindBehindWith(tokens);
    case Keyword::Insert:
    case Keyword::Update:
    case Keyword::Delete:
    case Keyword::Replace:
        return StatementKind::Change;
    case Keyword::Alter:
        return tokens.word(1) == Keyword::Session ? StatementKind::AlterSession
                                                  : StatementKind::Define;
    case Keyword::Create:
    case Keyword::Drop:
        return StatementKind::Define;
    default:
        return isTransactionWord(tokens[0]) ? StatementKind::Transaction : StatementKind::Other;
    }
}

Failure syntaxError(std::string text) { return {"42000", std::move(text)}; }

std::string shortened(std::string_view text)
{
    constexpr size_t kShown = 40;
    return text.size() <= kShown ? std::string(text)
                                 : std::string(text.substr(0, kShown)).append("...");
}

bool refuseBadTokens(const TokenList& tokens, bool bracesRead, Failure& failure)
{
    for (size_t i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        if (token.kind != TokenKind::Bad && (bracesRead || token.kind != TokenKind::Brace))
            continue;
        const bool openLiteral =
            std::string_view("'\"[`xX").find(token.text[0]) != std::string_view::npos;
        failure = syntaxError(
            (openLiteral ? "literal or name is not closed: " : "character not understood: ")
            + shortened(token.text));
        return false;
    }
    return true;
}

bool isTriggerBody(const TokenList& tokens)
{
    if (tokens.word(0) != Keyword::Create)
        return false;
    for (size_t i = 1; i < 4; ++i) {
        if (tokens.word(i) == Keyword::Trigger)
            return true;
    }
    return false;
}

// The statements of a trigger's body are the only ones that may follow each other.
bool refuseSecondStatement(TokenList& tokens, Failure& failure)
{
    while (tokens.size() && tokens.kind(tokens.size() - 1) == TokenKind::Semicolon)
        tokens.erase(tokens.size() - 1);
    if (tokens.size() == 0) {
        failure = syntaxError("the statement is empty");
        return false;
    }
    if (isTriggerBody(tokens))
        return true;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens.kind(i) == TokenKind::Semicolon) {
            failure = syntaxError("more than one statement in one text");
            return false;
        }
    }
    return true;
}

bool readAlterSession(const TokenList& tokens, Rewritten& result, Failure& failure)
{
    const bool known = tokens.word(2) == Keyword::Set && tokens.word(3) == Keyword::NlsDateFormat
        && tokens.isOperator(4, "=") && tokens.kind(5) == TokenKind::Text && tokens.size() == 6;
    if (!known) {
        failure = syntaxError("ALTER SESSION: only SET NLS_DATE_FORMAT='...' is understood");
        return false;
    }
    const std::string format = textOf(tokens[5].text);
    result.dayFirstDates = sameWord(format, "ddmmyyyy");
    if (!result.dayFirstDates && !sameWord(format, "yyyy-mm-dd")) {
        failure = {"HYC00", "NLS_DATE_FORMAT: only ddmmyyyy and yyyy-mm-dd are understood"};
        return false;
    }
    return true;
}

bool runSteps(TokenList& tokens, const RewriteRules& rules, StatementKind kind, Failure& failure)
{
    if (rules.scanEscapes)
        unwrapEscapes(tokens);
    const auto tables = resolveOwners(tokens, kind, rules.owner);
    bracketReservedNames(tokens, kind);
    renameFunctions(tokens);
    if (!rewriteDateLiterals(tokens, failure))
        return false;
    if (rules.dayFirstDates && rules.dates
        && !rewriteDayFirstDates(tokens, tables, *rules.dates, failure))
        return false;
    rewriteLikePatterns(tokens, rules.dialect);
    return true;
}

} // namespace

std::string_view plainName(const Token& token)
{
    return token.kind == TokenKind::QuotedName ? token.text.substr(1, token.text.size() - 2)
                                               : token.text;
}

std::string textOf(std::string_view literal)
{
    std::string text;
    const std::string_view inner = literal.substr(1, literal.size() - 2);
    text.reserve(inner.size());
    for (size_t i = 0; i < inner.size(); ++i) {
        text += inner[i];
        i += inner[i] == '\'';
    }
    return text;
}

std::string literalOf(std::string_view text)
{
    std::string literal = "'";
    for (const char c : text) {
        literal += c;
        if (c == '\'')
            literal += c;
    }
    return literal += '\'';
}

bool rewrite(std::string_view sql, const RewriteRules& rules, Rewritten& result, Failure& failure)
{
    result = {};
    TokenList tokens(sql);
    result.kind = kindOf(tokens);
    if (!refuseBadTokens(tokens, rules.scanEscapes, failure)
        || !refuseSecondStatement(tokens, failure))
        return false;
    if (result.kind == StatementKind::AlterSession)
        return readAlterSession(tokens, result, failure);
    if (result.kind != StatementKind::Other && !runSteps(tokens, rules, result.kind, failure))
        return false;
    writeOut(tokens, result);
    return true;
}

bool applyForm(ParameterForm form, Dialect dialect, Value& value, Failure& failure)
{
    if (value.kind != ValueKind::Text)
        return true;
    if (form == ParameterForm::LikePattern) {
        value.bytes = isAccessPattern(value.bytes, dialect) ? accessPattern(value.bytes)
                                                            : escapedPattern(value.bytes);
    } else if (form == ParameterForm::DayFirstDate && value.bytes.size() == 8
        && std::ranges::all_of(value.bytes, isDigit)) {
        const auto date = parseDayMonthYear(value.bytes);
        if (!date) {
            failure = {"22007", "'" + value.bytes + "' is no date of the form ddmmyyyy"};
            return false;
        }
        value.bytes = isoText(*date);
    }
    return true;
}

} // namespace desktopdb

// platform/desktopdb/RewriteValues.cpp
// The steps that look at literals: dates and LIKE patterns.
#include "platform/desktopdb/DateForms.h"
#include "platform/desktopdb/RewriteSteps.h"

#include <algorithm>

namespace desktopdb {

namespace {
bool isComparison(const Token& token)
{
    if (token.kind != TokenKind::Operator)
        return false;
    const std::string_view t = token.text;
    return t == "=" || t == "==" || t == "<" || t == ">" || t == "<=" || t == ">=" || t == "<>"
        || t == "!=";
}

bool isEightDigitText(const Token& token)
{
    return token.kind == TokenKind::Text && token.text.size() == 10
        && token.text.find_first_not_of("0123456789", 1) == 9;
}

bool mayBeDate(const Token& token)
{
    return isEightDigitText(token) || token.kind == TokenKind::Parameter;
}

/// Finds the values that meet date columns: INSERT lists, SET, comparisons.
class DayFirstDates {
public:
    DayFirstDates(TokenList& tokens, const std::vector<TableUse>& tables, const DateColumns& dates,
        Failure& failure)
        : tokens_(tokens)
        , tables_(tables)
        , dates_(dates)
        , failure_(failure)
    {
    }

    bool run()
    {
        bool good = !isInsert() || insertLists();
        for (size_t i = 0; good && i < tokens_.size(); ++i) {
            if (isComparison(tokens_[i]))
                good = comparison(i);
            else if (tokens_.word(i) == Keyword::Between)
                good = between(i);
            else if (tokens_.word(i) == Keyword::In)
                good = inList(i);
        }
        return good;
    }

private:
    bool isInsert() const
    {
        return (tokens_.word(0) == Keyword::Insert || tokens_.word(0) == Keyword::Replace)
            && !tables_.empty();
    }

    // INSERT INTO t [(columns)] VALUES (...), (...)
    bool insertLists()
    {
        const size_t values = find(Keyword::Values);
        std::vector<std::string_view> columns;
        size_t i = find(Keyword::Into) + 2;
        if (i < values && tokens_.kind(i) == TokenKind::Open) {
            while (++i < values && tokens_.kind(i) != TokenKind::Close) {
                if (tokens_.isName(i))
                    columns.push_back(plainName(tokens_[i]));
            }
        }
        return valueRows(values + 1, columns);
    }

    bool valueRows(size_t from, const std::vector<std::string_view>& columns)
    {
        int depth = 0;
        size_t position = 0;
        for (size_t i = from; i < tokens_.size(); ++i) {
            if (tokens_.kind(i) == TokenKind::Open && ++depth == 1)
                position = 0;
            depth -= tokens_.kind(i) == TokenKind::Close;
            position += depth == 1 && tokens_.kind(i) == TokenKind::Comma;
            if (depth == 1 && standsAlone(i) && isDateAt(position, columns) && !convert(i))
                return false;
        }
        return true;
    }

    bool standsAlone(size_t i) const
    {
        const TokenKind before = tokens_.kind(i - 1);
        const TokenKind after = tokens_.kind(i + 1);
        return mayBeDate(tokens_[i]) && (before == TokenKind::Open || before == TokenKind::Comma)
            && (after == TokenKind::Close || after == TokenKind::Comma);
    }

    bool isDateAt(size_t position, const std::vector<std::string_view>& columns) const
    {
        const std::string_view table = tables_.front().table;
        if (columns.empty())
            return dates_.isDateAt(table, position);
        return position < columns.size() && dates_.isDate(table, columns[position]);
    }

    size_t find(Keyword word) const
    {
        size_t i = 0;
        while (i < tokens_.size() && tokens_.word(i) != word)
            ++i;
        return i;
    }

    // Also the assignments of SET, which look the same.
    bool comparison(size_t i)
    {
        if (mayBeDate(tokens_[i + 1]) && endsInDateColumn(i))
            return convert(i + 1);
        if (i && mayBeDate(tokens_[i - 1]) && startsWithDateColumn(i + 1))
            return convert(i - 1);
        return true;
    }

    bool between(size_t i)
    {
        if (!endsInDateColumn(skipNot(i)))
            return true;
        if (mayBeDate(tokens_[i + 1]) && !convert(i + 1))
            return false;
        return tokens_.word(i + 2) != Keyword::And || !mayBeDate(tokens_[i + 3]) || convert(i + 3);
    }

    bool inList(size_t i)
    {
        if (tokens_.kind(i + 1) != TokenKind::Open || !endsInDateColumn(skipNot(i)))
            return true;
        for (i += 2; i < tokens_.size() && tokens_.kind(i) != TokenKind::Close; ++i) {
            if (standsAlone(i) && !convert(i))
                return false;
        }
        return true;
    }

    size_t skipNot(size_t i) const { return i && tokens_.word(i - 1) == Keyword::Not ? i - 1 : i; }

    // Whether the name in front of position `i` is a date column.
    bool endsInDateColumn(size_t i) const
    {
        if (i == 0 || !tokens_.isName(i - 1))
            return false;
        const bool qualified = i >= 3 && tokens_.kind(i - 2) == TokenKind::Dot;
        return isDateColumn(
            qualified ? plainName(tokens_[i - 3]) : std::string_view(), tokens_[i - 1]);
    }

    bool startsWithDateColumn(size_t i) const
    {
        if (!tokens_.isName(i))
            return false;
        if (tokens_.kind(i + 1) != TokenKind::Dot)
            return isDateColumn({}, tokens_[i]);
        return isDateColumn(plainName(tokens_[i]), tokens_[i + 2]);
    }

    // A bare column is looked for in all tables that the statement names.
    bool isDateColumn(std::string_view qualifier, const Token& column) const
    {
        return std::ranges::any_of(tables_, [&](const TableUse& use) {
            return (qualifier.empty() || sameWord(qualifier, use.alias)
                       || sameWord(qualifier, use.table))
                && dates_.isDate(use.table, plainName(column));
        });
    }

    bool convert(size_t i)
    {
        if (tokens_.kind(i) == TokenKind::Parameter) {
            tokens_.edit(i).form = ParameterForm::DayFirstDate;
            return true;
        }
        Value value = Value::ofText(textOf(tokens_[i].text));
        if (!applyForm(ParameterForm::DayFirstDate, Dialect::Auto, value, failure_))
            return false;
        tokens_.replace(i, TokenKind::Text, literalOf(value.bytes));
        return true;
    }

    TokenList& tokens_;
    const std::vector<TableUse>& tables_;
    const DateColumns& dates_;
    Failure& failure_;
};

bool isCaseFunction(const TokenList& tokens, size_t i)
{
    return (tokens.word(i) == Keyword::Upper || tokens.word(i) == Keyword::Lower)
        && tokens.kind(i + 1) == TokenKind::Open;
}

size_t behindBrackets(const TokenList& tokens, size_t open)
{
    int depth = 0;
    for (size_t i = open; i < tokens.size(); ++i) {
        depth += tokens.kind(i) == TokenKind::Open;
        depth -= tokens.kind(i) == TokenKind::Close;
        if (depth == 0)
            return i + 1;
    }
    return tokens.size();
}

/// Rewrites the patterns of one statement.
class LikePatterns {
public:
    LikePatterns(TokenList& tokens, Dialect dialect)
        : tokens_(tokens)
        , dialect_(dialect)
    {
    }

    void run()
    {
        for (size_t i = 0; i < tokens_.size(); ++i) {
            if (tokens_.word(i) == Keyword::Like)
                rewriteAt(i);
        }
    }

private:
    void rewriteAt(size_t like)
    {
        // LIKE disregards case by itself, and an index serves the bare column only.
        like = dropCaseFunctionBefore(like);
        dropCaseFunctionAround(like + 1);
        const size_t end = operandEnd(like + 1);
        if (tokens_.word(end) != Keyword::Escape && rewriteOperand(like + 1, end)) {
            tokens_.insert(end, TokenKind::Text, literalOf(std::string_view(&kLikeEscape, 1)));
            tokens_.insert(end, TokenKind::Word, "ESCAPE");
        }
    }

    // upper(name) LIKE: gives the new position of LIKE.
    size_t dropCaseFunctionBefore(size_t like)
    {
        const size_t close = tokens_.word(like - 1) == Keyword::Not ? like - 2 : like - 1;
        if (tokens_.kind(close) != TokenKind::Close || close < 3)
            return like;
        size_t first = close - 1;
        if (first >= 2 && tokens_.kind(first - 1) == TokenKind::Dot)
            first -= 2;
        if (first < 2 || !tokens_.isName(close - 1) || !isCaseFunction(tokens_, first - 2))
            return like;
        tokens_.erase(close);
        tokens_.erase(first - 2, 2);
        return like - 3;
    }

    // LIKE upper('pattern')
    void dropCaseFunctionAround(size_t i)
    {
        const TokenKind inner = tokens_.kind(i + 2);
        if (!isCaseFunction(tokens_, i) || tokens_.kind(i + 3) != TokenKind::Close
            || (inner != TokenKind::Text && inner != TokenKind::Parameter))
            return;
        tokens_.erase(i + 3);
        tokens_.erase(i, 2);
    }

    // Behind the pattern: values, calls and brackets joined by ||.
    size_t operandEnd(size_t i) const
    {
        for (;;) {
            if (tokens_.kind(i) == TokenKind::Open) {
                i = behindBrackets(tokens_, i);
            } else {
                ++i;
                while (tokens_.kind(i) == TokenKind::Dot)
                    i += 2;
                if (tokens_.kind(i) == TokenKind::Open)
                    i = behindBrackets(tokens_, i);
            }
            if (!tokens_.isOperator(i, "||"))
                return std::min(i, tokens_.size());
            ++i;
        }
    }

    // Whether the pattern now needs the escape character.
    bool rewriteOperand(size_t first, size_t end)
    {
        bool access = false;
        bool parameter = false;
        for (size_t i = first; i < end; ++i) {
            parameter = parameter || tokens_.kind(i) == TokenKind::Parameter;
            access = access
                || (tokens_.kind(i) == TokenKind::Text
                    && isAccessPattern(tokens_[i].text, dialect_));
        }
        bool escapes = parameter;
        for (size_t i = first; i < end; ++i) {
            if (tokens_.kind(i) == TokenKind::Parameter)
                tokens_.edit(i).form = ParameterForm::LikePattern;
            else if (tokens_.kind(i) == TokenKind::Text && (access || parameter))
                escapes = rewriteLiteral(i, access) || escapes;
        }
        return escapes;
    }

    // Works on the literal with its quotes: they are no wildcards.
    bool rewriteLiteral(size_t i, bool access)
    {
        const std::string_view before = tokens_[i].text;
        std::string after = access ? accessPattern(before) : escapedPattern(before);
        const bool escapes = after.size() != before.size();
        tokens_.replace(i, TokenKind::Text, std::move(after));
        return escapes;
    }

    TokenList& tokens_;
    Dialect dialect_;
};
} // namespace

bool rewriteDateLiterals(TokenList& tokens, Failure& failure)
{
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (tokens.kind(i) != TokenKind::Date)
            continue;
        const std::string_view text = tokens[i].text;
        const auto date = parseDateTime(text.substr(1, text.size() - 2));
        if (!date) {
            failure = {"22007", std::string(text) + " is no date of the form #yyyy-mm-dd#"};
            return false;
        }
        // A time behind the day is kept as it was written.
        tokens.replace(i, TokenKind::Text,
            literalOf(isoText(date->date)
                + (date->hasTime ? " "
                            + std::string(text.substr(text.find_first_of(" T") + 1,
                                text.size() - text.find_first_of(" T") - 2))
                                 : "")));
    }
    return true;
}

bool rewriteDayFirstDates(TokenList& tokens, const std::vector<TableUse>& tables,
    const DateColumns& dates, Failure& failure)
{
    bool any = false;
    for (size_t i = 0; i < tokens.size(); ++i)
        any = any || mayBeDate(tokens[i]);
    return !any || DayFirstDates(tokens, tables, dates, failure).run();
}

void rewriteLikePatterns(TokenList& tokens, Dialect dialect)
{
    if (dialect != Dialect::Oracle)
        LikePatterns(tokens, dialect).run();
}

} // namespace desktopdb

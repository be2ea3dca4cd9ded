// platform/desktopdb/RewriteOutput.cpp
// The last step: the statement's text for the engine, with its values lifted out.
#include "platform/desktopdb/RewriteSteps.h"

#include <charconv>

namespace desktopdb {

namespace {
// Above this many values a statement is one of a kind and not worth keeping.
constexpr size_t kMostLifted = 64;

/// Writes token by token and knows which part of the statement it is in, so that only
/// literals that stand for a value are lifted: never ordinals of ORDER BY and GROUP BY, never
/// result columns, whose names they are, never patterns and function arguments, which the
/// engine needs to see to choose an index.
class Writer {
public:
    Writer(const TokenList& tokens, Rewritten& result)
        : tokens_(tokens)
        , result_(result)
        , keepsSpace_(result.kind == StatementKind::Define || result.kind == StatementKind::Other)
        , lifts_(result.kind == StatementKind::Change || tokens.word(0) == Keyword::Select)
    {
    }

    void run()
    {
        for (i_ = 0; i_ < tokens_.size(); ++i_)
            write();
        result_.cacheable =
            (result_.kind == StatementKind::Query || result_.kind == StatementKind::Change)
            && tokens_.word(0) != Keyword::Explain && lifted_ < kMostLifted;
    }

private:
    enum class Part { Other, Condition, Values };
    struct Scope {
        Part part = Part::Other;
        bool between = false; // BETWEEN waits for its AND
    };
    Scope& scope() { return scopes_.back(); }

    void write()
    {
        const Token& token = tokens_[i_];
        space(token);
        steer(token);
        Value value;
        if (token.kind == TokenKind::Parameter) {
            addParameter({result_.userParameters++, token.form, {}});
        } else if (lifts_ && lifted_ < kMostLifted && isValuePlace() && read(token, value)) {
            ++lifted_;
            addParameter({-1, ParameterForm::AsIs, std::move(value)});
        } else {
            result_.sql += token.text;
        }
    }

    void addParameter(ParameterSource source)
    {
        result_.sql += '?';
        result_.parameters.push_back(std::move(source));
    }

    void space(const Token& token)
    {
        if (i_ == 0)
            return;
        if (keepsSpace_)
            result_.sql += token.lead;
        else if (!token.lead.empty()
            || (result_.sql.back() == '?'
                && (token.kind == TokenKind::Number || token.kind == TokenKind::Word)))
            result_.sql += ' '; // a digit behind ? would number the parameter
    }

    void steer(const Token& token)
    {
        switch (token.kind) {
        case TokenKind::Open:
            scopes_.push_back({scope().part == Part::Condition            ? Part::Condition
                    : scope().part == Part::Values && scopes_.size() == 1 ? Part::Values
                                                                          : Part::Other});
            break;
        case TokenKind::Close:
            if (scopes_.size() > 1)
                scopes_.pop_back();
            break;
        case TokenKind::Word:
            steerWord(token.word);
            break;
        default:
            break;
        }
    }

    void steerWord(Keyword word)
    {
        switch (word) {
        case Keyword::Where:
        case Keyword::Having:
        case Keyword::On:
        case Keyword::Set:
            scope() = {Part::Condition};
            break;
        case Keyword::Values:
            scope() = {Part::Values};
            break;
        case Keyword::Between:
            scope().between = true;
            break;
        case Keyword::Select:
        case Keyword::From:
        case Keyword::Group:
        case Keyword::Order:
        case Keyword::Limit:
        case Keyword::Union:
        case Keyword::Intersect:
        case Keyword::Except:
        case Keyword::Returning:
        case Keyword::Conflict:
            scope() = {Part::Other};
            break;
        default:
            break;
        }
    }

    bool isSign(size_t i) const { return tokens_.isOperator(i, "-") || tokens_.isOperator(i, "+"); }

    bool isValuePlace()
    {
        if (i_ == 0)
            return false;
        const Part part = scope().part;
        const size_t before = isSign(i_ - 1) ? i_ - 2 : i_ - 1;
        if (part == Part::Values)
            return scopes_.size() == 2 && isListBorder(before) && isListBorder(i_ + 1);
        return part == Part::Condition && isBehindComparison(before)
            && tokens_.kind(i_ + 1) != TokenKind::Operator;
    }

    bool isListBorder(size_t i) const
    {
        const TokenKind kind = tokens_.kind(i);
        return kind == TokenKind::Comma || kind == TokenKind::Open || kind == TokenKind::Close;
    }

    bool isBehindComparison(size_t i)
    {
        if (tokens_.word(i) == Keyword::Between)
            return true;
        if (tokens_.word(i) == Keyword::And && scope().between) {
            scope().between = false;
            return true;
        }
        return tokens_.kind(i) == TokenKind::Operator
            && std::string_view("= == < > <= >= <> !=").find(tokens_[i].text)
            != std::string_view::npos;
    }

    bool read(const Token& token, Value& value) const
    {
        if (token.kind == TokenKind::Text) {
            value = Value::ofText(textOf(token.text));
            return true;
        }
        return token.kind == TokenKind::Number && readNumber(token.text, value);
    }

    // Numbers at the edge of the engine's range stay literals: it has rules of its own there.
    static bool readNumber(std::string_view text, Value& value)
    {
        constexpr size_t kSafeDigits = 18;
        const char* end = text.data() + text.size();
        if (text.find_first_not_of("0123456789") == text.npos) {
            if (text.size() > kSafeDigits)
                return false;
            value.kind = ValueKind::Integer;
            return std::from_chars(text.data(), end, value.integer).ptr == end;
        }
        // Only forms that both sides round alike.
        if (text.find_first_not_of("0123456789.") != text.npos || text.size() > kSafeDigits)
            return false;
        value.kind = ValueKind::Real;
        return std::from_chars(text.data(), end, value.real).ptr == end;
    }

    const TokenList& tokens_;
    Rewritten& result_;
    bool keepsSpace_;
    bool lifts_;
    size_t lifted_ = 0;
    size_t i_ = 0;
    std::vector<Scope> scopes_{Scope{}};
};
} // namespace

void writeOut(const TokenList& tokens, Rewritten& result)
{
    result.sql.reserve(256);
    Writer(tokens, result).run();
}

} // namespace desktopdb

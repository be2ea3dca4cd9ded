// platform/desktopdb/Lexer.h
#pragma once

#include "platform/desktopdb/Keywords.h"

#include <string_view>
#include <vector>

namespace desktopdb {

enum class TokenKind {
    Word,       ///< keyword or plain name
    Number,     ///< unsigned
    Text,       ///< 'literal', quotes included
    QuotedName, ///< "name", [name] or `name`, quotes included
    Date,       ///< #literal#, marks included
    Blob,       ///< x'literal'
    Parameter,  ///< ?
    Open,       ///< (
    Close,      ///< )
    Comma,
    Dot,
    Semicolon,
    Brace,    ///< { or }
    Operator, ///< everything else that SQL knows
    Bad,      ///< an unfinished literal or a character that SQL does not know
    End       ///< behind the last token, with an empty text
};

/// What a parameter's value goes through on its way to the engine.
enum class ParameterForm : unsigned char { AsIs, LikePattern, DayFirstDate };

/// A piece of a statement. Points only, into the statement or into what the rewriter put in.
struct Token {
    TokenKind kind = TokenKind::End;
    Keyword word = Keyword::None; ///< set for words only
    bool reserved = false;        ///< the engine would not take the word as a plain name
    ParameterForm form = ParameterForm::AsIs; ///< for parameters only
    std::string_view lead{};                  ///< white space and comments in front of it
    std::string_view text{};
};

/// Splits a statement into its tokens; the last one is always End. Leads and texts put one behind
/// the other give the statement back. Never fails: what cannot be read is a Bad token that
/// reaches to the end of the statement, or holds the one unknown character.
void scan(std::string_view sql, std::vector<Token>& tokens);

} // namespace desktopdb

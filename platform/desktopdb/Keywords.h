// platform/desktopdb/Keywords.h
#pragma once

#include <string_view>

namespace desktopdb {

/// The words that steer the rewriting. All other words are None.
enum class Keyword : unsigned char {
    None,
    Add,
    All,
    Alter,
    And,
    As,
    Begin,
    Between,
    By,
    Check,
    Commit,
    Conflict,
    Constraint,
    Create,
    Default,
    Delete,
    Distinct,
    Do,
    Drop,
    End,
    Escape,
    Except,
    Exists,
    Explain,
    Foreign,
    From,
    Group,
    Having,
    If,
    In,
    Index,
    Insert,
    Intersect,
    Into,
    Is,
    Join,
    Lcase,
    Like,
    Limit,
    Lower,
    NlsDateFormat,
    Not,
    Null,
    On,
    Or,
    Order,
    Pragma,
    Primary,
    References,
    Replace,
    Returning,
    Rollback,
    Select,
    Session,
    Set,
    Table,
    Trigger,
    Ucase,
    Union,
    Unique,
    Update,
    Upper,
    Using,
    Values,
    View,
    Where,
    Window,
    With,
};

struct WordFacts {
    Keyword keyword = Keyword::None;
    bool reserved = false; ///< the engine does not take the word as a plain name
};

/// Without regard to case.
WordFacts factsOf(std::string_view word);

/// Comparison of ASCII text without regard to case.
bool sameWord(std::string_view a, std::string_view b);

} // namespace desktopdb

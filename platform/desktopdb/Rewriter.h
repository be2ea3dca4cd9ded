// platform/desktopdb/Rewriter.h
#pragma once

#include "platform/desktopdb/Diagnostics.h"
#include "platform/desktopdb/Lexer.h"
#include "platform/desktopdb/LikePattern.h"
#include "platform/desktopdb/Value.h"

#include <string>
#include <string_view>
#include <vector>

namespace desktopdb {

/// What a statement does, as far as the driver treats it differently.
enum class StatementKind {
    Query,        ///< gives rows
    Change,       ///< inserts, updates or deletes
    Define,       ///< changes the tables
    Transaction,  ///< BEGIN, COMMIT and their like, in words
    AlterSession, ///< sets how dates are written; never reaches the engine
    Other         ///< engine commands, passed on untouched
};

/// Tells which columns are declared as dates.
class DateColumns {
public:
    virtual ~DateColumns() = default;
    virtual bool isDate(std::string_view table, std::string_view column) const = 0;
    /// The same for the column at `position`, from 0.
    virtual bool isDateAt(std::string_view table, size_t position) const = 0;
};

struct RewriteRules {
    Dialect dialect = Dialect::Auto;
    std::string_view owner{};           ///< the one owner that is known; empty: any is taken
    bool dayFirstDates = false;         ///< eight digits for a date column are ddmmyyyy
    bool scanEscapes = true;            ///< whether {d '...'} and its like are read
    const DateColumns* dates = nullptr; ///< asked only with dayFirstDates
};

/// Where the engine's parameter takes its value from.
struct ParameterSource {
    int user = -1; ///< the application's parameter, from 0; -1: the literal
    ParameterForm form = ParameterForm::AsIs;
    Value literal{};
};

struct Rewritten {
    std::string sql; ///< what the engine gets; equal texts may share a compiled statement
    std::vector<ParameterSource> parameters;
    int userParameters = 0;
    StatementKind kind = StatementKind::Other;
    bool cacheable = false;
    bool dayFirstDates = false; ///< what AlterSession asks for
};

/// Puts one statement of either dialect into the engine's words: table owners, function names,
/// date literals, LIKE patterns and reserved column names; lifts literals that only carry a value
/// out into parameters. All other literals keep their bytes. False with `failure` set when the
/// text is no single statement or holds an impossible date.
bool rewrite(std::string_view sql, const RewriteRules& rules, Rewritten& result, Failure& failure);

/// A text parameter in the form that its place in the statement asks for. False with `failure`
/// set when it should be a date and is none.
bool applyForm(ParameterForm form, Dialect dialect, Value& value, Failure& failure);

} // namespace desktopdb

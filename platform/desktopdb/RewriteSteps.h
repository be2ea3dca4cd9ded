// platform/desktopdb/RewriteSteps.h
#pragma once

#include "platform/desktopdb/Rewriter.h"
#include "platform/desktopdb/TokenList.h"

namespace desktopdb {

/// A table as a statement names it.
struct TableUse {
    std::string_view table;
    std::string_view alias; ///< empty without one
};

// The steps, in the order in which they run. Each leaves what it does not know as it stands.

/// {d '...'}, {ts '...'}, {t '...'}, {fn ...}, {oj ...} and {escape '...'} without their braces.
void unwrapEscapes(TokenList& tokens);

/// GEO.WELLS becomes WELLS wherever a table is named, GEO.WELLS.col becomes WELLS.col.
/// Gives the tables that the statement names.
std::vector<TableUse> resolveOwners(
    TokenList& tokens, StatementKind kind, std::string_view knownOwner);

/// Reserved words that stand where only a name can stand are bracketed.
void bracketReservedNames(TokenList& tokens, StatementKind kind);

/// UCASE and LCASE become upper and lower.
void renameFunctions(TokenList& tokens);

/// #yyyy-mm-dd# becomes 'yyyy-mm-dd'.
bool rewriteDateLiterals(TokenList& tokens, Failure& failure);

/// Texts of eight digits that are written into date columns or compared with them become
/// 'yyyy-mm-dd'; parameters there are marked.
bool rewriteDayFirstDates(TokenList& tokens, const std::vector<TableUse>& tables,
    const DateColumns& dates, Failure& failure);

/// LIKE patterns in the engine's form; parameters there are marked.
void rewriteLikePatterns(TokenList& tokens, Dialect dialect);

/// Writes the statement out, with the literals that only carry a value lifted into parameters
/// when the kind of statement gains by it.
void writeOut(const TokenList& tokens, Rewritten& result);

} // namespace desktopdb

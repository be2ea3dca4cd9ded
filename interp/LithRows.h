// interp/LithRows.h
#pragma once

#include <functional>
#include <string>

class IGDBase;
class IGDList;
class Well;

// The rows of interval lithology (ZRILITH) and of lithology qualifiers (ZRQLITH).

/// What rows of both tables have. Depths as they are written.
struct LithRow {
    long well_id;
    float top;
    float base;
    long lith_id;
};

/// A statement that inserts a row, up to the value of `lith_id`; `moreColumns` has the names of the
/// columns whose values the caller appends.
std::string insertLithRow(const char* table, const LithRow& row, const char* moreColumns = "");
/// A statement that deletes rows of a well, up to its condition on the top.
std::string deleteLithRows(const char* table, long well_id, float top);
/// The condition that a stored depth is `depth`, give or take a hundredth.
std::string isAbout(float depth);

/// A stored depth in the unit of the list, negated where the well says so.
float lithDepth(const IGDList& list, const Well& well, double metres);
/// What an `IGDList` with depths in `unit` stores of a record.
LithRow lithRow(const IGDList& list, const IGDBase& record, long lith_id, char unit, int negate);
/// Replaces the rows of the list's well by those that `insertOf` has statements for, without
/// committing. False as soon as one fails, which was reported.
bool replaceLithRows(const char* table, const IGDList& list,
    const std::function<std::string(const IGDBase& record)>& insertOf);

// app/shell/ZoneConflicts.h
#pragma once

#include "interp/IGDList.h"

#include <optional>
#include <string>
#include <vector>

class IGDZone;
class Well;

/// Two records of one list that cannot stand beside each other.
struct ZoneConflict {
    const IGDBase* first; ///< in the order of the list
    const IGDBase* second;
    int kind; ///< -1: they overlap; -2: their shared boundary has two qualities
};

/// Every such pair of the list, once. Each record is asked against each other one in both
/// directions, since the check is not symmetric.
std::vector<ZoneConflict> conflictsOf(const IGDList& list);

/// The first conflict that `record`, which is in no list, would have in this one, as its `first`;
/// `exclude` (null: none) is not looked at. Asked in both directions.
std::optional<ZoneConflict> conflictWith(
    const IGDList& list, IGDBase& record, const IGDBase* exclude);

/// 1 in a section, which is measured upwards and has its records at negated depths, else 0.
int isSection(const Well& well);

/// In words, with depths in the list's unit, negated when `negate` is not 0, and qualities:
/// "overlap from 100.00 to 120.00", "meet at 100.00, which is Confident above and Fault below".
std::string conflictText(const ZoneConflict& conflict, int negate);

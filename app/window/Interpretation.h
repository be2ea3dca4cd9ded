// app/window/Interpretation.h
#pragma once

#include "app/window/RecordPane.h"
#include "interp/IGDList.h"

#include <memory>

// What the tables of a well's interpretation have in common, and these tables.

inline constexpr int kWidestRank = 1;
inline constexpr int kFinestRank = 8;

/// The records of one type and of one rank (0: all) of an interpretation, depths in `units`,
/// without those whose samples the well has not got, which is reported.
std::unique_ptr<IGDList> interpretationOf(
    Well& well, int igd_type, char units, long interp_id, int rank = 0);

/// The two depths of a record of the well with two decimals, as its samples are shown: those of a
/// section come negated.
QString topText(const IGDBase& record, const Well& well);
QString baseText(const IGDBase& record, const Well& well);

/// A depth that is in the units to show already: 0 is a depth and not a missing one.
QString recordDepthText(float depth);

/// A boundary quality in words; the missing text when it is none.
QString qualityText(int quality);

/// Palaeoenvironments.
RecordKind environments();
/// Casing shoes, seismic markers and picks, each by depth.
RecordKind markers();

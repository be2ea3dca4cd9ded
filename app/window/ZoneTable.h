// app/window/ZoneTable.h
#pragma once

#include "app/window/RecordPane.h"

/// The columns of the zones of a well.
std::vector<WellColumn> zoneColumns();

/// The zones of one type and of one rank (0: all) of a well, with depths in `units`. Those that
/// cannot stand beside each other within their rank are marked.
std::vector<RecordRow> zoneRows(Well& well, int igd_type, int rank, char units, long interp_id);

/// The name of a rank of zones; empty for one that the type has not got.
QString zoneRankName(int igd_type, int rank);

// app/shell/InterpretationVersions.h
#pragma once

#include <vector>

/// The numbers of the interpretations (`interp_id`) that the well has zones, environments or picks
/// of, ascending; the default one, 0, is always among them. A failed statement is reported and
/// leaves out what it would have found.
std::vector<long> interpretationVersions(long well_id);

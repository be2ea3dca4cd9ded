// bench/well_load/LoadedWell.h
#pragma once

#include "bench/well_load/Statements.h"

class Well;

/// Loads samples, details and occurrences of all disciplines of the well on the session.
void loadWhole(Well& well, long id);

/// Adds the fields of all objects to the hash, as the rows have them that they were read from.
void hashObjects(Well& well, HashedValues& values);

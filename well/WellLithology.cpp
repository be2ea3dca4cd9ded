// well/WellLithology.cpp
#include "well/Well.h"

#include "db/Session.h"

int Well::HasLithologyIntervals() const { return !lithology.isEmpty(); }

void Well::SaveLithologyIntervals()
{
    for (const Litho* interval : lithology)
        interval->save();
    dbCommit();
}

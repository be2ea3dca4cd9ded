// interp/SQPick.h
#pragma once

#include "interp/Surface.h"
#include "util/OwningList.h"

class Sample;
class Well;

/// A surface that was found in a well, at a sample.
struct SQPick {
    /// That of the sample, in metres; without one below everything.
    float depth() const;

    long surface_id = 0;
    long samp_id = 0;
    const Sample* sample = nullptr; ///< the well's; null when it has not got it
    std::string inf;
    int bnd = 0; ///< boundary quality
    char qualifier = '\0';
    Surface surface;
};

/// Picks from the shallowest sample to the deepest; those of equal depth in the order in which the
/// database gave them, those without a sample at the end. Owns them.
using SQPickList = OwningList<SQPick>;

/// Replaces what is in the list by the picks of an interpretation, each with its surface; samples
/// are looked for among those that the well has got. False after a reported failure, which leaves
/// the list; one of a surface leaves that pick without.
bool loadPicks(SQPickList& list, const Well& well, long interp_id);

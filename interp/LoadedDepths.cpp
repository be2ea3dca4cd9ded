// interp/LoadedDepths.cpp
#include "interp/LoadedDepths.h"

#include "db/Units.h"
#include "interp/IGDList.h"
#include "well/Well.h"

int negates(const Well& well) { return well.type == 'O'; }

float depthOfSample(const IGDList& list, Well& well, long samp_id)
{
    return well.samples.DepthOf(list.well_id(), samp_id, list.unit(), negates(well), 0);
}

float depthFromMetres(const IGDList& list, double metres)
{
    return fromMetres(static_cast<float>(metres), list.unit());
}

// well/EVt.cpp
#include "well/EVt.h"

#include "dict/EVdictList.h"
#include "dict/EventLabels.h"
#include "well/Sample.h"
#include "well/SampleList.h"

namespace {

Sample* findOrRead(SampleList& samples, long well_id, long samp_id)
{
    if (Sample* known = samples.FindById(samp_id))
        return known;
    auto* read = new Sample(well_id, samp_id);
    samples.InsertOrdered(read, 'W');
    return read;
}

} // namespace

EVt::EVt(long well_id, long interpId, long evId, char evKind, long samp_id, SampleList& samples,
    EVdictList& dictionary)
    : interp_id(interpId)
    , ev_id(evId)
    , sample(findOrRead(samples, well_id, samp_id))
    , entry(::findOrRead(dictionary, evId))
    , kind(evKind)
    , modified(Date::Today())
{
}

void EVt::label(char* out) const { eventLabel(out, kind, entry->nameView()); }

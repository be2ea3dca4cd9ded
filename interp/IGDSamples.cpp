// interp/IGDSamples.cpp
#include "interp/IGDList.h"

#include "db/ErrorReporter.h"
#include "db/ItemList.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <unordered_set>

namespace {

bool hasBoth(const SampleList& samples, const SampledRecords::Ends& ends)
{
    return samples.FindById(ends.top_id) && samples.FindById(ends.base_id);
}

/// In metres, with the shift, whatever the list shows.
const char* depthText(const Well& well, long samp_id)
{
    const Sample* sample = well.samples.FindById(samp_id);
    return sample ? sample->DepthLabel('M', 0, 1, 0, 1, 0) : "no sample";
}

/// Items with identifiers of which each comes in once.
class References {
public:
    explicit References(ItemList& items)
        : items_(items)
    {
        for (const Item* item : items)
            known_.insert(item->id);
    }
    /// Whether the identifier is to be added now.
    bool isNew(long id) { return known_.insert(id).second; }
    void add(long id, const char* text) { items_.addNew(static_cast<int>(id), text); }

private:
    ItemList& items_;
    std::unordered_set<long> known_;
};

} // namespace

void IGDList::removeMissingSamples(const Well* well)
{
    const SampledRecords* sampled = igdKind().sampled;
    if (!well || !sampled)
        return;
    std::string removed;
    Walk walk(*this);
    while (const IGDBase* record = walk.next()) {
        if (hasBoth(well->samples, sampled->ends(*record)))
            continue;
        removed += sampled->heading + sampled->name(*record);
        removeAt(walk.node());
        delete record;
    }
    if (!removed.empty())
        reportError(
            std::string("Warning: interval(s) with missing sample(s) were removed, for well :")
            + well->GetName() + removed + "\nCheck and fix data using IGD");
}

void IGDList::collectReferences(
    const Well& well, ItemList& sampleItems, ItemList& schemeItems) const
{
    const SampledRecords* sampled = igdKind().sampled;
    if (!sampled)
        return;
    References samples(sampleItems), schemes(schemeItems);
    for (const IGDBase* record : *this) {
        const long scheme = sampled->scheme(*record);
        if ((sampled->anyScheme || scheme > 0) && schemes.isNew(scheme))
            schemes.add(scheme, sampled->schemeMark);
        const auto [top_id, base_id] = sampled->ends(*record);
        for (const long samp_id : {top_id, base_id}) {
            if (samples.isNew(samp_id))
                samples.add(samp_id, depthText(well, samp_id));
        }
    }
}

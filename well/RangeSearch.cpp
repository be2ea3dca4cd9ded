// well/RangeSearch.cpp
#include "well/RangeSearch.h"

#include "well/DetailsWalk.h"
#include "well/SampleList.h"

namespace {

constexpr int kTop = 1;
// Beyond every well, so that any sample beats it.
constexpr float kNoDepth = 99999.0f;

} // namespace

void RangeSearch::want(long spec_id)
{
    const Best none{nullptr, query_.mode == kTop ? kNoDepth : -kNoDepth};
    wanted_.try_emplace(spec_id, Found{none, none});
}

void RangeSearch::run(const SampleList& samples)
{
    for (Sample* s : samples) {
        const float depth = s->GetDepth('M', 0, 1);
        if (isCandidate(*s, depth))
            look(*s, depth);
    }
}

Sample* RangeSearch::sampleOf(long spec_id) const
{
    const Found& found = wanted_.at(spec_id);
    return found.main.sample ? found.main.sample : found.fallback.sample;
}

bool RangeSearch::isCandidate(const Sample& s, float depth) const
{
    return (!query_.useWindow || query_.window.holdsBelowTop(depth))
        && (!query_.requireAnalyst || s.HasAnalyst(query_.analyst))
        && (s.GetTypeBit() & query_.typeMask) != 0;
}

void RangeSearch::look(Sample& s, float depth)
{
    for (const Smpdtl* record : RecordsOf(s, query_.disc, query_.analyst)) {
        for (const Fssabnd* o : record->occurrences) {
            const auto taxon = wanted_.find(o->spec_id);
            if (taxon == wanted_.end())
                continue;
            if (countsForRange(*o, query_.mode, query_.exclude))
                compete(taxon->second.main, s, depth);
            else if (countsForRange(*o, query_.mode, query_.fallbackExclude))
                compete(taxon->second.fallback, s, depth);
        }
    }
}

void RangeSearch::compete(Best& best, Sample& s, float depth) const
{
    if (query_.mode == kTop ? depth < best.depth : depth > best.depth)
        best = {&s, depth};
}

Sample* SampleList::FindRangeSample(long spec_id, int mode, int exclude, long typeMask, char disc,
    int fallbackExclude, int useWindow, float top, float base, int requireAnalyst,
    const char* analyst) const
{
    RangeSearch search({mode, exclude, typeMask, disc, fallbackExclude, useWindow,
        DepthWindow(top, base), requireAnalyst, analyst});
    search.want(spec_id);
    search.run(*this);
    Sample* s = search.sampleOf(spec_id);
    if (s)
        s->MarkRange(spec_id, mode, exclude, disc);
    return s;
}

int SampleList::HasOccurrenceInRange(
    long spec_id, char disc, const char* analyst, float top, float base) const
{
    constexpr int kAnyOccurrence = 3;
    const DepthWindow window(top, base);
    for (const Sample* s : *this) {
        if (window.holds(s->GetDepth('M', 0, 1))
            && s->HasTaxon(spec_id, kAnyOccurrence, 0, disc, analyst, 0))
            return 1;
    }
    return 0;
}

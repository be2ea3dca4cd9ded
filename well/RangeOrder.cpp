// well/RangeOrder.cpp
#include "well/Well.h"

#include "db/Units.h"
#include "taxonomy/TaxonList.h"
#include "well/RangeSearch.h"
#include "well/Sample.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace {

enum Mode { kByTop = 1, kByBase = 2, kTops = 3, kBases = 4, kAsListed = 5 };

constexpr long kEveryType = -1;
constexpr float kNoDepth = 99999.0f;

struct Ranked {
    Taxon* taxon;
    float depth; ///< metres; `kNoDepth`, negative except by tops, without a sample
};

/// In a well that runs deepest first the first appearance is met first.
int mirrored(int mode)
{
    switch (mode) {
    case kByTop:
        return kByBase;
    case kByBase:
        return kByTop;
    case kTops:
        return kBases;
    case kBases:
        return kTops;
    default:
        return mode;
    }
}

/// Each taxon with the depth of its range sample, whose occurrences are marked.
std::vector<Ranked> rankedTaxa(
    const SampleList& samples, const TaxonList& taxa, int mode, const RangeQuery& query)
{
    RangeSearch search(query);
    for (const Taxon* taxon : taxa)
        search.want(taxon->spec_id());
    search.run(samples);
    std::vector<Ranked> ranked;
    for (Taxon* taxon : taxa) {
        Sample* s = search.sampleOf(taxon->spec_id());
        if (s)
            s->MarkRange(taxon->spec_id(), query.mode, query.exclude, query.disc);
        const float none = mode == kByTop ? kNoDepth : -kNoDepth;
        ranked.push_back({taxon, s ? s->GetDepth('M', 0, 0) : none});
    }
    return ranked;
}

void sortByDepth(std::vector<Ranked>& ranked, int mode)
{
    if (mode == kByTop)
        std::ranges::stable_sort(ranked, std::less(), &Ranked::depth);
    else if (mode == kByBase)
        std::ranges::stable_sort(ranked, std::greater(), &Ranked::depth);
}

void listAs(TaxonList& taxa, const std::vector<Ranked>& ranked)
{
    while (!taxa.isEmpty())
        taxa.pop();
    for (const Ranked& each : ranked)
        taxa.push(each.taxon); // the first one takes the cursor
}

int leadingWithSample(const std::vector<Ranked>& ranked, int mode)
{
    constexpr float kDeepest = kNoDepth - 1;
    const auto without = std::ranges::find_if(ranked, [mode](const Ranked& each) {
        return mode == kByTop ? each.depth >= kDeepest : each.depth < -kDeepest;
    });
    return static_cast<int>(without - ranked.begin());
}

} // namespace

int Well::RangeOrder(TaxonList& taxa, int mode, char disc, int exclude, int useWindow, float top,
    float base, char c, int requireAnalyst, const char* analyst)
{
    if (type == 'O') {
        mode = mirrored(mode);
        const float upper = top;
        top = -base;
        base = -upper;
    }
    const TaxonList::RangeRequest request{mode, well_id, exclude, disc};
    if (taxa.lastRangeRequest == request)
        return taxa.count();
    taxa.lastRangeRequest = request;
    taxa.reset();
    if (mode == kAsListed || taxa.count() < 2)
        return taxa.count();
    const int end = mode == kByTop || mode == kTops ? kByTop : kByBase;
    std::vector<Ranked> ranked = rankedTaxa(samples, taxa, mode,
        {end, exclude, kEveryType, disc, !exclude, useWindow,
            DepthWindow(toMetres(top, c), toMetres(base, c)), requireAnalyst, analyst});
    if (mode == kByTop || mode == kByBase) {
        sortByDepth(ranked, mode);
        listAs(taxa, ranked);
    }
    return leadingWithSample(ranked, mode);
}

// well/SampleOccurrences.cpp
#include "db/ErrorReporter.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TaxonList.h"
#include "well/DetailsWalk.h"
#include "well/Sample.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <ostream>
#include <unordered_map>
#include <unordered_set>

namespace {

constexpr const char* kNoDetails = "Null sample details";

/// The last occurrence of the taxon, or null.
Fssabnd* lastOf(const FssList& occurrences, long spec_id)
{
    FssList::Walk walk(occurrences, GList::Order::BackToFront);
    Fssabnd* o = walk.next();
    while (o && o->spec_id != spec_id)
        o = walk.next();
    return o;
}

/// Where the taxa of some occurrences stand in a list: the list may be that of a well and much
/// longer than these, so it is walked once and nothing is kept for taxa that are not here.
class Standing {
public:
    Standing(const std::vector<Fssabnd*>& occurrences, const TaxonList& taxa)
    {
        for (const Fssabnd* o : occurrences)
            places_.try_emplace(o->spec_id, kMissing);
        int place = 0;
        for (const Taxon* taxon : taxa) {
            const auto at = places_.find(taxon->spec_id());
            if (at != places_.end() && at->second == kMissing)
                at->second = place;
            ++place;
        }
    }
    int of(const Fssabnd* o) const { return places_.at(o->spec_id); }

private:
    static constexpr int kMissing = std::numeric_limits<int>::max();
    std::unordered_map<long, int> places_;
};

} // namespace

void Sample::AddOccurrence(Fssabnd* f, char disc, const char* analyst, int markChanged)
{
    std::unique_ptr<Fssabnd> owned(f);
    Smpdtl* record = FindDetails(disc, analyst);
    if (!record) {
        reportFatal(std::string("Warning: cannot add taxonocc records to null analyst for sample: ")
            + DepthLabelInReports());
        return;
    }
    record->occurrences.push(owned.release());
    if (markChanged)
        occSaved[discIndex(disc)] = 0;
}

void Sample::ClearOccurrences(char disc, const char* analyst)
{
    Smpdtl* record = FindDetails(disc, analyst);
    if (!record) {
        reportError(kNoDetails);
        return;
    }
    record->occurrences.destroyAll();
    record->occComplete = 0;
    occSaved[discIndex(disc)] = 1;
}

int Sample::CountOccurrences(char disc, const char* analyst) const
{
    int total = 0;
    for (const Smpdtl* record : details) {
        if (record->disc == disc && record->isBy(orEmpty(analyst)))
            total += record->occurrences.count();
    }
    return total;
}

void Sample::PrintOccurrences(char disc, const char* analyst, std::ostream& stream) const
{
    const Smpdtl* record = FindDetails(disc, analyst);
    if (!record) {
        reportError(kNoDetails);
        return;
    }
    for (const Fssabnd* o : record->occurrences)
        stream << "\n" << o->Text();
}

int Sample::HasTaxon(
    long spec_id, int mode, int exclude, char disc, const char* analyst, int suspectOnly) const
{
    const auto counts = [=](const Fssabnd* o) {
        if (o->spec_id != spec_id)
            return false;
        return suspectOnly ? o->isReworked() || o->isCaved() : countsForRange(*o, mode, exclude);
    };
    for (const Smpdtl* record : RecordsOf(*this, disc, analyst)) {
        if (std::any_of(record->occurrences.begin(), record->occurrences.end(), counts))
            return 1;
    }
    return 0;
}

void Sample::MarkRange(long spec_id, int mode, int exclude, char disc)
{
    for (const Smpdtl* record : RecordsOf(*this, disc, nullptr)) {
        for (Fssabnd* o : record->occurrences) {
            if (o->spec_id == spec_id && countsForRange(*o, mode, exclude))
                o->rangeMark = mode <= 2;
        }
    }
}

void Sample::CollectTaxa(char disc, TaxonList& taxa) const
{
    for (const Smpdtl* record : RecordsOf(*this, disc, nullptr)) {
        for (const Fssabnd* o : record->occurrences) {
            if (taxa.contains(o->spec_id))
                continue;
            if (taxa.sortMode != 0)
                taxa.insertSorted(new Taxon(o->spec_id), 0);
            else
                taxa.push(new Taxon(o->spec_id));
        }
    }
}

void Sample::CollectSpecIds(char disc, long* ids, int* count) const
{
    // The entries may be those of a well, far more than this sample has: they are not indexed here.
    std::vector<long> found;
    std::unordered_set<long> missing;
    for (const Smpdtl* record : RecordsOf(*this, disc, nullptr)) {
        for (const Fssabnd* o : record->occurrences) {
            if (missing.insert(o->spec_id).second)
                found.push_back(o->spec_id);
        }
    }
    for (int i = 0; i < *count; ++i)
        missing.erase(ids[i]);
    for (const long spec_id : found) {
        if (missing.contains(spec_id))
            ids[(*count)++] = spec_id;
    }
}

void Sample::SortOccurrences(char disc, const char* analyst, const TaxonList& taxa, int byCount)
{
    Smpdtl* record = firstRecordOf(*this, disc, analyst);
    if (!record)
        return;
    std::vector<Fssabnd*> order(record->occurrences.begin(), record->occurrences.end());
    const Standing standing(order, taxa);
    std::ranges::stable_sort(order, {}, [&](const Fssabnd* o) { return standing.of(o); });
    if (byCount)
        std::ranges::stable_sort(
            order, std::greater(), [disc](const Fssabnd* o) { return o->CountValue(disc); });
    while (!record->occurrences.isEmpty())
        record->occurrences.pop();
    for (Fssabnd* o : order)
        record->occurrences.push(o); // the first one takes the cursor
}

void Sample::ReplaceTaxon(char disc, const char* analyst, long oldSpec, long newSpec)
{
    Smpdtl* record = firstRecordOf(*this, disc, analyst);
    Fssabnd* old = record && oldSpec != newSpec ? lastOf(record->occurrences, oldSpec) : nullptr;
    if (!old)
        return;
    Fssabnd* other = lastOf(record->occurrences, newSpec);
    if (!other) {
        old->spec_id = newSpec;
        old->saved = 0;
        return;
    }
    other->Merge(*old);
    other->saved = 0;
    record->occurrences.destroyIf([old](const Fssabnd& o) { return &o == old; });
}

int Sample::HasAbundanceText(char disc, const char* analyst) const
{
    const Smpdtl* record = firstRecordOf(*this, disc, analyst);
    return record
        && std::any_of(record->occurrences.begin(), record->occurrences.end(),
            [](const Fssabnd* o) { return !o->abund.empty(); });
}

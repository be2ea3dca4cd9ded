// well/WellDisciplines.cpp
#include "well/Well.h"

#include "taxonomy/Disciplines.h"
#include "taxonomy/TaxonList.h"
#include "well/DetailsWalk.h"
#include "well/RangeSearch.h"

#include <unordered_set>

namespace {

std::unordered_set<long> taxaIn(
    const DepthWindow& window, const SampleList& samples, char disc, const char* analyst)
{
    std::unordered_set<long> taxa;
    for (const Sample* s : samples) {
        if (!window.holds(s->GetDepth('M', 0, 1)))
            continue;
        for (const Smpdtl* record : RecordsOf(*s, disc, analyst)) {
            for (const Fssabnd* o : record->occurrences)
                taxa.insert(o->spec_id);
        }
    }
    return taxa;
}

} // namespace

void Well::UnloadDiscipline(char disc, const char* analyst)
{
    for (Sample* s : samples)
        s->RemoveDetails(disc, analyst);
    detailsLoaded[discIndex(disc)] = 0;
    occurrencesLoaded[discIndex(disc)] = 0;
}

void Well::ChangeDiscipline(char oldDisc, char newDisc, const char* analyst)
{
    for (Sample* s : samples)
        s->ChangeDiscipline(oldDisc, newDisc, analyst);
}

void Well::CollectTaxa(char disc, TaxonList& taxa) const
{
    for (const Sample* s : samples)
        s->CollectTaxa(disc, taxa);
}

int Well::TaxaInWindow(
    TaxonList& from, TaxonList& to, char disc, const char* analyst, float top, float base)
{
    const auto present = taxaIn(DepthWindow(top, base), samples, disc, analyst);
    int added = 0;
    for (const Taxon* taxon : from) {
        if (to.contains(taxon->spec_id()) || !present.contains(taxon->spec_id()))
            continue;
        to.push(new Taxon(*taxon));
        ++added;
    }
    return added;
}

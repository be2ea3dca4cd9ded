// tests/taxonomy/PlainTaxonOrder.h
#pragma once

#include "taxonomy/Taxon.h"
#include "util/GList.h"

#include <cstring>
#include <strings.h>
#include <vector>

/// The orderings of a taxon list as plain walks and passes over a list, one entry after the other:
/// what the list's faster ways must agree with.
namespace plain {

inline int names(const Taxon& a, const Taxon& b)
{
    if (const int genus = strcasecmp(a.genus(), b.genus()))
        return genus;
    if (const int species = strcasecmp(a.species(), b.species()))
        return species;
    return strcasecmp(a.subspecies(), b.subspecies());
}

inline int bySpecies(const Taxon& a, const Taxon& b)
{
    if (const int species = strcasecmp(a.species(), b.species()))
        return species;
    return strcasecmp(a.genus(), b.genus());
}

inline int insertSorted(GList& list, int mode, Taxon* taxon)
{
    int compared = 0;
    GList::Walk walk(list);
    while (const auto* entry = static_cast<const Taxon*>(walk.next())) {
        ++compared;
        const int category = std::strcmp(entry->category(), taxon->category());
        const bool sameCategory = strcasecmp(entry->category(), taxon->category()) == 0;
        const bool behind = mode == 1 ? names(*entry, *taxon) > 0
            : mode == 3               ? bySpecies(*entry, *taxon) > 0
                                      : category > 0 || (sameCategory && names(*entry, *taxon) > 0);
        if (behind) {
            list.insertAt(walk.node(), taxon);
            return compared;
        }
    }
    list.push(taxon);
    return compared;
}

inline bool sortsAfter(int mode, const Taxon& a, const Taxon& b)
{
    const int category = std::strcmp(a.category(), b.category());
    switch (mode) {
    case 1:
        return names(a, b) > 0;
    case 3:
        return bySpecies(a, b) > 0;
    case 4:
        return a.sipm_code > b.sipm_code;
    default:
        return category > 0 || (category == 0 && names(a, b) > 0);
    }
}

inline void sort(GList& list, int mode)
{
    for (bool moved = true; moved;) {
        moved = false;
        list.reset();
        const Taxon* before = nullptr;
        while (auto* taxon = static_cast<Taxon*>(list.next())) {
            if (before && sortsAfter(mode, *before, *taxon)) {
                list.moveUp();
                moved = true;
            }
            before = taxon;
        }
    }
}

inline std::vector<long> ids(const GList& list)
{
    std::vector<long> ids;
    GList::Walk walk(list);
    while (const auto* taxon = static_cast<const Taxon*>(walk.next()))
        ids.push_back(taxon->spec_id());
    return ids;
}

} // namespace plain

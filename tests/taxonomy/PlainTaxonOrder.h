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

inline int compare(const Taxon& a, const Taxon& b, const std::vector<int>& slots)
{
    int difference = 0;
    for (std::size_t i = 0; difference == 0 && i < slots.size(); ++i)
        difference = strcasecmp(a.field(slots[i]), b.field(slots[i]));
    return difference;
}

/// Whether `a` sorts after `b`. Insertion takes categories that differ in letter case for equal.
inline bool sortsAfter(int mode, const Taxon& a, const Taxon& b, bool inserting)
{
    if (mode == 3)
        return compare(a, b, {slot::species, slot::genus}) > 0;
    if (mode == 4 && !inserting)
        return a.sipm_code > b.sipm_code;
    const int names = compare(a, b, {slot::genus, slot::species, slot::subspecies});
    const int category = mode == 1 ? 0 : std::strcmp(a.category(), b.category());
    const bool same = category == 0 || (inserting && compare(a, b, {slot::category}) == 0);
    return category > 0 || (same && names > 0);
}

inline int insertSorted(GList& list, int mode, Taxon* taxon)
{
    int compared = 0;
    GList::Walk walk(list);
    while (const auto* entry = static_cast<const Taxon*>(walk.next())) {
        ++compared;
        if (sortsAfter(mode, *entry, *taxon, true))
            break;
    }
    list.insertAt(walk.node(), taxon);
    return compared;
}

inline void sort(GList& list, int mode)
{
    for (bool moved = true; moved;) {
        moved = false;
        list.reset();
        const Taxon* before = nullptr;
        while (auto* taxon = static_cast<Taxon*>(list.next())) {
            if (before && sortsAfter(mode, *before, *taxon, false)) {
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

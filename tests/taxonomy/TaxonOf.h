// tests/taxonomy/TaxonOf.h
#pragma once

#include "taxonomy/Taxon.h"

#include <string>
#include <utility>
#include <vector>

/// Slot numbers with their texts.
using Slots = std::vector<std::pair<int, std::string>>;

inline Taxon taxonOf(const Slots& slots, short year = 0)
{
    Taxon taxon;
    for (const auto& [number, text] : slots)
        taxon.setField(number, text);
    taxon.year = year;
    return taxon;
}

/// The slots that are not empty.
inline Slots slotsOf(const Taxon& taxon)
{
    Slots slots;
    for (int number = 0; number < slot::count; ++number) {
        if (taxon.has(number))
            slots.emplace_back(number, taxon.field(number));
    }
    return slots;
}

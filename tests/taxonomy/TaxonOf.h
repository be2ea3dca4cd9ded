// tests/taxonomy/TaxonOf.h
#pragma once

#include "taxonomy/Taxon.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

/// Slot numbers with their texts.
inline Taxon taxonOf(const std::vector<std::pair<int, std::string>>& slots)
{
    Taxon taxon;
    for (const auto& [number, text] : slots)
        taxon.setField(number, text);
    return taxon;
}

/// The keys of the slots, in their order, in texts such as "g:Alphina|s:betana|s>:ss.": category,
/// genus, subgenus (u), species, subspecies (b) and author, with the qualifier in front of a name
/// (<) and the one behind it (>).
inline constexpr std::array<const char*, slot::count> kSlotKeys = {
    "c", "<g", "g", "g>", "<u", "u", "u>", "<s", "s", "s>", "<b", "b", "b>", "a"};

inline Taxon taxonOf(const std::string& slots, short year = 0)
{
    Taxon taxon;
    std::istringstream in(slots);
    for (std::string key, text; std::getline(in, key, ':') && std::getline(in, text, '|');) {
        const auto* found = std::find(kSlotKeys.begin(), kSlotKeys.end(), key);
        taxon.setField(static_cast<int>(found - kSlotKeys.begin()), text);
    }
    taxon.year = year;
    return taxon;
}

/// The slots that are not empty.
inline std::string slotsOf(const Taxon& taxon)
{
    std::string slots;
    for (int number = 0; number < slot::count; ++number) {
        if (taxon.has(number))
            slots += (slots.empty() ? "" : "|") + std::string(kSlotKeys[number]) + ":"
                + taxon.field(number);
    }
    return slots;
}

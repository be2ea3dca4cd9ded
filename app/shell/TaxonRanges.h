// app/shell/TaxonRanges.h
#pragma once

#include "taxonomy/TaxonList.h"

#include <string>
#include <vector>

class Sample;
class Well;

/// An end of a taxon's range in a well and what speaks for it.
struct RangeEnd {
    const Sample* sample = nullptr; ///< null when the taxon has none
    /// The nearest examined sample beyond it in which the taxon was not found: the end lies between
    /// the two. Null when there is none.
    const Sample* absentFrom = nullptr;
    std::string why; ///< in words: which occurrences were passed over, or had to serve
};

struct TaxonRange {
    const Taxon* taxon = nullptr;
    RangeEnd top;
    RangeEnd base;
};

enum class Suspect { Counts, Excluded };

/// The taxa of a discipline of a loaded well in the order of their tops (`Well::RangeOrder`), with
/// their ranges, taxa without one behind. With Excluded tops avoid reworked and bases caved
/// occurrences while there are others. `taxa` is filled and owns the taxa.
std::vector<TaxonRange> taxonRanges(Well& well, char disc, Suspect suspect, TaxonList& taxa);

// app/window/OccurrenceTable.h
#pragma once

#include "app/shell/TaxonRanges.h"
#include "app/window/FindTexts.h"

#include <cstdint>
#include <set>
#include <span>
#include <string>
#include <vector>

/// The taxa that a discipline found in a well, in the order of their tops: reworked finds make no
/// top while there are others. Reading them asks the database for each.
struct FoundTaxa {
    FoundTaxa() = default;
    FoundTaxa(Well& well, char disc);

    TaxonList taxa;
    std::vector<TaxonRange> ranges; ///< point into `taxa` and the well
};

/// Which part of the finds of a well is shown.
struct FindChoice {
    char disc = 'M';
    std::string analyst;     ///< an analyst key; empty: all
    bool allSamples = false; ///< those as well that were not examined
};

/// Finds by sample and taxon, prepared so that a cell is found without a search. Points into the
/// well and the taxa.
class OccurrenceTable {
public:
    enum class Examined { No, Barren, Yes, NotLoaded };
    struct Row {
        const Sample* sample;
        int taxa; ///< found in it
        Examined examined;
    };

    OccurrenceTable() = default;
    /// The finds that are chosen. Taxa without one have no column.
    OccurrenceTable(const Well& well, const FoundTaxa& found, const FindChoice& choice);

    const std::vector<Row>& rows() const { return rows_; }
    const std::vector<const TaxonRange*>& columns() const { return columns_; }
    std::span<const Find> at(int row, int column) const
    {
        const auto cell =
            static_cast<std::size_t>(row) * columns_.size() + static_cast<std::size_t>(column);
        return std::span(finds_).subspan(first_[cell], first_[cell + 1] - first_[cell]);
    }

private:
    std::vector<Row> rows_;
    std::vector<const TaxonRange*> columns_;
    std::vector<Find> finds_;          ///< by row, then by column
    std::vector<std::uint32_t> first_; ///< per cell, and one behind the last
};

/// The keys of those who analysed samples of a well in a discipline.
std::set<std::string> analystsOf(const Well& well, char disc);
/// The disciplines that samples of a well have details of, in the order of their letters.
std::set<char> disciplinesOf(const Well& well);

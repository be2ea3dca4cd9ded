// store/OccurrenceWriter.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <string>

/// Columns of TAXONOCC beside what an occurrence is found by.
enum class OccurrenceColumn {
    Discipline,
    Abundance,
    Caved,
    Marker,
    Medium,
    Coarse,
    Fine,
    Preservation,
    Colour,
    Comments,
    Count
};

/// One taxon found in one sample by one analysis.
struct OccurrenceRecord {
    long wellId = 0;     ///< WELL_IDENT.well_id
    long sampleId = 0;   ///< SAMPLES.samp_id
    long specId = 0;     ///< SPECIES.spec_id
    long analysisId = 0; ///< ANALY_HDR.analy_id
    bool reworked = false;
    bool questionable = false;
    Row columns{static_cast<std::size_t>(OccurrenceColumn::Count)};

    void set(OccurrenceColumn column, std::optional<Value> value)
    {
        columns[static_cast<std::size_t>(column)] = std::move(value);
    }
};

/// Brings occurrences in. The table has no key; an occurrence is found by well, sample, taxon,
/// analysis, status and identification, as the core takes records for the same. Of several that
/// are alike all are changed.
class OccurrenceWriter {
public:
    explicit OccurrenceWriter(Writing writing);

    Outcome put(const OccurrenceRecord& record);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

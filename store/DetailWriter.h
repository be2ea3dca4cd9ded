// store/DetailWriter.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <string>

/// Columns of SMPDTL beside its key. The analyst key is derived from the analysis by the database.
enum class DetailColumn {
    WellId,
    Discipline,
    Picker,
    Source,
    Barren,
    Weight,
    Coarse,
    Medium,
    Fine,
    Notes,
    Proximal,
    Distal,
    Modified,
    Modifier,
    Count
};

/// What one analysis recorded about one sample.
struct DetailRecord {
    long sampleId = 0;   ///< SAMPLES.samp_id
    long analysisId = 0; ///< ANALY_HDR.analy_id
    Row columns{static_cast<std::size_t>(DetailColumn::Count)};

    void set(DetailColumn column, std::optional<Value> value)
    {
        columns[static_cast<std::size_t>(column)] = std::move(value);
    }
};

/// Brings the details of samples in, found by sample and analysis. A record that is new and does
/// not say whether the sample was barren says no. New and changed records carry day and user.
class DetailWriter {
public:
    explicit DetailWriter(Writing writing);

    Outcome put(const DetailRecord& record);
    /// Whether the database has the record.
    TableWriter::Found find(long sampleId, long analysisId);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

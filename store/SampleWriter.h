// store/SampleWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <optional>
#include <string>
#include <unordered_map>

/// A sample as it shall stand in the database. Depths are metres; no value is an absent depth.
struct SampleRecord {
    long wellId = 0; ///< WELL_IDENT.well_id
    std::optional<double> top;
    std::optional<double> base;
    std::string type;           ///< CU, SC, CO, OC or LOG
    std::string label;          ///< at most 15 bytes
    std::optional<Value> gridX; ///< not set: left as it is
    std::optional<Value> gridY;
};

/// The natural key of a sample within its well, as text: top, base, type and label. An absent depth
/// is completed from the other one, as the core completes it on reading; depths count to 0.1 mm.
std::string sampleKey(const SampleRecord& record);

/// Brings samples in, found by their natural key. Keeps the keys of the wells that it met.
class SampleWriter {
public:
    explicit SampleWriter(Writing writing);

    /// Inserts the sample, or changes what differs. `*sampId` is its identifier then.
    Outcome put(const SampleRecord& record, long* sampId);

    const std::string& error() const { return error_; }

private:
    struct Stored {
        long id;
        Row grid; ///< grid_x and grid_y
    };
    using WellSamples = std::unordered_map<std::string, Stored>;

    WellSamples* samplesOf(long wellId);
    bool readSamples(long wellId, WellSamples* out);
    Outcome insert(const SampleRecord& record, WellSamples& samples, long* sampId);
    Outcome update(const SampleRecord& record, Stored& stored);
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter samples_;
    IdAllocator ids_;
    Statement select_;
    std::unordered_map<long, WellSamples> wells_;
    std::string error_;
};

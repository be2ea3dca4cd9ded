// store/DepthWriters.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <optional>
#include <string>
#include <unordered_map>

// What stands at depths of a well. All depths are metres.

/// Brings points of the way of a deviated well in, found by their measured depth.
class SurveyWriter {
public:
    explicit SurveyWriter(Writing writing);

    Outcome put(long wellId, double measured, double vertical);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

struct CoreRecord {
    long wellId = 0;
    std::string number; ///< at most 20 bytes
    double top = 0;
    double base = 0;
    std::optional<Value> recovered; ///< Y or N; not set: left as it is
};

/// Brings cores in, found by their number.
class CoreWriter {
public:
    explicit CoreWriter(Writing writing);

    Outcome put(const CoreRecord& record);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

/// Finds the samples of wells by depth: the base of a sample or, without one, its top, as the core
/// takes it. The samples of a well are read when it is first asked for.
class SampleFinder {
public:
    /// The identifier of the first sample within 0.01 m of the depth, 0 without one; none when the
    /// database could not be asked (`error`).
    std::optional<long> at(long wellId, double depth);
    /// Tells of a sample that was added meanwhile.
    void add(long wellId, double depth, long sampleId);

    const std::string& error() const { return error_; }

private:
    using WellDepths = std::multimap<double, long>;

    WellDepths* of(long wellId);

    std::unordered_map<long, WellDepths> wells_;
    std::string error_;
};

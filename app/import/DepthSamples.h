// app/import/DepthSamples.h
#pragma once

#include "store/DepthWriters.h"
#include "store/SampleWriter.h"

#include <memory>
#include <optional>
#include <string>

struct KnownWell;

/// The samples that interpretations are placed at. Where a well has none at a depth, one of type
/// LOG is made, OC in an outcrop.
class DepthSamples {
public:
    explicit DepthSamples(Writing writing)
        : writing_(writing)
    {
    }

    /// The identifier of the sample at that depth [m]; the well must be stored. None: `error`.
    std::optional<long> at(const KnownWell& well, double depth);

    const std::string& error() const { return error_; }

private:
    SampleFinder finder_;
    Writing writing_;
    std::unique_ptr<SampleWriter> samples_; // asks the database when it is made
    std::string error_;
};

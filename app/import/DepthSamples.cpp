// app/import/DepthSamples.cpp
#include "app/import/DepthSamples.h"

#include "app/import/ImportContext.h"

std::optional<long> DepthSamples::at(const KnownWell& well, double depth)
{
    const auto found = finder_.at(well.id, depth);
    if (!found)
        error_ = finder_.error();
    if (!found || *found != 0)
        return found;
    SampleRecord sample;
    sample.wellId = well.id;
    sample.top = sample.base = depth;
    sample.type = well.type == 'O' ? "OC" : "LOG";
    long id = 0;
    if (!samples_)
        samples_ = std::make_unique<SampleWriter>(writing_);
    if (samples_->put(sample, &id) == Outcome::Failed) {
        error_ = samples_->error();
        return std::nullopt;
    }
    finder_.add(well.id, depth, id);
    return id;
}

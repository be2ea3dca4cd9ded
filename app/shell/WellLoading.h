// app/shell/WellLoading.h
#pragma once

#include "dict/EVdictList.h"
#include "well/Well.h"

#include <functional>
#include <string>
#include <vector>

/// One well with all that its loaders read, and the event dictionary that its events point into.
struct LoadedWell {
    explicit LoadedWell(long well_id)
        : well(well_id)
    {
    }
    EVdictList dictionary; // outlives the events
    Well well;
};

/// What one loader left.
struct LoadStep {
    std::string name; ///< what was read, as a user says it
    long count = 0;   ///< of it, now in the well
    double seconds = 0;
    std::vector<std::string> reports; ///< what the loader told and went on
};

/// Loads a well step by step, in the order that its loaders need: samples; details and occurrences
/// of each discipline that the well has; events of each interpretation; lithology of the samples;
/// cores. Between two steps the caller may show progress or leave off; what was loaded stays
/// usable.
class WellLoading {
public:
    /// Finds out what there is to load. Failures are reported and leave those steps out.
    explicit WellLoading(LoadedWell& loaded);

    std::size_t count() const { return steps_.size(); }
    std::size_t done() const { return next_; }
    bool finished() const { return next_ == steps_.size(); }
    /// What the next step reads. There must be one.
    const std::string& nextName() const { return steps_[next_].name; }
    /// Carries it out. A fatal failure ends the process.
    LoadStep next();

private:
    struct Step {
        std::string name;
        std::function<long()> load; ///< returns how many there are now
    };
    void addDisciplines();
    void addEvents();

    LoadedWell& loaded_;
    std::vector<Step> steps_;
    std::size_t next_ = 0;
};

/// What the database calls a discipline; "discipline M" when it has no name for the letter.
std::string disciplineName(char disc);

/// All steps. What they told, in order.
std::vector<LoadStep> loadAll(LoadedWell& loaded);

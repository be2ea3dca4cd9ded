// well/RangeSearch.h
#pragma once

#include <unordered_map>

class Sample;
class SampleList;

/// Depths that a search is limited to, metres. Stored depths differ in their last bits, so both
/// ends give way by 0.01.
class DepthWindow {
public:
    DepthWindow(float top, float base)
        : above_(double(top) - kMargin)
        , below_(double(base) + kMargin)
    {
    }
    bool holds(float depth) const { return depth >= above_ && depth <= below_; }
    /// The same without the upper end itself.
    bool holdsBelowTop(float depth) const { return depth > above_ && depth <= below_; }

private:
    static constexpr double kMargin = 0.01;
    double above_;
    double below_;
};

/// What `SampleList::FindRangeSample` is asked for, for any number of taxa.
struct RangeQuery {
    int mode;
    int exclude;
    long typeMask;
    char disc;
    int fallbackExclude;
    int useWindow;
    DepthWindow window;
    int requireAnalyst;
    const char* analyst;
};

/// Finds the samples in which the ranges of many taxa end, all in one pass over the occurrences.
/// Marks nothing.
class RangeSearch {
public:
    explicit RangeSearch(const RangeQuery& query)
        : query_(query)
    {
    }

    void want(long spec_id);
    void run(const SampleList& samples);
    /// Null when the wanted taxon has none.
    Sample* sampleOf(long spec_id) const;

private:
    /// The best candidate so far, which a later one must beat.
    struct Best {
        Sample* sample = nullptr;
        float depth;
    };
    struct Found {
        Best main;
        Best fallback;
    };

    bool isCandidate(const Sample& s, float depth) const;
    void look(Sample& s, float depth);
    void compete(Best& best, Sample& s, float depth) const;

    RangeQuery query_;
    std::unordered_map<long, Found> wanted_;
};

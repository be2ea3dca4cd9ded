// well/SampleIdIndex.h
#pragma once

#include "util/GList.h"

#include <unordered_map>

class Sample;

/// Finds samples of one list by identifier. Always gives what a walk from the front would find
/// first: made anew when the list or any sample's identifier has changed in a way it was not told
/// of. Identifier 0 is no key; asking for it is the caller's error.
class SampleIdIndex {
public:
    explicit SampleIdIndex(const TypedList<Sample>& list)
        : list_(list)
    {
    }

    /// Null when the list has none.
    Sample* find(long samp_id);

    /// Whether a change that comes now can be told with `added` or `removed` right afterwards.
    bool isCurrent() const;
    void added(Sample* s);
    void removed(const Sample* s);

private:
    void refresh();
    void noteState();

    const TypedList<Sample>& list_;
    std::unordered_map<long, Sample*> first_;
    bool repeated_ = false; ///< some identifier is in the list twice
    bool made_ = false;
    unsigned long revision_ = 0;
    unsigned long changes_ = 0;
};

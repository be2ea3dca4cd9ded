// well/SampleOrderIndex.h
#pragma once

#include "util/GList.h"

#include <cstddef>
#include <vector>

class Sample;

/// Finds where a sample belongs in one list by its depth: before the first sample that is deeper,
/// or, deepest first, before the first that is shallower. The list need not be in order. What is
/// kept per place is the furthest depth up to there, which only grows, so that a search can halve.
/// Made anew when the list, any sample's depth or the direction has changed in a way it was not
/// told of.
class SampleOrderIndex {
public:
    explicit SampleOrderIndex(const TypedList<Sample>& list)
        : list_(list)
    {
    }

    /// The place, counted from the front, that a sample at `depth` (metres) would go to.
    std::size_t placeOf(float depth, bool deepestFirst);
    /// The node at a place; null behind the last.
    GList::ListNode* nodeAt(std::size_t place) const;

    /// Whether an item that comes in now can be told with `added` right afterwards.
    bool isCurrent() const;
    /// `node` came in at `place`, which `placeOf` gave, or behind the last.
    void added(std::size_t place, GList::ListNode* node);
    std::size_t size() const { return places_.size(); }

private:
    struct Place {
        GList::ListNode* node;
        float reach; ///< the largest `key` from the front up to here
    };
    void refresh(bool deepestFirst);
    void noteState();
    float key(float depth) const { return deepestFirst_ ? -depth : depth; }
    float reachWith(std::size_t place, float depth) const;

    const TypedList<Sample>& list_;
    std::vector<Place> places_;
    bool deepestFirst_ = false;
    bool made_ = false;
    unsigned long revision_ = 0;
    unsigned long changes_ = 0;
};

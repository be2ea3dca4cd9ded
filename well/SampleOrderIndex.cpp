// well/SampleOrderIndex.cpp
#include "well/SampleOrderIndex.h"

#include "well/Sample.h"

#include <algorithm>
#include <limits>

namespace {

float orderDepth(const GList::ListNode* node)
{
    return static_cast<const Sample*>(node->item)->GetDepth('M', 0, 0);
}

} // namespace

std::size_t SampleOrderIndex::placeOf(float depth, bool deepestFirst)
{
    if (!isCurrent() || deepestFirst != deepestFirst_)
        refresh(deepestFirst);
    const auto further = std::upper_bound(places_.begin(), places_.end(), key(depth),
        [](float sought, const Place& place) { return place.reach > sought; });
    return static_cast<std::size_t>(further - places_.begin());
}

GList::ListNode* SampleOrderIndex::nodeAt(std::size_t place) const
{
    return place < places_.size() ? places_[place].node : nullptr;
}

bool SampleOrderIndex::isCurrent() const
{
    return made_ && revision_ == list_.revision() && changes_ == Sample::Depth::changes();
}

void SampleOrderIndex::added(std::size_t place, GList::ListNode* node)
{
    // The places behind reach further already, or there are none.
    const Place added{node, reachWith(place, orderDepth(node))};
    places_.insert(places_.begin() + static_cast<std::ptrdiff_t>(place), added);
    noteState();
}

void SampleOrderIndex::refresh(bool deepestFirst)
{
    deepestFirst_ = deepestFirst;
    places_.clear();
    for (auto at = list_.begin(); at != list_.end(); ++at)
        places_.push_back({at.node(), reachWith(places_.size(), orderDepth(at.node()))});
    made_ = true;
    noteState();
}

float SampleOrderIndex::reachWith(std::size_t place, float depth) const
{
    const float before =
        place == 0 ? -std::numeric_limits<float>::infinity() : places_[place - 1].reach;
    return std::max(before, key(depth));
}

void SampleOrderIndex::noteState()
{
    revision_ = list_.revision();
    changes_ = Sample::Depth::changes();
}

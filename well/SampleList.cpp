// well/SampleList.cpp
#include "well/SampleList.h"

#include "well/Sample.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string_view>

namespace {

// Floats of one depth differ in their last bits, more so after a passage through feet.
constexpr double kSameDepth = 0.001; // metres
constexpr double kNearDepth = 0.01;  // metres

class AtDepth {
public:
    AtDepth(float depth, const char* type, double width)
        : depth_(depth)
        , type_(type ? type : "")
        , width_(width)
    {
    }
    bool operator()(const Sample* s) const
    {
        return std::abs(double(s->GetDepth('M', 0, 0)) - double(depth_)) <= width_
            && (type_.empty() || s->type == type_);
    }

private:
    float depth_;
    std::string_view type_;
    double width_;
};

Sample* firstOf(const SampleList& list, const AtDepth& wanted)
{
    const auto found = std::find_if(list.begin(), list.end(), wanted);
    return found == list.end() ? nullptr : *found;
}

Sample* lastOf(const SampleList& list, const AtDepth& wanted)
{
    SampleList::Walk walk(list, GList::Order::BackToFront);
    Sample* s = walk.next();
    while (s && !wanted(s))
        s = walk.next();
    return s;
}

Sample* neighbour(const SampleList& list, const Sample* s, GList::Order direction)
{
    SampleList::Walk walk(list, direction);
    for (const Sample* at = walk.next(); at; at = walk.next()) {
        if (at == s)
            return walk.next();
    }
    return nullptr;
}

} // namespace

void SampleList::put(GList::ListNode* before, std::size_t place, Sample* s)
{
    const bool idsFollow = ids_.isCurrent();
    const bool orderFollows = order_.isCurrent();
    insertAt(before, s);
    if (idsFollow)
        ids_.added(s);
    if (orderFollows) {
        Walk fromBack(*this, Order::BackToFront);
        fromBack.next();
        order_.added(place, before ? before->older : fromBack.node());
    }
}

void SampleList::InsertOrdered(Sample* s, char wellType)
{
    const std::size_t place = order_.placeOf(s->GetDepth('M', 0, 0), wellType == 'O');
    put(order_.nodeAt(place), place, s);
}

void SampleList::TakeOut(const Sample* s)
{
    const bool idsFollow = ids_.isCurrent();
    reset();
    const Sample* at = next();
    while (at && at != s)
        at = next();
    if (!at)
        return;
    remove();
    if (idsFollow)
        ids_.removed(s);
}

Sample* SampleList::FindById(long samp_id) const
{
    if (samp_id != 0)
        return ids_.find(samp_id);
    const auto unsaved =
        std::find_if(begin(), end(), [](const Sample* s) { return s->samp_id == 0; });
    return unsaved == end() ? nullptr : *unsaved;
}

const char* SampleList::TypeOf(long samp_id) const
{
    const Sample* s = FindById(samp_id);
    return s ? s->GetType() : ""; // absent reads as empty, as a NULL column does
}

Sample* SampleList::Next(const Sample* s) const { return neighbour(*this, s, Order::FrontToBack); }

Sample* SampleList::Previous(const Sample* s) const
{
    return neighbour(*this, s, Order::BackToFront);
}

Sample* SampleList::FindAtDepth(float depth, const char* type) const
{
    return firstOf(*this, AtDepth(depth, type, kNearDepth));
}

Sample* SampleList::FindSameDepth(const Sample* s) const
{
    return firstOf(*this, AtDepth(s->GetDepth('M', 0, 0), s->GetType(), kSameDepth));
}

Sample* SampleList::FindOrAdd(float depth, const char* type, const char* defaultType)
{
    const AtDepth wanted(depth, type, kSameDepth);
    const bool typed = type && *type;
    if (Sample* found = typed ? firstOf(*this, wanted) : lastOf(*this, wanted))
        return found;
    auto* added = new Sample(0, depth, typed ? type : defaultType, 'M');
    put(nullptr, order_.size(), added);
    return added;
}

float SampleList::DepthOf(long well_id, long samp_id, char units, int negate, int withShift)
{
    if (const Sample* known = FindById(samp_id))
        return known->GetDepth(units, negate, withShift);
    auto read = std::make_unique<Sample>(well_id, samp_id);
    if (read->samp_id == 0)
        return 0;
    Sample* s = read.release();
    InsertOrdered(s, negate ? 'O' : 'W');
    return s->GetDepth(units, negate, withShift);
}

const char* SampleList::DepthLabelOf(long samp_id, char units) const
{
    const Sample* s = FindById(samp_id);
    return s ? s->DepthLabel(units, 0, 1, 0, 0, -1) : "no sample";
}

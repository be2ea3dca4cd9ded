// well/EventOrder.cpp
#include "well/EventOrder.h"

#include "dict/EVdict.h"
#include "util/TextUtil.h"
#include "well/EVt.h"
#include "well/Sample.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr double kSameDepth = 0.0001; // metres

const EVt& eventOf(const GList::ListNode* node) { return *static_cast<const EVt*>(node->item); }

bool isTopOrBase(const EVt* evt) { return evt->kind == 'F' || evt->kind == 'L'; }

} // namespace

EventOrder::Key EventOrder::keyOf(const EVt& evt, Rule rule)
{
    const float depth = evt.sample->GetDepth('M', 0, 0);
    return {
        rule.byName ? upperCased(evt.entry->nameView()) : "", rule.deepestFirst ? -depth : depth};
}

/// Whether the second, which does not come before the first, is at the same depth.
bool EventOrder::isNear(const Key& a, const Key& b)
{
    return a.name == b.name && double(b.depth) - double(a.depth) < kSameDepth;
}

EventOrder::Class EventOrder::classOf(char kind)
{
    if (kind == 'F')
        return BehindTop;
    return kind == 'L' ? BehindBase : BehindOther;
}

bool EventOrder::isIn(Class c, char kind) const
{
    if (c == All)
        return true;
    if (c == BehindOther)
        return kind == (rule_.basesFirst ? 'F' : 'L');
    const char placed = c == BehindTop ? 'F' : 'L';
    return rule_.basesFirst ? kind < placed : kind > placed;
}

std::size_t EventOrder::placeOf(const EVt& evt, Rule rule)
{
    if (!isCurrent(rule))
        refresh(rule);
    const Key key = keyOf(evt, rule);
    const Class c = classOf(evt.kind);
    const auto goesBehind = [&key, c](const Place& place) {
        const Key* sameKind = place.reach[c];
        return *place.reach[All] <= key
            && !(sameKind && (*sameKind > key || isNear(*sameKind, key)));
    };
    const auto place = std::partition_point(places_.begin(), places_.end(), goesBehind);
    return static_cast<std::size_t>(place - places_.begin());
}

GList::ListNode* EventOrder::nodeAt(std::size_t place) const
{
    return place < places_.size() ? places_[place].node : nullptr;
}

void EventOrder::added(std::size_t place, GList::ListNode* node)
{
    const Place added = placeWith(place, node);
    places_.insert(places_.begin() + static_cast<std::ptrdiff_t>(place), added);
    const Key& key = keys_.back();
    for (std::size_t c = All; c < Classes; ++c) {
        const auto reachesLess = [&key, c](const Place& behind) {
            return !behind.reach[c] || *behind.reach[c] < key;
        };
        if (added.reach[c] != &key)
            continue;
        for (std::size_t i = place + 1; i < places_.size() && reachesLess(places_[i]); ++i)
            places_[i].reach[c] = &key;
    }
    noteState();
}

/// What to keep for `node`, which stands at that place: its key is the last of all.
EventOrder::Place EventOrder::placeWith(std::size_t place, GList::ListNode* node)
{
    const EVt& evt = eventOf(node);
    const Key& key = keys_.emplace_back(keyOf(evt, rule_));
    Place added{node, {}};
    for (std::size_t c = All; c < Classes; ++c) {
        const Key* before = place == 0 ? nullptr : places_[place - 1].reach[c];
        const bool further = isIn(static_cast<Class>(c), evt.kind) && (!before || *before < key);
        added.reach[c] = further ? &key : before;
    }
    return added;
}

bool EventOrder::isCurrent(Rule rule) const
{
    return made_ && rule == rule_ && revision_ == list_.revision()
        && depthChanges_ == Sample::Depth::changes() && nameChanges_ == EVdict::changes();
}

void EventOrder::refresh(Rule rule)
{
    rule_ = rule;
    places_.clear();
    keys_.clear();
    for (auto at = list_.begin(); at != list_.end(); ++at)
        places_.push_back(placeWith(places_.size(), at.node()));
    made_ = true;
    noteState();
}

void EventOrder::noteState()
{
    revision_ = list_.revision();
    depthChanges_ = Sample::Depth::changes();
    nameChanges_ = EVdict::changes();
}

bool EventOrder::sort(std::vector<EVt*>& events, Rule rule)
{
    if (!std::all_of(events.begin(), events.end(), isTopOrBase))
        return false;
    std::vector<std::pair<Key, EVt*>> sorted;
    for (EVt* evt : events)
        sorted.emplace_back(keyOf(*evt, rule), evt);
    std::stable_sort(sorted.begin(), sorted.end(), [rule](const auto& a, const auto& b) {
        const bool kind =
            rule.basesFirst ? b.second->kind < a.second->kind : a.second->kind < b.second->kind;
        return a.first != b.first ? a.first < b.first : kind;
    });
    const auto blurred = [](const auto& a, const auto& b) {
        return a.first != b.first && isNear(a.first, b.first);
    };
    if (std::adjacent_find(sorted.begin(), sorted.end(), blurred) != sorted.end())
        return false;
    std::transform(
        sorted.begin(), sorted.end(), events.begin(), [](const auto& item) { return item.second; });
    return true;
}

// well/EventOrder.cpp
#include "well/EventOrder.h"

#include "dict/EVdict.h"
#include "util/TextUtil.h"
#include "well/EVt.h"
#include "well/Sample.h"

#include <algorithm>
#include <utility>

namespace {

constexpr double kSameDepth = 0.0001; // metres
constexpr std::size_t kLongestStretch = 256;

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

EventOrder::Place EventOrder::placeOf(const EVt& evt, Rule rule)
{
    if (!isCurrent(rule))
        refresh(rule);
    const Key key = keyOf(evt, rule);
    const Class c = classOf(evt.kind);
    const auto goesBefore = [&key](const Key* any, const Key* sameKind) {
        return *any > key || (sameKind && (*sameKind > key || isNear(*sameKind, key)));
    };
    Place place{0, nullptr, 0, 0};
    for (; place.stretch < stretches_.size(); ++place.stretch) {
        const Stretch& stretch = stretches_[place.stretch];
        if (!goesBefore(stretch.reach[All], stretch.reach[c])) {
            place.number += stretch.entries.size();
            continue;
        }
        const auto entry =
            std::find_if(stretch.entries.begin(), stretch.entries.end(), [&](const Entry& listed) {
                const bool sameKind = isIn(c, eventOf(listed.node).kind);
                return goesBefore(listed.key, sameKind ? listed.key : nullptr);
            });
        place.offset = static_cast<std::size_t>(entry - stretch.entries.begin());
        place.number += place.offset;
        place.node = entry->node;
        break;
    }
    return place;
}

void EventOrder::added(const Place& place, GList::ListNode* node)
{
    if (place.node)
        enter(place.stretch, place.offset, newEntry(node));
    else
        append(newEntry(node));
    noteState();
}

EventOrder::Entry EventOrder::newEntry(GList::ListNode* node)
{
    return {node, &keys_.emplace_back(keyOf(eventOf(node), rule_))};
}

void EventOrder::append(Entry entry)
{
    if (stretches_.empty())
        stretches_.emplace_back();
    enter(stretches_.size() - 1, stretches_.back().entries.size(), entry);
}

void EventOrder::enter(std::size_t number, std::size_t offset, Entry entry)
{
    Stretch& stretch = stretches_[number];
    stretch.entries.insert(stretch.entries.begin() + static_cast<std::ptrdiff_t>(offset), entry);
    extend(stretch.reach, entry);
    if (stretch.entries.size() > kLongestStretch)
        split(number);
}

void EventOrder::extend(Reach& reach, Entry entry) const
{
    for (std::size_t c = All; c < Classes; ++c) {
        const bool counts = isIn(static_cast<Class>(c), eventOf(entry.node).kind);
        if (counts && (!reach[c] || *reach[c] < *entry.key))
            reach[c] = entry.key;
    }
}

void EventOrder::split(std::size_t number)
{
    const std::vector<Entry> entries = std::exchange(stretches_[number], {}).entries;
    stretches_.insert(stretches_.begin() + static_cast<std::ptrdiff_t>(number), Stretch());
    for (std::size_t i = 0; i < entries.size(); ++i) {
        Stretch& half = stretches_[number + (i < entries.size() / 2 ? 0 : 1)];
        half.entries.push_back(entries[i]);
        extend(half.reach, entries[i]);
    }
}

bool EventOrder::isCurrent(Rule rule) const
{
    return made_ && rule == rule_ && revision_ == list_.revision()
        && depthChanges_ == Sample::Depth::changes() && nameChanges_ == EVdict::changes();
}

void EventOrder::refresh(Rule rule)
{
    rule_ = rule;
    stretches_.clear();
    keys_.clear();
    for (auto at = list_.begin(); at != list_.end(); ++at)
        append(newEntry(at.node()));
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

// dict/EVdictList.cpp
#include "dict/EVdictList.h"

#include <algorithm>
#include <memory>

namespace {

EVdict* entryOf(const GList::ListNode* node) { return static_cast<EVdict*>(node->item); }

} // namespace

EVdictList::~EVdictList()
{
    while (const EVdict* entry = pop())
        delete entry;
}

void EVdictList::refresh() const
{
    if (revision_ == revision() && changes_ == EVdict::changes())
        return;
    places_.clear();
    firstOf_.clear();
    for (auto at = begin(); at != end(); ++at) {
        const EVdict* before = places_.empty() ? *at : places_.back().greatest;
        places_.push_back({at.node(), before->nameView() < (*at)->nameView() ? *at : before});
        firstOf_.try_emplace((*at)->ev_id(), *at);
    }
    noteState();
}

std::size_t EVdictList::placeFor(const EVdict& entry) const
{
    const auto notGreater = [&entry](const Place& place) {
        return place.greatest->nameView() <= entry.nameView();
    };
    const auto greater = std::partition_point(places_.begin(), places_.end(), notGreater);
    return static_cast<std::size_t>(greater - places_.begin());
}

/// The index was current, and an entry came in as `node` at the place that `placeFor` gave.
void EVdictList::follow(std::size_t place, ListNode* node) const
{
    EVdict* entry = entryOf(node);
    if (!firstOf_.try_emplace(entry->ev_id(), entry).second)
        return; // which of the two comes first is left to the next refresh
    // No name up to here is greater, and all behind have a greater one in front already.
    places_.insert(places_.begin() + static_cast<std::ptrdiff_t>(place), {node, entry});
    noteState();
}

void EVdictList::noteState() const
{
    revision_ = revision();
    changes_ = EVdict::changes();
}

int insertByName(EVdictList& list, EVdict* entry)
{
    list.refresh();
    const std::size_t place = list.placeFor(*entry);
    const bool atEnd = place == list.places_.size();
    GList::ListNode* before = atEnd ? nullptr : list.places_[place].node;
    list.insertAt(before, entry);
    list.follow(place, before ? before->older : list.back());
    return static_cast<int>(atEnd ? place : place + 1);
}

EVdict* findById(const EVdictList& list, long ev_id)
{
    list.refresh();
    const auto found = list.firstOf_.find(ev_id);
    return found == list.firstOf_.end() ? nullptr : found->second;
}

EVdict* findOrRead(EVdictList& list, long ev_id)
{
    if (EVdict* listed = findById(list, ev_id))
        return listed;
    auto entry = std::make_unique<EVdict>(ev_id);
    insertByName(list, entry.get());
    return entry.release();
}

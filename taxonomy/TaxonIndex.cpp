// taxonomy/TaxonIndex.cpp
#include "taxonomy/TaxonIndex.h"

#include "taxonomy/TaxonOrder.h"

#include <algorithm>
#include <functional>

namespace {

Taxon& taxonOf(const GList::ListNode* node) { return *static_cast<Taxon*>(node->item); }

} // namespace

Taxon* TaxonIndex::find(const List& list, long spec_id)
{
    refresh(list);
    const auto entry = firstOf_.find(spec_id);
    return entry != firstOf_.end() ? entry->second : nullptr;
}

std::size_t TaxonIndex::placeFor(const List& list, int mode, const Taxon& taxon)
{
    refresh(list);
    const auto standsBehind = [mode, &taxon](const GList::ListNode* node) {
        return taxonOrder::standsBehind(mode, taxonOf(node), taxon);
    };
    const auto place = isOrderedFor(taxonOrder::insertionOrder(mode), taxon)
        ? std::partition_point(nodes_.begin(), nodes_.end(), std::not_fn(standsBehind))
        : std::find_if(nodes_.begin(), nodes_.end(), standsBehind);
    return static_cast<std::size_t>(place - nodes_.begin());
}

GList::ListNode* TaxonIndex::nodeAt(std::size_t place) const
{
    return place < nodes_.size() ? nodes_[place] : nullptr;
}

bool TaxonIndex::isCurrent(const List& list) const
{
    return revision_ == list.revision() && changes_ == changesOfListed;
}

void TaxonIndex::follow(const List& list, int mode, std::size_t place, GList::ListNode* node)
{
    if (firstOf_.contains(taxonOf(node).spec_id()))
        return; // which of the two comes first is left to the next refresh
    nodes_.insert(nodes_.begin() + static_cast<std::ptrdiff_t>(place), node);
    enter(&taxonOf(node));
    if (taxonOrder::insertionOrder(mode) != orderedBy_)
        orderedBy_ = taxonOrder::unset;
    revision_ = list.revision();
}

void TaxonIndex::refresh(const List& list)
{
    if (isCurrent(list))
        return;
    nodes_.clear();
    firstOf_.clear();
    orderedBy_ = taxonOrder::unset;
    plainCategories_ = true;
    for (auto entry = list.begin(); entry != list.end(); ++entry) {
        nodes_.push_back(entry.node());
        enter(*entry);
    }
    revision_ = list.revision();
    changes_ = changesOfListed;
}

void TaxonIndex::enter(Taxon* taxon)
{
    taxon->listed_ = true;
    plainCategories_ = plainCategories_ && taxonOrder::isPlainCategory(*taxon);
    firstOf_.try_emplace(taxon->spec_id(), taxon);
}

/// Whether the entries are in an order in which the place of `taxon` can be searched by halves.
bool TaxonIndex::isOrderedFor(int order, const Taxon& taxon)
{
    if (order == taxonOrder::byCategory
        && !(plainCategories_ && taxonOrder::isPlainCategory(taxon)))
        return false;
    if (orderedBy_ != order) {
        const auto misplaced = [order](const GList::ListNode* a, const GList::ListNode* b) {
            return taxonOrder::standsBehind(order, taxonOf(a), taxonOf(b));
        };
        if (std::adjacent_find(nodes_.begin(), nodes_.end(), misplaced) == nodes_.end())
            orderedBy_ = order;
    }
    return orderedBy_ == order;
}

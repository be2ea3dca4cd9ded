// taxonomy/TaxonIndex.h
#pragma once

#include "taxonomy/Taxon.h"
#include "util/GList.h"

#include <unordered_map>
#include <vector>

/// What a taxon list looks up, kept beside it: its entries by place, and the first taxon of each
/// identifier. Answers are those of a walk from the front. The list tells of its own insertions;
/// any other change, of the list or of a taxon in it, is noticed and makes the index build itself
/// anew when it is asked.
class TaxonIndex {
public:
    using List = TypedList<Taxon>;

    /// A taxon in some list has changed its name or identifier.
    static void noteChange() { ++changesOfListed; }

    /// The first taxon of that identifier, or null.
    Taxon* find(const List& list, long spec_id);
    /// The place of the first entry that stands behind `taxon` in the mode; the number of entries
    /// when there is none.
    std::size_t placeFor(const List& list, int mode, const Taxon& taxon);
    /// The node at a place, until the list changes; null at the end.
    GList::ListNode* nodeAt(std::size_t place) const;
    std::size_t size() const { return nodes_.size(); }
    bool isCurrent(const List& list) const;
    /// The index was current, and the list now has an entry more at that place. `mode` is the one
    /// in which the place is right; 0: none.
    void follow(const List& list, int mode, std::size_t place, GList::ListNode* node);

private:
    void refresh(const List& list);
    void enter(Taxon* taxon);
    bool isOrderedFor(int order, const Taxon& taxon);

    static inline unsigned long changesOfListed = 0;

    std::vector<GList::ListNode*> nodes_;
    std::unordered_map<long, Taxon*> firstOf_;
    int orderedBy_ = 0; ///< the insertion order in which the entries are known to be; 0: none
    bool plainCategories_ = true;
    unsigned long revision_ = 0;
    unsigned long changes_ = 0;
};

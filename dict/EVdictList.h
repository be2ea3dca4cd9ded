// dict/EVdictList.h
#pragma once

#include "dict/EVdict.h"
#include "util/GList.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

/// Entries of the event dictionary in the order of their names, as far as they came in by
/// `insertByName`. Owns them. The list operations of `GList` may be used beside these at any time.
class EVdictList : public TypedList<EVdict> {
public:
    EVdictList() = default;
    ~EVdictList();

private:
    friend int insertByName(EVdictList& list, EVdict* entry);
    friend EVdict* findById(const EVdictList& list, long ev_id);

    /// What is kept per place is the greatest name up to there, so that a search can halve however
    /// the list is ordered.
    struct Place {
        ListNode* node;
        const EVdict* greatest;
    };

    std::size_t placeFor(const EVdict& entry) const;
    void follow(std::size_t place, ListNode* node) const;
    void refresh() const;
    void noteState() const;

    mutable std::vector<Place> places_;
    mutable std::unordered_map<long, EVdict*> firstOf_;
    mutable unsigned long revision_ = 0;
    mutable unsigned long changes_ = 0;
};

/// Puts `entry`, which the list then owns, before the first entry whose name is greater byte by
/// byte, at the end when there is none; equal names keep their order of arrival. The number of
/// entries up to and with that one. No walk. Moves the cursor as `insert` does.
int insertByName(EVdictList& list, EVdict* entry);

/// The first entry with that identifier, or null. No walk.
EVdict* findById(const EVdictList& list, long ev_id);

/// The entry with that identifier, read and put in by name when the list has none. Never null; an
/// identifier that the dictionary does not have gives an entry without a name.
EVdict* findOrRead(EVdictList& list, long ev_id);

// well/EventOrder.h
#pragma once

#include "util/GList.h"

#include <array>
#include <cstddef>
#include <deque>
#include <string>
#include <vector>

class EVt;

/// Finds where an event belongs in one list: before the first event that it goes before. The list
/// need not be in order; depths that count as the same and kinds that are neither top nor base make
/// orders that no sort gives. What is kept for each stretch of the list is how far its events
/// reach: all of them, and those that a top, a base or another event goes before at the same depth.
/// Only the first stretch that reaches far enough is walked. Made anew when the list, a depth, a
/// name or the rule has changed in a way it was not told of.
class EventOrder {
public:
    struct Rule {
        bool byName; ///< and by depth where names are equal
        bool deepestFirst;
        bool basesFirst;
        bool operator==(const Rule&) const = default;
    };

    explicit EventOrder(const TypedList<EVt>& list)
        : list_(list)
    {
    }

    struct Place {
        std::size_t number;    ///< counted from the front
        GList::ListNode* node; ///< of the event that is there; null behind the last
        std::size_t stretch, offset;
    };
    /// The place of the event that `evt` goes before; behind the last when there is none.
    Place placeOf(const EVt& evt, Rule rule);
    /// The event of that place came in as `node`, and nothing else has changed since `placeOf`.
    void added(const Place& place, GList::ListNode* node);

    /// Orders events as `placeOf` would, one after the other. False, and nothing done, when the
    /// outcome is no plain order of names, depths and kinds.
    static bool sort(std::vector<EVt*>& events, Rule rule);

private:
    struct Key {
        std::string name; ///< upper case; empty when names do not count
        float depth;      ///< metres, negated for the deepest first
        auto operator<=>(const Key&) const = default;
    };
    /// Which events count: all, and those that an event of a kind goes before at the same depth.
    enum Class { All, BehindTop, BehindBase, BehindOther, Classes };
    using Reach = std::array<const Key*, Classes>; ///< the greatest key of each; null: none
    struct Entry {
        GList::ListNode* node;
        const Key* key;
    };
    struct Stretch {
        std::vector<Entry> entries;
        Reach reach{};
    };

    static Key keyOf(const EVt& evt, Rule rule);
    static bool isNear(const Key& a, const Key& b);
    static Class classOf(char kind);
    bool isIn(Class c, char kind) const;
    void append(Entry entry);
    void enter(std::size_t stretch, std::size_t offset, Entry entry);
    void extend(Reach& reach, Entry entry) const;
    void split(std::size_t stretch);
    bool isCurrent(Rule rule) const;
    void refresh(Rule rule);
    Entry newEntry(GList::ListNode* node);
    void noteState();

    const TypedList<EVt>& list_;
    std::deque<Key> keys_;           // entries point at these, so they must stay where they are
    std::vector<Stretch> stretches_; ///< none is empty
    Rule rule_{};
    bool made_ = false;
    unsigned long revision_ = 0;
    unsigned long depthChanges_ = 0;
    unsigned long nameChanges_ = 0;
};

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
/// orders that no sort gives. What is kept per place is how far the events up to there reach: all
/// of them, and those that a top, a base or another event goes before at the same depth. That only
/// grows, so that a search can halve. Made anew when the list, a depth, a name or the rule has
/// changed in a way it was not told of.
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

    /// The place, counted from the front, of the event that `evt` goes before; behind the last when
    /// there is none.
    std::size_t placeOf(const EVt& evt, Rule rule);
    /// The node at a place that `placeOf` gave; null behind the last.
    GList::ListNode* nodeAt(std::size_t place) const;
    /// The event of that place came in as `node`, and nothing else has changed since `placeOf`.
    void added(std::size_t place, GList::ListNode* node);

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
    struct Place {
        GList::ListNode* node;
        std::array<const Key*, Classes> reach; ///< the greatest key up to here; null: none yet
    };

    static Key keyOf(const EVt& evt, Rule rule);
    static bool isNear(const Key& a, const Key& b);
    static Class classOf(char kind);
    bool isIn(Class c, char kind) const;
    Place placeWith(std::size_t place, GList::ListNode* node);
    bool isCurrent(Rule rule) const;
    void refresh(Rule rule);
    void noteState();

    const TypedList<EVt>& list_;
    std::deque<Key> keys_; // places point at these, so they must stay where they are
    std::vector<Place> places_;
    Rule rule_{};
    bool made_ = false;
    unsigned long revision_ = 0;
    unsigned long depthChanges_ = 0;
    unsigned long nameChanges_ = 0;
};

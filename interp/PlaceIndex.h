// interp/PlaceIndex.h
#pragma once

#include "util/GList.h"

#include <algorithm>
#include <cstddef>
#include <vector>

/// Finds where a new member of a list goes when the rule is "before the first member at which a
/// walk from the front stops", without that walk. Such a rule need not be a total order, so the
/// members already there need not be sorted by it, and halving would find another place. Instead
/// the places are kept in blocks, each with what its members reach together: a block in which the
/// walk cannot stop is passed as a whole, which leaves about the square root of the length to look
/// at.
///
/// `Rule` has a `Member`, a `Reach` with `widen(const Member&)`, and
///   bool stops(const Member& at, const Member& added) const;   the rule itself
///   bool mayStop(const Reach& block, const Member& added) const;   true wherever a member stops
/// The index knows what it was told by `append` and `put` only: its owner tells when it is stale.
template <typename Rule> class PlaceIndex {
public:
    using Member = typename Rule::Member;

    explicit PlaceIndex(Rule rule = {})
        : rule_(rule)
    {
    }

    void clear() { blocks_.clear(); }

    /// Tells of the node behind all others.
    void append(GList::ListNode* node) { enter(end(), node); }

    /// Puts `item` into the list that the index describes, at its place.
    void put(GList& list, Member* item)
    {
        const Place before = first([&](const auto& reach) { return rule_.mayStop(reach, *item); },
            [&](const Member& at) { return rule_.stops(at, *item); });
        GList::ListNode* node = before.node(*this);
        list.insertAt(node, item);
        enter(before, node ? node->older : lastOf(list));
    }

    /// Whether there is a member of which `is` holds; `may` tells of a block whether it could.
    template <typename May, typename Is> bool any(May may, Is is) const
    {
        return first(may, is).node(*this) != nullptr;
    }

    /// The member at a position from 0 on, or null.
    Member* at(std::size_t position) const
    {
        for (const Block& block : blocks_) {
            if (position < block.nodes.size())
                return memberOf(block.nodes[position]);
            position -= block.nodes.size();
        }
        return nullptr;
    }

private:
    using Reach = typename Rule::Reach;
    static constexpr std::size_t kLongest = 128;

    struct Block {
        std::vector<GList::ListNode*> nodes;
        Reach reach;

        void measure()
        {
            reach = {};
            for (const GList::ListNode* node : nodes)
                reach.widen(*memberOf(node));
        }
    };

    struct Place {
        std::size_t block;
        std::size_t entry; ///< behind the block's last only at the end of the list

        GList::ListNode* node(const PlaceIndex& index) const
        {
            if (block == index.blocks_.size() || entry == index.blocks_[block].nodes.size())
                return nullptr;
            return index.blocks_[block].nodes[entry];
        }
    };

    static Member* memberOf(const GList::ListNode* node)
    {
        return static_cast<Member*>(node->item);
    }

    static GList::ListNode* lastOf(const GList& list)
    {
        GList::Walk fromBack(list, GList::Order::BackToFront);
        fromBack.next();
        return fromBack.node();
    }

    Place end() const
    {
        return blocks_.empty() ? Place{0, 0}
                               : Place{blocks_.size() - 1, blocks_.back().nodes.size()};
    }

    template <typename May, typename Is> Place first(May may, Is is) const
    {
        for (std::size_t b = 0; b < blocks_.size(); ++b) {
            const auto& nodes = blocks_[b].nodes;
            if (!may(blocks_[b].reach))
                continue;
            const auto found = std::find_if(nodes.begin(), nodes.end(),
                [&](const GList::ListNode* node) { return is(*memberOf(node)); });
            if (found != nodes.end())
                return {b, static_cast<std::size_t>(found - nodes.begin())};
        }
        return end();
    }

    void enter(Place place, GList::ListNode* node)
    {
        if (place.block == blocks_.size())
            blocks_.emplace_back();
        Block& block = blocks_[place.block];
        block.nodes.insert(block.nodes.begin() + static_cast<std::ptrdiff_t>(place.entry), node);
        block.reach.widen(*memberOf(node));
        if (block.nodes.size() > kLongest)
            split(place.block);
    }

    void split(std::size_t at)
    {
        const auto half = static_cast<std::ptrdiff_t>(kLongest / 2);
        const auto added = blocks_.emplace(blocks_.begin() + static_cast<std::ptrdiff_t>(at) + 1);
        Block& block = blocks_[at];
        added->nodes.assign(block.nodes.begin() + half, block.nodes.end());
        block.nodes.erase(block.nodes.begin() + half, block.nodes.end());
        block.measure();
        added->measure();
    }

    Rule rule_;
    std::vector<Block> blocks_;
};

// interp/PlaceIndex.h
#pragma once

#include "util/GList.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>
#include <vector>

/// Finds where a new member of a list goes when the rule is "before the first member at which a
/// walk from the front stops", without that walk. Such a rule need not be a total order, so the
/// members already there need not be sorted by it, and halving would find another place. Instead
/// the places are the leaves of a tree of which each branch knows what its members reach together:
/// a branch in which the walk cannot stop is passed as a whole.
///
/// `Rule` has a `Member`, a `Reach` with `widen(const Member&)`, and
///   bool stops(const Member& at, const Member& added) const;   the rule itself
///   bool mayStop(const Reach& branch, const Member& added) const;   true wherever a member stops
/// The index knows what it was told by `append` and `put` only: its owner tells when it is stale.
template <typename Rule> class PlaceIndex {
public:
    using Member = typename Rule::Member;

    explicit PlaceIndex(Rule rule = {})
        : rule_(rule)
    {
    }

    void clear() { root_ = {}; }

    /// Tells of the node behind all others.
    void append(GList::ListNode* node) { enter(end(), node); }

    /// Puts `item` into the list that the index describes, at its place.
    void put(GList& list, Member* item)
    {
        const auto may = [&](const Reach& reach) { return rule_.mayStop(reach, *item); };
        const auto is = [&](const Member& at) { return rule_.stops(at, *item); };
        Path path;
        GList::ListNode* before = find(root_, may, is, path);
        list.insertAt(before, item);
        enter(before ? path : end(), before ? before->older : lastOf(list));
    }

    /// Whether there is a member of which `is` holds; `may` tells of a branch whether it could.
    template <typename May, typename Is> bool any(May may, Is is) const
    {
        Path path;
        return find(root_, may, is, path) != nullptr;
    }

    /// The member at a position from 0 on, or null.
    Member* at(std::size_t position) const
    {
        if (position >= root_.count)
            return nullptr;
        const Branch* branch = &root_;
        while (!branch->branches.empty()) {
            auto child = branch->branches.begin();
            for (; position >= child->count; ++child)
                position -= child->count;
            branch = &*child;
        }
        return memberOf(branch->nodes[position]);
    }

private:
    using Reach = typename Rule::Reach;
    using Path = std::vector<std::size_t>; ///< from the root; the last is the place in the leaf
    static constexpr std::size_t kWidest = 32;

    /// Has branches, or, as a leaf, nodes of the list.
    struct Branch {
        Reach reach;
        std::size_t count = 0;
        std::vector<Branch> branches;
        std::vector<GList::ListNode*> nodes;

        std::size_t width() const { return std::max(branches.size(), nodes.size()); }
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

    Path end() const
    {
        Path path;
        const Branch* branch = &root_;
        for (; !branch->branches.empty(); branch = &branch->branches.back())
            path.push_back(branch->branches.size() - 1);
        path.push_back(branch->nodes.size());
        return path;
    }

    /// The first node of which `is` holds and the path to it, or null.
    template <typename May, typename Is>
    static GList::ListNode* find(const Branch& branch, const May& may, const Is& is, Path& path)
    {
        const auto leaf = std::find_if(branch.nodes.begin(), branch.nodes.end(),
            [&is](const GList::ListNode* node) { return is(*memberOf(node)); });
        if (leaf != branch.nodes.end()) {
            path.push_back(static_cast<std::size_t>(leaf - branch.nodes.begin()));
            return *leaf;
        }
        path.push_back(0);
        for (const Branch& child : branch.branches) {
            GList::ListNode* found = may(child.reach) ? find(child, may, is, path) : nullptr;
            if (found)
                return found;
            ++path.back();
        }
        path.pop_back();
        return nullptr;
    }

    void enter(const Path& path, GList::ListNode* node)
    {
        enter(root_, path.begin(), node);
        if (root_.width() <= kWidest)
            return;
        Branch whole = std::exchange(root_, {});
        root_.reach = whole.reach;
        root_.count = whole.count;
        root_.branches.push_back(std::move(whole));
        split(root_.branches, 0);
    }

    static void enter(Branch& branch, typename Path::const_iterator step, GList::ListNode* node)
    {
        branch.reach.widen(*memberOf(node));
        ++branch.count;
        if (branch.branches.empty()) {
            branch.nodes.insert(branch.nodes.begin() + static_cast<std::ptrdiff_t>(*step), node);
            return;
        }
        enter(branch.branches[*step], std::next(step), node);
        if (branch.branches[*step].width() > kWidest)
            split(branch.branches, *step);
    }

    static void split(std::vector<Branch>& branches, std::size_t at)
    {
        const auto behind = static_cast<std::ptrdiff_t>(at) + 1;
        Branch& added = *branches.emplace(branches.begin() + behind);
        Branch& full = branches[at];
        moveHalf(full.nodes, added.nodes);
        moveHalf(full.branches, added.branches);
        measure(full);
        measure(added);
    }

    template <typename T> static void moveHalf(std::vector<T>& from, std::vector<T>& to)
    {
        const auto half = from.begin() + static_cast<std::ptrdiff_t>(from.size() / 2);
        to.assign(std::make_move_iterator(half), std::make_move_iterator(from.end()));
        from.erase(half, from.end());
    }

    static void measure(Branch& branch)
    {
        branch.reach = {};
        branch.count = 0;
        widen(branch, branch);
    }

    static void widen(Branch& outer, const Branch& inner)
    {
        for (const GList::ListNode* node : inner.nodes)
            outer.reach.widen(*memberOf(node));
        outer.count += inner.nodes.size();
        for (const Branch& child : inner.branches)
            widen(outer, child);
    }

    Rule rule_;
    Branch root_;
};

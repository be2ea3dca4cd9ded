// taxonomy/TaxonOrder.h
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

class Taxon;

/// The sort modes of a taxon list. Every number that is not named here orders as `byCategory` does.
namespace taxonOrder {
enum : int { unset = 0, byGenus = 1, byCategory = 2, bySpecies = 3, byCode = 4 };

/// Whether a listed taxon stands behind a taxon that is to be inserted. There is no insertion by
/// code. Letter case is ignored, except in the question which category is greater.
bool standsBehind(int mode, const Taxon& listed, const Taxon& inserted);

/// The order by which `standsBehind` goes in a mode: `byGenus`, `bySpecies` or `byCategory`.
constexpr int insertionOrder(int mode)
{
    return mode == byGenus || mode == bySpecies ? mode : byCategory;
}

/// Whether a category is written so that `standsBehind` puts it among others of this kind in one
/// consistent order. With small letters two can be equal and greater at once.
bool isPlainCategory(const Taxon& taxon);

/// A taxon on its way through a sort.
struct Entry {
    Taxon* listed;
    Taxon* shown; ///< the taxon whose names and code count
    long code;    ///< read beforehand, for `byCode` only
};

/// Whether `earlier` must go behind `later`. Categories are compared byte by byte.
bool isMisordered(int mode, const Entry& earlier, const Entry& later);

/// Orders the items as passes do that move each item in front of its neighbour when the two are
/// misordered, until a pass moves nothing: neighbours that are not misordered keep their order.
/// False when 100000 passes do not settle it, which takes a comparison that is no order.
template <typename Item, typename Misordered>
bool settle(std::vector<Item>& items, const Misordered& misordered)
{
    constexpr int kMostPasses = 100000;
    // Where the comparison is an order this does it all, and the first pass finds nothing to move.
    std::stable_sort(items.begin(), items.end(),
        [&misordered](const Item& a, const Item& b) { return misordered(b, a); });
    for (int pass = 0; pass < kMostPasses; ++pass) {
        bool moved = false;
        for (std::size_t later = 1; later < items.size(); ++later) {
            if (misordered(items[later - 1], items[later])) {
                std::swap(items[later - 1], items[later]);
                moved = true;
            }
        }
        if (!moved)
            return true;
    }
    return false;
}
} // namespace taxonOrder

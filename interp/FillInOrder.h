// interp/FillInOrder.h
#pragma once

#include "util/OwningList.h"

#include <algorithm>
#include <memory>
#include <vector>

/// Fills a list, destroying what is in it, with items each of which goes before the first at which
/// `stops(at, added)` holds. That must mean that `at` is the greater one of two: the list is in
/// order at any time then, and sorting once comes to the same as placing one by one.
template <typename T, typename Stops>
void fillInOrder(OwningList<T>& list, std::vector<std::unique_ptr<T>> items, Stops stops)
{
    list.destroyAll();
    std::stable_sort(items.begin(), items.end(),
        [stops](const auto& first, const auto& second) { return stops(*second, *first); });
    for (auto& item : items)
        list.push(item.release());
}

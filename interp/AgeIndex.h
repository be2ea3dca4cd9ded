// interp/AgeIndex.h
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <utility>
#include <vector>

// Ages that were entered in two tables differ in their last digits. Ma.
inline constexpr double kSameAge = 0.0001;

inline bool isSameAge(float a, float b) { return std::abs(double(a) - double(b)) < kSameAge; }

/// Items by their ages, found by an age that need not be quite theirs.
template <typename T> class AgeIndex {
public:
    void add(float age, T item) { byAge_[age].emplace_back(count_++, std::move(item)); }
    /// Adds the item unless there is one of exactly that age, which stands for all of them.
    void addFirst(float age, T item)
    {
        if (!byAge_.contains(age))
            add(age, std::move(item));
    }

    /// The items of that age, in the order in which they came.
    std::vector<T> at(float age) const
    {
        std::vector<Placed> found;
        auto near = byAge_.lower_bound(age - 2 * kSameAge);
        for (; near != byAge_.end() && near->first < age + 2 * kSameAge; ++near) {
            if (isSameAge(static_cast<float>(near->first), age))
                found.insert(found.end(), near->second.begin(), near->second.end());
        }
        std::ranges::sort(found, {}, &Placed::first);
        std::vector<T> items;
        for (const Placed& placed : found)
            items.push_back(placed.second);
        return items;
    }

private:
    using Placed = std::pair<std::size_t, T>;

    std::map<double, std::vector<Placed>> byAge_;
    std::size_t count_ = 0;
};

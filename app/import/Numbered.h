// app/import/Numbered.h
#pragma once

#include <map>
#include <string>
#include <utility>

/// What the rows of a set of files mean by their own numbers, for rows of other files that name
/// them before anything is stored.
template <typename Entry> class Numbered {
public:
    /// Null when the set has no such number.
    Entry* find(const std::string& set, const std::string& number) const
    {
        const auto known = entries_.find({set, number});
        return known == entries_.end() ? nullptr : known->second;
    }
    void give(const std::string& set, const std::string& number, Entry* entry)
    {
        if (!number.empty())
            entries_[{set, number}] = entry;
    }

private:
    std::map<std::pair<std::string, std::string>, Entry*> entries_;
};

// app/import/RowPlaces.h
#pragma once

#include "app/import/ImportContext.h"

#include <map>
#include <string>
#include <unordered_map>
#include <utility>

class CellReader;

/// The rows that brought a key first.
class FirstRows {
public:
    /// Where the key came first; null when that is `place` itself.
    const RowPlace* before(const std::string& key, const RowPlace& place)
    {
        const RowPlace& first = rows_.try_emplace(key, place).first->second;
        return first == place ? nullptr : &first;
    }

private:
    std::unordered_map<std::string, RowPlace> rows_;
};

/// What was decided about rows when they were checked. Storing decides nothing anew: rows further
/// down have announced theirs meanwhile.
template <typename Decision> class Decisions {
public:
    /// The decision about the row, made by `decide` when it is seen first.
    template <typename Decide> const Decision& of(const RowPlace& place, const Decide& decide)
    {
        const auto key = std::pair(place.file, place.line);
        const auto known = decisions_.find(key);
        return known != decisions_.end() ? known->second
                                         : decisions_.emplace(key, decide()).first->second;
    }

private:
    std::map<std::pair<const InputFile*, long>, Decision> decisions_;
};

/// Takes the number that the file gives the row into `*out`; null when there is none. The number
/// must be the row's alone, or rows of other files that name it would not know which is meant:
/// else the row is refused, and the result false.
bool takeFileNumber(CellReader& cells, int column, FileIds& ids, FileId** out);

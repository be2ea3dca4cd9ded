// app/import/RowPlaces.h
#pragma once

#include "app/import/ImportContext.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

class CellReader;

/// The rows that brought a key first. Memory grows with the rows of a file here more than anywhere,
/// so of a key only a hash of 64 bits is kept and of its place a number of 32: of a million keys
/// any two have one hash once in 37 million imports. Such a row would be refused, never lost in
/// silence.
class FirstRows {
public:
    /// Where the key came first; null when that is `place` itself. Valid until the next call.
    const RowPlace* before(const std::string& key, const RowPlace& place)
    {
        return before(std::hash<std::string>()(key), place);
    }
    /// The same by the key's hash, whose bits must all depend on all of the key.
    const RowPlace* before(std::uint64_t hash, const RowPlace& place);

private:
    struct FileStart {
        const InputFile* file;
        std::uint32_t start; ///< number of the place before its first line
    };

    std::uint32_t numberOf(const RowPlace& place);
    RowPlace placeOf(std::uint32_t number) const;
    std::size_t slotOf(std::uint64_t hash) const;
    void grow();

    // An open table: a slot is free while its number is 0.
    std::vector<std::uint64_t> hashes_;
    std::vector<std::uint32_t> numbers_;
    std::size_t count_ = 0;
    std::vector<FileStart> files_; // in the order of their numbers
    std::uint32_t last_ = 0;       // the highest number so far
    RowPlace first_;
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

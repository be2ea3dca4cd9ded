// store/AbundanceWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <set>
#include <string>

/// A level of an abundance scheme.
struct AbundanceLevel {
    long entryNo = 0; ///< place on the ladder, lowest level first
    std::string name; ///< at most 25 bytes
    std::string abr;  ///< at most 4 bytes
    long min = 0;     ///< lowest count of the level [0-32767]
    long output = 0;  ///< count that the level stands for, 0 for its minimum
};

/// An abundance scheme, from the database or announced.
struct AbundanceScheme {
    long id = 0; ///< ABNSCHME.scheme_id, 0 until it is stored
    std::string name;
    std::map<long, AbundanceLevel> levels; ///< by `entryNo`, stored and announced ones
};

/// Brings abundance schemes in, known by their names. All of them are read once.
class AbundanceWriter {
public:
    explicit AbundanceWriter(Writing writing);

    /// Reads the schemes unless that is done. False: `error`; nothing else works then.
    bool load();

    /// Null without one. Pointers stay good as long as the writer.
    AbundanceScheme* find(const std::string& name);
    /// Announces a scheme that is not there: it is found from now on and stored by `put`.
    AbundanceScheme* add(const std::string& name);

    Outcome put(AbundanceScheme& scheme);
    /// The scheme must be stored.
    Outcome putLevel(const AbundanceScheme& scheme, const AbundanceLevel& level);

    const std::string& error() const { return error_; }

private:
    bool loadSchemes();
    bool loadLevels();
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter schemes_;
    TableWriter levels_;
    IdAllocator ids_;
    std::map<std::string, AbundanceScheme> byName_;
    bool loaded_ = false;
    std::string error_;
};

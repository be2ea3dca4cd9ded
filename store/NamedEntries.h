// store/NamedEntries.h
#pragma once

#include "store/IdAllocator.h"

#include <map>
#include <optional>
#include <string>

/// A row that is known by its name, from the database or announced.
struct NamedEntry {
    long id = 0; ///< 0 until it is stored
    std::string name;
    long kind = 0; ///< of tables that have kinds
    bool isStored = false;
};

/// The rows of a table by their names, as they are written. All of them are read once; of several
/// of one name the first counts, as it does in the core's lookups.
class NamedEntries {
public:
    /// `kindColumn` is a whole number; null: the table has no kinds.
    NamedEntries(const char* table, const char* idColumn, const char* nameColumn,
        const char* kindColumn = nullptr);

    /// Reads the rows unless that is done. False: `error`; nothing else works then.
    bool load();

    /// Null without one. Pointers stay good as long as this object.
    NamedEntry* find(const std::string& name);
    /// Announces an entry that is not there: found from now on.
    NamedEntry* add(const std::string& name, long kind = 0);
    /// Gives an announced entry its identifier, for a row that is to be inserted. False: `error`.
    bool number(NamedEntry& entry);

    const std::string& error() const { return error_; }

private:
    const char* table_;
    const char* idColumn_;
    const char* nameColumn_;
    const char* kindColumn_;
    IdAllocator ids_;
    std::map<std::string, NamedEntry> entries_;
    bool loaded_ = false;
    std::string error_;
};

// store/SchemeWriter.h
#pragma once

#include "store/NamedEntries.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

/// Brings interpretation schemes in (IGD_SCH), known by their names: the core looks a name up
/// whatever its type, so there is one scheme of a name. An entry's kind is its type.
class SchemeWriter {
public:
    explicit SchemeWriter(Writing writing);

    bool load() { return schemes_.load(); }
    NamedEntry* find(const std::string& name) { return schemes_.find(name); }
    NamedEntry* add(const std::string& name, long type) { return schemes_.add(name, type); }
    /// Stores an announced scheme; others are there already.
    Outcome put(NamedEntry& scheme);

    std::string error() const;

private:
    Writing writing_;
    TableWriter table_;
    NamedEntries schemes_;
};

// store/EnvironmentWriter.h
#pragma once

#include "store/NamedEntries.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <array>
#include <map>
#include <string>

/// A term of an environment scheme.
struct EnvironmentTerm {
    long number = 0;                            ///< orders the terms
    std::string name;                           ///< at most 79 bytes
    std::array<std::optional<Value>, 3> colour; ///< not set: left as they are
};

/// Brings environment schemes in (ENV_SCH), known by their names, and their terms (ENVSCHMBR).
class EnvironmentWriter {
public:
    explicit EnvironmentWriter(Writing writing);

    bool load();
    NamedEntry* find(const std::string& name) { return schemes_.find(name); }
    NamedEntry* add(const std::string& name) { return schemes_.add(name); }
    /// The numbers of the terms that the database has of the scheme, with their names. False:
    /// `error`.
    bool readTerms(const NamedEntry& scheme, std::map<long, std::string>* terms);

    /// Stores the scheme, if it is new, and the term.
    Outcome put(NamedEntry& scheme, const EnvironmentTerm& term);

    const std::string& error() const { return error_; }

private:
    Outcome putScheme(NamedEntry& scheme);
    Outcome failed(const std::string& error);

    Writing writing_;
    NamedEntries schemes_;
    TableWriter schemeTable_;
    TableWriter termTable_;
    std::string error_;
};

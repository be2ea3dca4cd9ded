// store/TermWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/NamedEntries.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <string>

/// What a row says of a term beside its scheme, rank and name. Ages are Ma.
enum class TermColumn { Abr, UpperAge, LowerAge, Red, Green, Blue, Count };

/// A term of an interpretation scheme, from the database or announced.
struct TermEntry {
    long id = 0; ///< IGD_DICT.igd_id, 0 until it is stored
    NamedEntry* scheme = nullptr;
    long hier = 0; ///< rank [1-8]
    std::string name;
    bool isStored = false;
    Row columns{static_cast<std::size_t>(TermColumn::Count)}; ///< of an announced one

    void set(TermColumn column, std::optional<Value> value)
    {
        columns[static_cast<std::size_t>(column)] = std::move(value);
    }
    bool hasAge() const
    {
        return columns[static_cast<std::size_t>(TermColumn::UpperAge)].has_value();
    }
};

/// Brings terms in (IGD_DICT), known by scheme, rank and name, letter case apart. The terms of a
/// scheme are read when it is first asked for.
class TermWriter {
public:
    explicit TermWriter(Writing writing);

    /// Reads the terms of the scheme unless that is done. False: `error`.
    bool load(NamedEntry& scheme);

    /// The term of that rank; null without one. Pointers stay good as long as the writer. The
    /// scheme must be loaded.
    TermEntry* find(const NamedEntry& scheme, const std::string& name, long hier);
    /// The term of the widest rank with that name.
    TermEntry* find(const NamedEntry& scheme, const std::string& name);
    /// Announces a term that is not there: found from now on and stored by `put`.
    TermEntry* add(NamedEntry& scheme, const std::string& name, long hier);

    /// Stores the term, whose scheme is stored, with what is given of it.
    Outcome put(TermEntry& term, const Row& given);
    /// Stores the term with its own columns, unless it is there.
    Outcome ensure(TermEntry& term);

    const std::string& error() const { return error_; }

private:
    using Terms = std::map<std::string, std::map<long, TermEntry>>; // by name in capitals, rank

    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter table_;
    IdAllocator ids_;
    std::map<const NamedEntry*, Terms> schemes_;
    std::string error_;
};

// store/EventWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <string>

/// A named event, from the database or announced.
struct EventEntry {
    long id = 0; ///< EVENTDIC.ev_id
    std::string name;
    char type = 'R'; ///< R: paired, a top and a base; any other single
    bool isStored = false;
};

/// Brings entries of the event dictionary in, known by their names. All of them are read once.
class EventDictionaryWriter {
public:
    explicit EventDictionaryWriter(Writing writing);

    /// Reads the entries unless that is done. False: `error`; nothing else works then.
    bool load();

    /// Null without one. Pointers stay good as long as the writer.
    EventEntry* find(const std::string& name);
    /// Announces an entry that is not there: found from now on and stored by `put`.
    EventEntry* add(const std::string& name, char type);
    /// Stores the entry with the taxon of its range, SPECIES.spec_id; 0 leaves the stored one.
    Outcome put(EventEntry& entry, long specId);

    const std::string& error() const { return error_; }

private:
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter table_;
    IdAllocator ids_;
    std::map<std::string, EventEntry> entries_;
    bool loaded_ = false;
    std::string error_;
};

/// Columns of EVENTS beside its key.
enum class EventColumn {
    Sample,
    Discipline,
    Analyst,
    Qualifier,
    Comments,
    Source,
    Company,
    Modified,
    Count
};

/// An event placed in a well: once as a top and once as a base in each interpretation.
struct EventRecord {
    long wellId = 0;
    long eventId = 0; ///< EVENTDIC.ev_id
    char kind = 0;    ///< F top, L base
    Row columns{static_cast<std::size_t>(EventColumn::Count)};

    void set(EventColumn column, std::optional<Value> value)
    {
        columns[static_cast<std::size_t>(column)] = std::move(value);
    }
};

/// Brings the events of wells in, into the default interpretation.
class EventWriter {
public:
    explicit EventWriter(Writing writing);

    Outcome put(const EventRecord& record);

    const std::string& error() const { return table_.error(); }

private:
    Writing writing_;
    TableWriter table_;
};

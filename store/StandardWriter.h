// store/StandardWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <string>

/// A composite standard as it shall stand in the database.
struct StandardRecord {
    std::string name; ///< at most 80 bytes
    std::string units = "CSU";
    double top = 0; ///< position of the youngest end, above `base` on a scale that rises upwards
    double base = 0;
};

/// Brings composite standards in, known by their names.
class StandardWriter {
public:
    explicit StandardWriter(Writing writing);

    /// Inserts the standard, or changes what differs. `*id` is its identifier then.
    Outcome put(const StandardRecord& record, long* id);
    /// Places an event on the standard, once as a top, F, and once as a base, L.
    Outcome putEvent(long standardId, long eventId, char kind, double position);

    const std::string& error() const { return error_; }

private:
    bool load();
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter standards_;
    TableWriter events_;
    IdAllocator ids_;
    std::map<std::string, long> names_;
    bool loaded_ = false;
    std::string error_;
};

// dict/compStd.h
#pragma once

#include "dict/EVdictList.h"
#include "util/Date.h"

#include <memory>
#include <string>
#include <vector>

class Cursor;

/// A top or base of a dictionary event at its position on a composite standard.
class compStdEvt {
public:
    /// The entry is that of `dictionary`, which reads and owns it when it has none yet.
    compStdEvt(long ev_id, char kind, float csu, EVdictList& dictionary);

    /// As `eventLabel`, which see for the room.
    void label(char* out) const;

    long ev_id;
    float csu;     ///< in the units of the standard
    EVdict* entry; ///< never null
    char kind;     ///< 'F' top, 'L' base
    unsigned char flag = 0;
};

/// A reference scale onto which the events of wells are placed, with its events from the top value
/// towards the base value. Failed statements are reported and not fatal; one that an event's entry
/// needs is.
class compStd {
public:
    compStd() = default;
    /// Reads the standard and its events. Without such a standard `std_id` stays 0; the name stays
    /// as given.
    compStd(const std::string& name, EVdictList& dictionary);
    compStd(long std_id, EVdictList& dictionary);

    /// Reads the events of `std_id` anew; after a failed statement there are none.
    void loadEvents(EVdictList& dictionary);
    /// 1 when a standard with this name and another identifier than `exceptId` (0: any) is in the
    /// database, else 0; -1 on failure.
    int nameInUse(long exceptId) const;

    std::string name;
    long std_id = 0; ///< 0: not found
    std::string creator;
    Date created = Date::Today();
    std::vector<std::unique_ptr<compStdEvt>> events;
    float topcsu = 0;
    float basecsu = 0;
    int descending = 0; ///< 1 when the top value is the greater one
    std::string units;

private:
    void takeRow(const Cursor& row, short first);
};

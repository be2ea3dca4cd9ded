// store/LithologyWriter.h
#pragma once

#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <set>
#include <string>

/// A rock of the lithology dictionary, from the database or announced.
struct LithologyEntry {
    long id = 0;     ///< LITHDESC.lith_id, 0 until it is stored
    long wanted = 0; ///< the key that a vocabulary gives it
    std::string name;
    bool isStored = false;
};

/// Brings lithologies in (LITHDESC), known by their descriptions, letter case apart. Keys up
/// to 999 are reserved; a vocabulary's own key is kept where it is above and free.
class LithologyWriter {
public:
    explicit LithologyWriter(Writing writing);

    /// Reads the dictionary unless that is done. False: `error`; nothing else works then.
    bool load();

    /// Null without one. Pointers stay good as long as the writer.
    LithologyEntry* find(const std::string& name);
    /// Announces a rock that is not there: found from now on and stored by `put`.
    LithologyEntry* add(const std::string& name, long wanted);

    /// `abr`: at most 9 bytes; not set: left as it is. `kind`: N main lithology, A accessory, Q
    /// qualifier, S stringer; 0: left as it is, N for a new one.
    Outcome put(LithologyEntry& entry, const std::optional<Value>& abr, char kind = 0);

    const std::string& error() const { return error_; }

private:
    bool number(LithologyEntry& entry);
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter table_;
    std::map<std::string, LithologyEntry> entries_;
    std::set<long> keys_;
    bool loaded_ = false;
    std::string error_;
};

// platform/desktopdb/StatementCache.h
#pragma once

#include "platform/desktopdb/Engine.h"

#include <memory>
#include <string>
#include <vector>

namespace desktopdb {

/// Compiled statements that nobody runs at the moment, by their text. Owns them; a statement in
/// use belongs to its user. Bounded: the one unused longest goes first.
class StatementCache {
public:
    explicit StatementCache(size_t capacity = 64)
        : capacity_(capacity)
    {
    }

    /// Hands out an idle statement of this text, or null.
    std::unique_ptr<EngineStatement> take(const std::string& sql);
    /// Takes back a statement that has been reset.
    void give(const std::string& sql, std::unique_ptr<EngineStatement> statement);
    void clear() { slots_.clear(); }

    /// Number of idle statements.
    size_t size() const;
    long hits() const { return hits_; }
    long misses() const { return misses_; }

private:
    // A slot whose statement is out keeps its text for the way back. The slots are few, so they
    // are searched one by one, which allocates nothing.
    struct Slot {
        size_t hash;
        std::string sql;
        std::unique_ptr<EngineStatement> idle;
        long lastUse;
    };
    Slot* find(size_t hash, const std::string& sql, bool idle);
    Slot& slotToFill();

    size_t capacity_;
    std::vector<Slot> slots_;
    long uses_ = 0;
    long hits_ = 0;
    long misses_ = 0;
};

} // namespace desktopdb

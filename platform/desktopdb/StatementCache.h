// platform/desktopdb/StatementCache.h
#pragma once

#include "platform/desktopdb/Engine.h"

#include <list>
#include <memory>
#include <string>
#include <unordered_map>

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
    void clear();

    size_t size() const { return idle_.size(); }
    long hits() const { return hits_; }
    long misses() const { return misses_; }

private:
    struct Entry {
        std::string sql;
        std::unique_ptr<EngineStatement> statement;
    };
    size_t capacity_;
    std::list<Entry> idle_; // used last in front
    std::unordered_multimap<std::string_view, std::list<Entry>::iterator> bySql_;
    long hits_ = 0;
    long misses_ = 0;
};

} // namespace desktopdb

// platform/desktopdb/StatementCache.cpp
#include "platform/desktopdb/StatementCache.h"

#include <algorithm>

namespace desktopdb {

std::unique_ptr<EngineStatement> StatementCache::take(const std::string& sql)
{
    Slot* slot = find(std::hash<std::string>()(sql), sql, true);
    ++(slot ? hits_ : misses_);
    return slot ? std::move(slot->idle) : nullptr;
}

void StatementCache::give(const std::string& sql, std::unique_ptr<EngineStatement> statement)
{
    const size_t hash = std::hash<std::string>()(sql);
    Slot* slot = find(hash, sql, false);
    if (!slot) {
        slot = &slotToFill();
        slot->hash = hash;
        slot->sql = sql;
    }
    slot->idle = std::move(statement);
    slot->lastUse = ++uses_;
}

size_t StatementCache::size() const
{
    return static_cast<size_t>(
        std::ranges::count_if(slots_, [](const Slot& slot) { return slot.idle != nullptr; }));
}

StatementCache::Slot* StatementCache::find(size_t hash, const std::string& sql, bool idle)
{
    const auto found = std::ranges::find_if(slots_, [&](const Slot& slot) {
        return slot.hash == hash && (slot.idle != nullptr) == idle && slot.sql == sql;
    });
    return found == slots_.end() ? nullptr : &*found;
}

StatementCache::Slot& StatementCache::slotToFill()
{
    if (slots_.size() < capacity_)
        return slots_.emplace_back();
    return *std::ranges::min_element(slots_, {}, &Slot::lastUse);
}

} // namespace desktopdb

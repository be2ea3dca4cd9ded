// platform/desktopdb/StatementCache.cpp
#include "platform/desktopdb/StatementCache.h"

namespace desktopdb {

std::unique_ptr<EngineStatement> StatementCache::take(const std::string& sql)
{
    const auto found = bySql_.find(sql);
    if (found == bySql_.end()) {
        ++misses_;
        return nullptr;
    }
    ++hits_;
    auto statement = std::move(found->second->statement);
    const auto entry = found->second;
    bySql_.erase(found);
    idle_.erase(entry);
    return statement;
}

void StatementCache::give(const std::string& sql, std::unique_ptr<EngineStatement> statement)
{
    idle_.push_front({sql, std::move(statement)});
    bySql_.emplace(idle_.front().sql, idle_.begin());
    if (idle_.size() <= capacity_)
        return;
    const auto oldest = std::prev(idle_.end());
    auto [it, end] = bySql_.equal_range(oldest->sql);
    while (it->second != oldest)
        ++it;
    bySql_.erase(it);
    idle_.erase(oldest);
}

void StatementCache::clear()
{
    bySql_.clear();
    idle_.clear();
}

} // namespace desktopdb

// store/IdAllocator.cpp
#include "store/IdAllocator.h"

#include "db/Literals.h"
#include "store/Statement.h"

#include <limits>

IdAllocator::IdAllocator(const char* column, const char* table)
    : column_(column)
    , table_(table)
{
}

bool IdAllocator::readLargest()
{
    Statement select(std::string("SELECT max(") + column_ + ") FROM " + sql::table(table_));
    Value value;
    if (!select.execute() || select.fetch() != Statement::Row::Fetched
        || !select.read(1, ColumnType::Integer, &value)) {
        error_ = select.error();
        return false;
    }
    const long* largest = std::get_if<long>(&value);
    largest_ = largest ? *largest : 0; // an empty table has no largest
    return true;
}

std::optional<long> IdAllocator::next()
{
    if (!largest_ && !readLargest())
        return std::nullopt;
    if (*largest_ >= std::numeric_limits<int>::max()) {
        error_ = std::string("No identifier is left in ") + table_ + ".";
        return std::nullopt;
    }
    return ++*largest_;
}

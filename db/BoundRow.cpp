// db/BoundRow.cpp
#include "db/BoundRow.h"

#include "db/SessionState.h"

#include <array>
#include <cstdint>
#include <cstring>

namespace {

struct Binding {
    SQLSMALLINT type;
    SQLLEN size; // bytes, in multiples of eight for the numbers' sake
};

// Codes, names and remarks fit; the driver warns of each text that does not, so a letter has some
// room as well.
constexpr Binding bindingFor(ColumnUse use)
{
    switch (use) {
    case ColumnUse::Integer:
        return {SQL_C_LONG, 8};
    case ColumnUse::Number:
        return {SQL_C_DOUBLE, 8};
    case ColumnUse::Text:
        return {SQL_C_CHAR, 256};
    case ColumnUse::Letter:
        return {SQL_C_CHAR, 8};
    default:
        return {SQL_C_CHAR, 0};
    }
}

// Readers fall back to reading a bound column singly, which is beyond what ODBC asks of a driver.
bool readsBoundColumns()
{
    constexpr SQLUINTEGER kNeeded = SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER | SQL_GD_BOUND;
    SQLUINTEGER extensions = 0;
    const SQLRETURN result = SQLGetInfo(session::state().connection, SQL_GETDATA_EXTENSIONS,
        &extensions, sizeof extensions, nullptr);
    return odbcSucceeded(result) && (extensions & kNeeded) == kNeeded;
}

// A value that cannot be converted fails the fetch, but the row is there: SQLSTATE class 22.
bool failedOnValue(SQLHSTMT statement)
{
    const session::State& s = session::state();
    std::array<SQLCHAR, 6> sqlstate{};
    std::array<SQLCHAR, 2> message{};
    SQLINTEGER native = 0;
    SQLSMALLINT length = 0;
    SQLError(s.environment, s.connection, statement, sqlstate.data(), &native, message.data(),
        message.size(), &length);
    return sqlstate[0] == '2' && sqlstate[1] == '2';
}

template <typename T> T valueIn(const char* buffer)
{
    T value;
    std::memcpy(&value, buffer, sizeof value);
    return value;
}

} // namespace

std::unique_ptr<BoundRow> BoundRow::bind(SQLHSTMT statement, std::span<const ColumnUse> uses)
{
    if (!readsBoundColumns())
        return nullptr;
    std::unique_ptr<BoundRow> row(new BoundRow(statement));
    row->bindColumns(uses);
    return row;
}

void BoundRow::bindColumns(std::span<const ColumnUse> uses)
{
    std::size_t size = 0;
    for (const ColumnUse use : uses)
        size += static_cast<std::size_t>(bindingFor(use).size);
    bytes_.resize(size);
    columns_.resize(uses.size());
    char* buffer = bytes_.data();
    for (std::size_t i = 0; i < uses.size(); ++i) {
        const Binding binding = bindingFor(uses[i]);
        if (binding.size == 0)
            continue;
        columns_[i].buffer = buffer;
        if (odbcSucceeded(SQLBindCol(statement_, static_cast<SQLUSMALLINT>(i + 1), binding.type,
                buffer, binding.size, &columns_[i].indicator)))
            columns_[i].use = uses[i];
        buffer += binding.size;
    }
}

bool BoundRow::fetch()
{
    const SQLRETURN result = SQLFetch(statement_);
    filled_ = odbcSucceeded(result);
    atEnd_ = result == SQL_NO_DATA;
    return filled_ || (result == SQL_ERROR && failedOnValue(statement_));
}

const BoundRow::Column* BoundRow::boundFor(ColumnUse use, short column) const
{
    const auto index = static_cast<std::size_t>(column - 1);
    return filled_ && index < columns_.size() && columns_[index].use == use ? &columns_[index]
                                                                            : nullptr;
}

std::optional<long> BoundRow::integer(short column) const
{
    const Column* bound = boundFor(ColumnUse::Integer, column);
    if (!bound)
        return std::nullopt;
    return bound->indicator == SQL_NULL_DATA ? 0 : valueIn<std::int32_t>(bound->buffer);
}

std::optional<double> BoundRow::number(short column) const
{
    const Column* bound = boundFor(ColumnUse::Number, column);
    if (!bound)
        return std::nullopt;
    return bound->indicator == SQL_NULL_DATA ? 0 : valueIn<SQLDOUBLE>(bound->buffer);
}

std::optional<std::string_view> BoundRow::text(short column) const
{
    const Column* bound = boundFor(ColumnUse::Text, column);
    if (!bound)
        return std::nullopt;
    if (bound->indicator == SQL_NULL_DATA)
        return std::string_view();
    if (bound->indicator == SQL_NO_TOTAL || bound->indicator >= bindingFor(ColumnUse::Text).size)
        return std::nullopt;
    return std::string_view(bound->buffer);
}

std::optional<char> BoundRow::letter(short column) const
{
    const Column* bound = boundFor(ColumnUse::Letter, column);
    if (!bound)
        return std::nullopt;
    return bound->indicator == SQL_NULL_DATA ? '\0' : *bound->buffer;
}

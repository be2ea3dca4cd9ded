// db/Columns.cpp
#include "db/Columns.h"

#include <array>
#include <cstdint>

namespace {

// Zero unless the driver gave a value: a refused column leaves the buffer alone or half written.
template <typename T> T readNumber(SQLHSTMT statement, short column, SQLSMALLINT type)
{
    T value = 0;
    SQLLEN indicator = 0;
    const SQLRETURN result = SQLGetData(
        statement, static_cast<SQLUSMALLINT>(column), type, &value, sizeof value, &indicator);
    return odbcSucceeded(result) && indicator != SQL_NULL_DATA ? value : T{0};
}

struct Chunk {
    std::string_view text;
    bool more;
};

Chunk readChunk(SQLHSTMT statement, short column, std::span<char> buffer)
{
    buffer[0] = '\0';
    SQLLEN indicator = 0;
    const auto size = static_cast<SQLLEN>(buffer.size());
    const SQLRETURN result = SQLGetData(
        statement, static_cast<SQLUSMALLINT>(column), SQL_C_CHAR, buffer.data(), size, &indicator);
    if (!odbcSucceeded(result) || indicator == SQL_NULL_DATA)
        return {{}, false};
    // The indicator tells what was left to read, of which only so much came.
    const bool cut = indicator == SQL_NO_TOTAL || indicator >= size;
    return {buffer.data(), result == SQL_SUCCESS_WITH_INFO && cut};
}

} // namespace

namespace columns {

long readLong(SQLHSTMT statement, short column)
{
    return readNumber<std::int32_t>(statement, column, SQL_C_LONG);
}

short readShort(SQLHSTMT statement, short column)
{
    return readNumber<SQLSMALLINT>(statement, column, SQL_C_SHORT);
}

double readDouble(SQLHSTMT statement, short column)
{
    return readNumber<SQLDOUBLE>(statement, column, SQL_C_DOUBLE);
}

std::string_view readStart(SQLHSTMT statement, short column, std::span<char> buffer)
{
    return readChunk(statement, column, buffer).text;
}

std::string readText(SQLHSTMT statement, short column)
{
    std::array<char, 1024> buffer;
    Chunk chunk = readChunk(statement, column, buffer);
    std::string text(chunk.text);
    while (chunk.more) {
        chunk = readChunk(statement, column, buffer);
        text += chunk.text;
    }
    return text;
}

} // namespace columns

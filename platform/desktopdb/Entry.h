// platform/desktopdb/Entry.h
#pragma once

#include "platform/desktopdb/Registry.h"
#include "platform/desktopdb/TestAids.h"

#include <new>
#include <string_view>

namespace desktopdb {

// What every entry point does around its work: find the handle, clear its diagnostics, let a
// test's fault strike, keep exceptions from leaving the library.

template <class Work> SQLRETURN guarded(Diagnostics& diagnostics, Work work)
try {
    return work();
} catch (const std::bad_alloc&) {
    return diagnostics.fail("HY001", "out of memory");
} catch (const std::exception& e) {
    return diagnostics.fail("HY000", e.what());
}

/// `counts`: whether the call counts for faults.
template <class Work>
SQLRETURN onEnvironment(SQLHENV handle, const char* function, Work work, bool counts = true)
{
    Environment* environment = environments().find(handle);
    if (!environment)
        return SQL_INVALID_HANDLE;
    environment->diagnostics.clear();
    if (counts && faultStrikes(function, &environment->diagnostics))
        return SQL_ERROR;
    return guarded(environment->diagnostics, [&] { return work(*environment); });
}

template <class Work>
SQLRETURN onConnection(SQLHDBC handle, const char* function, Work work, bool counts = true)
{
    Connection* connection = connections().find(handle);
    if (!connection)
        return SQL_INVALID_HANDLE;
    connection->diagnostics().clear();
    if (counts && !connection->isHidden() && faultStrikes(function, &connection->diagnostics()))
        return SQL_ERROR;
    return guarded(connection->diagnostics(), [&] { return work(*connection); });
}

template <class Work> SQLRETURN onStatement(SQLHSTMT handle, const char* function, Work work)
{
    Statement* statement = statements().find(handle);
    if (!statement)
        return SQL_INVALID_HANDLE;
    statement->diagnostics().clear();
    if (isFaultSet() && !statement->connection().isHidden()
        && faultStrikes(function, &statement->diagnostics()))
        return SQL_ERROR;
    return guarded(statement->diagnostics(), [&] { return work(*statement); });
}

/// A text argument and its length, which may be SQL_NTS. False when the length is impossible.
inline bool readText(const SQLCHAR* text, SQLINTEGER length, std::string_view& out)
{
    const auto* bytes = reinterpret_cast<const char*>(text);
    if (!bytes || (length < 0 && length != SQL_NTS))
        return false;
    out = length == SQL_NTS ? std::string_view(bytes)
                            : std::string_view(bytes, static_cast<size_t>(length));
    return true;
}

} // namespace desktopdb

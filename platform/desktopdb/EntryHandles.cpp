// platform/desktopdb/EntryHandles.cpp
// ODBC functions on environments and connections, and the diagnostics of all handles.
#include "platform/desktopdb/Entry.h"
#include "platform/desktopdb/TestControl.h"

using namespace desktopdb;

namespace {
SQLRETURN allocateEnvironment(SQLHANDLE* out)
{
    readTestEnvironment();
    if (faultStrikes("SQLAllocHandle", nullptr)) // there is no handle yet that could say why
        return SQL_ERROR;
    auto environment = std::make_unique<Environment>();
    *out = environments().add(environment.get());
    if (!*out)
        return SQL_ERROR;
    static_cast<void>(environment.release()); // the handle owns it now
    return SQL_SUCCESS;
}

SQLRETURN allocateConnection(SQLHANDLE input, SQLHANDLE* out)
{
    return onEnvironment(input, "SQLAllocHandle", [&](Environment& environment) {
        auto connection = std::make_unique<Connection>(environment);
        *out = connections().add(connection.get());
        if (!*out)
            return environment.diagnostics.fail("HY014", "too many connection handles");
        environment.connections.insert(*out);
        static_cast<void>(connection.release()); // the handle owns it now
        return SQLRETURN(SQL_SUCCESS);
    });
}

SQLRETURN allocateStatement(SQLHANDLE input, SQLHANDLE* out)
{
    return onConnection(input, "SQLAllocHandle", [&](Connection& connection) {
        if (!connection.isConnected())
            return connection.diagnostics().fail("08003", "the connection is not open");
        auto statement = std::make_unique<Statement>(connection);
        *out = statements().add(statement.get());
        if (!*out)
            return connection.diagnostics().fail("HY014", "too many statement handles");
        connection.statements().insert(*out);
        static_cast<void>(statement.release()); // the handle owns it now
        return SQLRETURN(SQL_SUCCESS);
    });
}

SQLRETURN freeEnvironment(SQLHANDLE handle)
{
    return onEnvironment(handle, "SQLFreeHandle", [&](Environment& environment) {
        if (!environment.connections.empty())
            return environment.diagnostics.fail("HY010", "the environment has connections");
        environments().remove(handle);
        delete &environment;
        return SQLRETURN(SQL_SUCCESS);
    });
}

SQLRETURN freeConnection(SQLHANDLE handle)
{
    return onConnection(handle, "SQLFreeHandle", [&](Connection& connection) {
        if (connection.isConnected())
            return connection.diagnostics().fail("HY010", "the connection is open");
        connection.environment().connections.erase(handle);
        connections().remove(handle);
        delete &connection;
        return SQLRETURN(SQL_SUCCESS);
    });
}

SQLRETURN dropStatement(SQLHANDLE handle, const char* function)
{
    return onStatement(handle, function, [&](Statement& statement) {
        statement.connection().statements().erase(handle);
        statements().remove(handle);
        delete &statement;
        return SQLRETURN(SQL_SUCCESS);
    });
}

const Diagnostics* diagnosticsOf(SQLSMALLINT type, SQLHANDLE handle)
{
    switch (type) {
    case SQL_HANDLE_ENV:
        if (Environment* environment = environments().find(handle))
            return &environment->diagnostics;
        return nullptr;
    case SQL_HANDLE_DBC:
        if (Connection* connection = connections().find(handle))
            return &connection->diagnostics();
        return nullptr;
    case SQL_HANDLE_STMT:
        if (Statement* statement = statements().find(handle))
            return &statement->diagnostics();
        return nullptr;
    default:
        return nullptr;
    }
}

bool isTestAttribute(SQLINTEGER attribute)
{
    return attribute >= SQL_ATTR_DESKTOPDB_FAULT && attribute <= SQL_ATTR_DESKTOPDB_CACHE_MISSES;
}

// States that the 3.x standard took from ISO begin with these classes.
const char* originOf(const std::string& state)
{
    return state.starts_with("IM") ? "ODBC 3.0" : "ISO 9075";
}

SQLRETURN recordField(const DiagnosticRecord& record, SQLSMALLINT field, SQLPOINTER value,
    SQLSMALLINT capacity, SQLSMALLINT* length)
{
    const auto text = [&](std::string_view t) -> SQLRETURN {
        return copyOut(t, value, capacity, length) ? SQL_SUCCESS : SQL_SUCCESS_WITH_INFO;
    };
    switch (field) {
    case SQL_DIAG_SQLSTATE:
        return text(record.state);
    case SQL_DIAG_MESSAGE_TEXT:
        return text(record.message);
    case SQL_DIAG_CLASS_ORIGIN:
    case SQL_DIAG_SUBCLASS_ORIGIN:
        return text(originOf(record.state));
    case SQL_DIAG_CONNECTION_NAME:
    case SQL_DIAG_SERVER_NAME:
        return text("");
    case SQL_DIAG_NATIVE:
        *static_cast<SQLINTEGER*>(value) = record.native;
        return SQL_SUCCESS;
    case SQL_DIAG_ROW_NUMBER:
        *static_cast<SQLLEN*>(value) = SQL_ROW_NUMBER_UNKNOWN;
        return SQL_SUCCESS;
    case SQL_DIAG_COLUMN_NUMBER:
        *static_cast<SQLINTEGER*>(value) = SQL_COLUMN_NUMBER_UNKNOWN;
        return SQL_SUCCESS;
    default:
        return SQL_ERROR;
    }
}

SQLRETURN headerField(SQLSMALLINT type, SQLHANDLE handle, const Diagnostics& diagnostics,
    SQLSMALLINT field, SQLPOINTER value)
{
    switch (field) {
    case SQL_DIAG_NUMBER:
        *static_cast<SQLINTEGER*>(value) = diagnostics.count();
        return SQL_SUCCESS;
    case SQL_DIAG_RETURNCODE:
        *static_cast<SQLRETURN*>(value) = diagnostics.count() ? SQL_ERROR : SQL_SUCCESS;
        return SQL_SUCCESS;
    case SQL_DIAG_ROW_COUNT:
        return type == SQL_HANDLE_STMT
            ? statements().find(handle)->rowCount(static_cast<SQLLEN*>(value))
            : SQL_ERROR;
    default:
        return SQL_ERROR;
    }
}
} // namespace

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT type, SQLHANDLE input, SQLHANDLE* out)
try {
    if (!out)
        return SQL_ERROR;
    *out = SQL_NULL_HANDLE;
    switch (type) {
    case SQL_HANDLE_ENV:
        return allocateEnvironment(out);
    case SQL_HANDLE_DBC:
        return allocateConnection(input, out);
    case SQL_HANDLE_STMT:
        return allocateStatement(input, out);
    default:
        return SQL_ERROR;
    }
} catch (const std::bad_alloc&) {
    return SQL_ERROR;
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT type, SQLHANDLE handle)
{
    switch (type) {
    case SQL_HANDLE_ENV:
        return freeEnvironment(handle);
    case SQL_HANDLE_DBC:
        return freeConnection(handle);
    case SQL_HANDLE_STMT:
        return dropStatement(handle, "SQLFreeHandle");
    default:
        return SQL_INVALID_HANDLE;
    }
}

SQLRETURN SQL_API SQLFreeStmt(SQLHSTMT handle, SQLUSMALLINT option)
{
    if (option == SQL_DROP)
        return dropStatement(handle, "SQLFreeStmt");
    return onStatement(handle, "SQLFreeStmt", [&](Statement& s) { return s.free(option); });
}

SQLRETURN SQL_API SQLSetEnvAttr(SQLHENV handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER)
{
    return onEnvironment(handle, "SQLSetEnvAttr", [&](Environment& environment) -> SQLRETURN {
        if (attribute == SQL_ATTR_ODBC_VERSION)
            environment.odbcVersion = static_cast<SQLINTEGER>(reinterpret_cast<SQLLEN>(value));
        else if (attribute != SQL_ATTR_OUTPUT_NTS && attribute != SQL_ATTR_CONNECTION_POOLING
            && attribute != SQL_ATTR_CP_MATCH)
            return environment.diagnostics.fail("HY092", "the environment attribute is not known");
        return SQL_SUCCESS;
    });
}

SQLRETURN SQL_API SQLGetEnvAttr(
    SQLHENV handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER, SQLINTEGER* length)
{
    const auto answer = [&](Environment& environment) -> SQLRETURN {
        if (attribute != SQL_ATTR_ODBC_VERSION && attribute != SQL_ATTR_OUTPUT_NTS)
            return environment.diagnostics.fail("HY092", "the environment attribute is not known");
        if (value)
            *static_cast<SQLINTEGER*>(value) =
                attribute == SQL_ATTR_ODBC_VERSION ? environment.odbcVersion : SQL_TRUE;
        if (length)
            *length = sizeof(SQLINTEGER);
        return SQL_SUCCESS;
    };
    // The driver manager asks on its own when it connects.
    return onEnvironment(handle, "SQLGetEnvAttr", answer, false);
}

SQLRETURN SQL_API SQLDriverConnect(SQLHDBC handle, SQLHWND, SQLCHAR* text, SQLSMALLINT length,
    SQLCHAR* out, SQLSMALLINT capacity, SQLSMALLINT* outLength, SQLUSMALLINT)
{
    return onConnection(handle, "SQLDriverConnect", [&](Connection& connection) -> SQLRETURN {
        std::string_view connectString;
        if (!readText(text, length, connectString))
            return connection.diagnostics().fail("HY090", "the connection string has no length");
        const SQLRETURN result = connection.connect(connectString);
        if (!SQL_SUCCEEDED(result) || copyOut(connectString, out, capacity, outLength))
            return result;
        return connection.diagnostics().warn(
            "01004", "the connection string is longer than the buffer");
    });
}

SQLRETURN SQL_API SQLDisconnect(SQLHDBC handle)
{
    return onConnection(handle, "SQLDisconnect", [](Connection& c) { return c.disconnect(); });
}

SQLRETURN SQL_API SQLSetConnectAttr(
    SQLHDBC handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER length)
{
    return onConnection(
        handle, "SQLSetConnectAttr",
        [&](Connection& c) { return c.setAttribute(attribute, value, length); },
        !isTestAttribute(attribute));
}

SQLRETURN SQL_API SQLGetConnectAttr(
    SQLHDBC handle, SQLINTEGER attribute, SQLPOINTER value, SQLINTEGER capacity, SQLINTEGER* length)
{
    return onConnection(
        handle, "SQLGetConnectAttr",
        [&](Connection& c) { return c.getAttribute(attribute, value, capacity, length); },
        !isTestAttribute(attribute));
}

SQLRETURN SQL_API SQLGetInfo(
    SQLHDBC handle, SQLUSMALLINT type, SQLPOINTER value, SQLSMALLINT capacity, SQLSMALLINT* length)
{
    // The driver manager's own questions are no calls of the application's.
    const bool counts = type != SQL_CURSOR_COMMIT_BEHAVIOR && type != SQL_CURSOR_ROLLBACK_BEHAVIOR
        && type != SQL_DRIVER_ODBC_VER;
    return onConnection(
        handle, "SQLGetInfo",
        [&](Connection& c) { return c.getInfo(type, value, capacity, length); }, counts);
}

SQLRETURN SQL_API SQLEndTran(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT completion)
{
    if (type == SQL_HANDLE_DBC)
        return onConnection(
            handle, "SQLEndTran", [&](Connection& c) { return c.endTransaction(completion); });
    if (type != SQL_HANDLE_ENV)
        return SQL_INVALID_HANDLE;
    return onEnvironment(handle, "SQLEndTran", [&](Environment& environment) -> SQLRETURN {
        SQLRETURN result = SQL_SUCCESS;
        for (void* each : environment.connections) {
            Connection* connection = connections().find(each);
            connection->diagnostics().clear();
            if (connection->isConnected() && connection->endTransaction(completion) == SQL_ERROR)
                result = environment.diagnostics.fail(
                    "25S01", connection->diagnostics().record(1)->message);
        }
        return result;
    });
}

SQLRETURN SQL_API SQLGetDiagRec(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT number,
    SQLCHAR* state, SQLINTEGER* native, SQLCHAR* message, SQLSMALLINT capacity, SQLSMALLINT* length)
{
    const Diagnostics* diagnostics = diagnosticsOf(type, handle);
    if (!diagnostics)
        return SQL_INVALID_HANDLE;
    if (number < 1 || capacity < 0)
        return SQL_ERROR;
    const DiagnosticRecord* record = diagnostics->record(number);
    if (!record)
        return SQL_NO_DATA;
    if (state)
        copyOut(record->state, state, SQL_SQLSTATE_SIZE + 1, static_cast<SQLLEN*>(nullptr));
    if (native)
        *native = record->native;
    return copyOut(record->message, message, capacity, length) ? SQL_SUCCESS
                                                               : SQL_SUCCESS_WITH_INFO;
}

SQLRETURN SQL_API SQLGetDiagField(SQLSMALLINT type, SQLHANDLE handle, SQLSMALLINT number,
    SQLSMALLINT field, SQLPOINTER value, SQLSMALLINT capacity, SQLSMALLINT* length)
{
    const Diagnostics* diagnostics = diagnosticsOf(type, handle);
    if (!diagnostics)
        return SQL_INVALID_HANDLE;
    if (!value)
        return SQL_ERROR;
    if (number == 0)
        return headerField(type, handle, *diagnostics, field, value);
    const DiagnosticRecord* record = diagnostics->record(number);
    return record ? recordField(*record, field, value, capacity, length) : SQL_NO_DATA;
}

// platform/desktopdb/Registry.cpp
#include "platform/desktopdb/Registry.h"

namespace desktopdb {

// Never destroyed: applications free handles while the process is ending.

HandleTable<Environment>& environments()
{
    static auto* const table = new HandleTable<Environment>;
    return *table;
}

HandleTable<Connection>& connections()
{
    static auto* const table = new HandleTable<Connection>;
    return *table;
}

HandleTable<Statement>& statements()
{
    static auto* const table = new HandleTable<Statement>;
    return *table;
}

void dropStatements(Connection& connection)
{
    for (void* handle : connection.statements()) {
        const Statement* statement = statements().find(handle);
        statements().remove(handle);
        delete statement;
    }
    connection.statements().clear();
}

} // namespace desktopdb

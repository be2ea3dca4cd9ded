// app/batch/RunCommand.cpp
#include "app/batch/RunCommand.h"

#include "app/batch/Failure.h"
#include "app/shell/OpenDatabase.h"
#include "app/shell/SettingsFile.h"
#include "db/Session.h"

#include <iostream>

namespace {

class SessionEnd {
public:
    ~SessionEnd() { dbDisconnect(); }
};

std::string openForWork(const ConnectionSettings& connection)
{
    std::string notice;
    const std::string problem = openDatabase(connection, &notice);
    if (!notice.empty())
        std::cerr << "zonaris: " << notice << '\n';
    return problem;
}

bool opensNothing(const BatchOptions& options)
{
    return options.database == DatabaseNeed::None || options.database == DatabaseNeed::ByItself
        || !options.connection.isNamed();
}

// Why there is no session; empty when there is one, or none is wanted.
std::string openFor(const BatchOptions& options)
{
    if (options.database == DatabaseNeed::Create)
        return createDatabaseFile(options.connection, options.fill);
    if (opensNothing(options))
        return {};
    return options.database == DatabaseNeed::AsIs ? connectDatabase(options.connection)
                                                  : openForWork(options.connection);
}

} // namespace

int runCommand(const BatchOptions& options)
{
    const SessionEnd end;
    const std::string problem = openFor(options);
    if (!problem.empty())
        return failed(problem);
    if (!opensNothing(options))
        rememberDatabase(options.connection);
    return options.run();
}

// app/batch/RunCommand.cpp
#include "app/batch/RunCommand.h"

#include "app/batch/Failure.h"
#include "app/shell/OpenDatabase.h"
#include "db/Session.h"

namespace {

class SessionEnd {
public:
    ~SessionEnd() { dbDisconnect(); }
};

// Why there is no session; empty when there is one, or none is wanted.
std::string openFor(const BatchOptions& options)
{
    if (options.database == DatabaseNeed::Create)
        return createDatabaseFile(options.connection, options.fill);
    return options.connection.isNamed() ? openDatabase(options.connection) : "";
}

} // namespace

int runCommand(const BatchOptions& options)
{
    const SessionEnd end;
    const std::string problem = openFor(options);
    return problem.empty() ? options.run() : failed(problem);
}

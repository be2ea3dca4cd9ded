// app/shell/Migration.cpp
#include "app/shell/Migration.h"

#include "app/shell/Backup.h"
#include "app/shell/EmbeddedDatabase.h"
#include "app/shell/FilePlacing.h"
#include "app/shell/ProgramVersion.h"
#include "db/Literals.h"
#include "schema/Migrations.h"
#include "schema/Schema.h"
#include "store/Statement.h"
#include "store/Transaction.h"

namespace {

// Each waits as long as the driver waits for a lock, five seconds.
constexpr int kLockTries = 24;

// From here on nobody else writes, so the copy is of what is converted.
std::string takeWriteLock(Transaction& transaction)
{
    for (int i = 0; i < kLockTries; ++i) {
        if (transaction.lock())
            return {};
        if (transaction.error().find("locked") == std::string::npos)
            break;
    }
    return transaction.error();
}

std::string runSteps(long from)
{
    for (const Migration& step : migrations()) {
        if (step.version <= from)
            continue;
        for (const std::string_view text : step.statements) {
            Statement statement{std::string(text)};
            if (!statement.execute())
                return statement.sql() + ": " + statement.error();
        }
    }
    return stampSchema(kSchemaVersion);
}

std::string versions(long from)
{
    return "version " + std::to_string(from) + " to " + std::to_string(kSchemaVersion);
}

} // namespace

std::string stampSchema(int version)
{
    Statement stamp("UPDATE " + sql::table("SCHEMA_INFO") + " SET version = ?, made_with = ?");
    stamp.bind(1, static_cast<long>(version));
    stamp.bind(2, std::string(programVersion()));
    return stamp.execute() ? std::string() : stamp.sql() + ": " + stamp.error();
}

std::string migrateDatabase(const ConnectionSettings& settings, std::string* notice)
{
    const std::string file = embeddedFile(settings);
    const std::string failed = file + " could not be converted to tables of version "
        + std::to_string(kSchemaVersion) + ": ";
    if (!mayChange(file))
        return failed
            + "it or its folder may only be read. Make both writable, or copy the file elsewhere.";
    Transaction transaction;
    std::string error = takeWriteLock(transaction);
    if (!error.empty())
        return failed + error + "\nThe file is as it was. End other programs that use it.";
    long from = 0;
    error = readSchemaVersion(&from);
    if (!error.empty() || from >= kSchemaVersion)
        return error;
    std::filesystem::path copy;
    error = backUpBeside(settings, from, &copy).error;
    if (!error.empty())
        return failed + error + "\nThe file is as it was.";
    error = runSteps(from);
    if (error.empty() && !transaction.commit())
        error = transaction.error();
    if (!error.empty())
        return failed + error + "\nThe file is as it was; a copy of it is " + copy.string() + ".";
    *notice = "The tables of " + file + " were converted from " + versions(from)
        + ". The file as it was before is " + copy.string() + ".";
    return {};
}

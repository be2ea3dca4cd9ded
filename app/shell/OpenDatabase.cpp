// app/shell/OpenDatabase.cpp
#include "app/shell/OpenDatabase.h"

#include "app/shell/ConnectFailure.h"
#include "app/shell/EmbeddedDatabase.h"
#include "app/shell/Migration.h"
#include "db/Connection.h"
#include "db/CurrentUser.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/SchemaInspection.h"
#include "db/Session.h"
#include "dict/EventLabels.h"
#include "schema/Schema.h"
#include "well/Sample.h"

#include <filesystem>
#include <system_error>

namespace {

namespace fs = std::filesystem;

// What the literals of dates rely on where the database takes them as texts.
constexpr const char* kDateFormat = "ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ";

bool isOracle(int kind) { return kind == 2 || kind == 3; }

std::string fieldProblem(const ConnectionSettings& settings)
{
    if (settings.databaseFile.empty() == settings.connectString.empty())
        return "Name either a database file or a connection string.";
    if (settings.ownerPrefix.size() > decltype(ownerPrefix)::capacity())
        return "The owner prefix \"" + settings.ownerPrefix + "\" has more than 50 bytes.";
    if (settings.user.size() > decltype(currentUserAbr)::capacity())
        return "The user abbreviation \"" + settings.user + "\" has more than 5 bytes.";
    return {};
}

void applySettings(const ConnectionSettings& settings)
{
    dbKind = settings.kind;
    ownerPrefix = settings.ownerPrefix;
    currentUserAbr = settings.user;
    currentUserId = 0;
}

std::string connect(const ConnectionSettings& settings, FileAccess access)
{
    std::string error;
    const std::string text = connectStringOf(settings, access, &error);
    if (text.empty() || dbConnect(text.c_str()) == 1)
        return error;
    dbDisconnect();
    return connectFailure(text, dbConnectError());
}

std::string setDateFormat(int kind)
{
    if (!isOracle(kind) || runStatement(kDateFormat))
        return {};
    return std::string("The date format of the session could not be set: ") + dbErrorText();
}

// A user that USERDEF does not know keeps the abbreviation and has number 0.
std::string findUser(const std::string& abbreviation)
{
    if (abbreviation.empty())
        return {};
    const std::string select =
        "SELECT user_id FROM " + sql::table("USERDEF") + " WHERE abr=" + sql::quote(abbreviation);
    Cursor rows(select);
    if (!rows)
        return "The user could not be looked up: " + select + "\n" + dbErrorText();
    if (rows.next())
        currentUserId = static_cast<int>(rows.integer(1));
    return {};
}

// Whether the tables of an embedded database are of this program's version; older ones are made so.
std::string settleVersion(const ConnectionSettings& settings, std::string* notice)
{
    const std::string file = embeddedFile(settings);
    if (file.empty())
        return {};
    if (!tableExists("WELLS"))
        return file + " holds no tables of this program. Make a database with: zonaris create FILE";
    long version = 0;
    const std::string error = readSchemaVersion(&version);
    if (!error.empty())
        return file + ": " + error;
    if (version > kSchemaVersion)
        return file + " has tables of version " + std::to_string(version)
            + "; this program knows versions up to " + std::to_string(kSchemaVersion)
            + ". Use a newer program.";
    return version < kSchemaVersion ? migrateDatabase(settings, notice) : std::string();
}

std::string missingFileProblem(const std::string& file)
{
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (!fs::exists(status))
        return "There is no database file " + file + ". Make one with: zonaris create " + file;
    return fs::is_directory(status) ? file + " is a folder, not a database file." : std::string();
}

// What the core keeps for the process and asks nobody for later.
void loadUserSettings()
{
    loadEventPrefixes();
    Sample::LoadSplitSwitches();
}

std::string beginWork(const ConnectionSettings& settings, std::string* notice)
{
    std::string error = settleVersion(settings, notice);
    if (error.empty())
        error = findUser(settings.user);
    if (error.empty())
        loadUserSettings();
    else
        dbDisconnect();
    return error;
}

std::string connectAndSet(const ConnectionSettings& settings, FileAccess access)
{
    applySettings(settings);
    std::string error = connect(settings, access);
    if (error.empty())
        error = setDateFormat(settings.kind);
    if (!error.empty())
        dbDisconnect();
    return error;
}

std::string createTables(const FillDatabase& fill)
{
    return createDatabase([&] {
        const std::string error = stampSchema(kSchemaVersion);
        return error.empty() && fill ? fill() : error;
    });
}

void removeFile(const std::string& file)
{
    std::error_code ignored;
    for (const char* suffix : {"", "-wal", "-shm", "-journal"})
        fs::remove(file + suffix, ignored);
}

} // namespace

std::string connectDatabase(const ConnectionSettings& settings)
{
    std::string error = fieldProblem(settings);
    if (error.empty() && !settings.databaseFile.empty())
        error = missingFileProblem(settings.databaseFile);
    return error.empty() ? connectAndSet(settings, FileAccess::Open) : error;
}

std::string openDatabase(const ConnectionSettings& settings, std::string* notice)
{
    std::string unread;
    const std::string error = connectDatabase(settings);
    return error.empty() ? beginWork(settings, notice ? notice : &unread) : error;
}

std::string createDatabaseFile(const ConnectionSettings& settings, const FillDatabase& fill)
{
    if (settings.databaseFile.empty())
        return "Name the database file to create.";
    std::string error = fieldProblem(settings);
    if (!error.empty())
        return error;
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(settings.databaseFile, ignored)))
        return settings.databaseFile + " is there already; it was left as it is.";
    error = connectAndSet(settings, FileAccess::Create);
    if (error.empty())
        error = createTables(fill);
    std::string notice;
    if (error.empty())
        error = beginWork(settings, &notice);
    if (error.empty())
        return {};
    dbDisconnect();
    removeFile(settings.databaseFile);
    return error;
}

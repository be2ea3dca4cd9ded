// app/shell/Doctor.cpp
#include "app/shell/Doctor.h"

#include "app/shell/DriverLibrary.h"
#include "app/shell/EmbeddedDatabase.h"
#include "app/shell/FilePlacing.h"
#include "app/shell/OpenDatabase.h"
#include "app/shell/ProgramVersion.h"
#include "app/shell/SettingsFile.h"
#include "app/shell/SideConnection.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "schema/Schema.h"

#include <sqlext.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMegabyte = 1024 * 1024;
constexpr std::uintmax_t kLittleSpace = 64 * kMegabyte;
constexpr const char* kDamage =
    "Use the last backup, or save what can be read with SQLite's own program and its .recover.";

class Examination {
public:
    explicit Examination(const ConnectionSettings& settings)
        : settings_(settings)
    {
    }

    Diagnosis run()
    {
        fact("program", programVersion());
        examineSettings();
        examineDriverFile();
        if (settings_.isNamed())
            examineConnection();
        else
            fact("database", "none was named");
        return std::move(result_);
    }

private:
    void fact(const char* name, const std::string& value)
    {
        result_.facts.push_back({name, value});
    }
    void problem(const std::string& text, const std::string& remedy)
    {
        result_.problems.push_back({text, remedy});
    }

    void examineSettings()
    {
        fact("settings", settingsFile().empty() ? "none are kept" : settingsFile().string());
        Settings settings;
        const std::string wrong = readSettings(&settings);
        if (!wrong.empty())
            problem(
                wrong, "Until then connections by name, the user and recent files are unknown.");
    }

    void examineDriverFile()
    {
        std::string error;
        const std::string driver = driverLibrary(&error);
        fact("driver file", driver.empty() ? "not found" : driver);
        if (driver.empty())
            problem(error, "Install the program whole, or put the driver where it is looked for.");
    }

    void examineConnection()
    {
        fact("database",
            settings_.databaseFile.empty() ? withoutSecrets(settings_.connectString)
                                           : settings_.databaseFile);
        const std::string error = connectDatabase(settings_);
        if (error.empty())
            examineConnected();
        else
            problem(error, "Nothing in the database could be examined.");
        dbDisconnect();
    }

    void examineConnected()
    {
        tellConnection();
        std::string error;
        SideConnection side(connectStringOf(settings_, FileAccess::Open, &error));
        const std::string file = embeddedFile(settings_);
        if (!file.empty())
            examineFile(side, file);
        examineVersion(side, !file.empty());
        examineRelations(side, &result_);
    }

    void tellConnection()
    {
        fact("driver manager", connectionInfo(SQL_DM_VER));
        fact("driver",
            connectionInfo(SQL_DRIVER_NAME) + ' ' + connectionInfo(SQL_DRIVER_VER) + ", ODBC "
                + connectionInfo(SQL_DRIVER_ODBC_VER));
        fact("engine", connectionInfo(SQL_DBMS_NAME) + ' ' + connectionInfo(SQL_DBMS_VER));
        fact("kind",
            std::to_string(dbKind) + (dbKind == 2 ? ", Oracle's SQL" : ", Access-style SQL"));
    }

    /// The first value of the answer; "?" without one, which is a problem.
    std::string answer(SideConnection& side, const std::string& question)
    {
        std::vector<std::string> texts;
        if (!side.run(question, &texts)) {
            problem(question + ": " + side.error(), kDamage);
            return "?";
        }
        return texts.empty() ? "?" : texts.front();
    }

    void examineFile(SideConnection& side, const std::string& file)
    {
        examineIntegrity(side);
        fact("journal", answer(side, "PRAGMA journal_mode"));
        const long long page = std::atoll(answer(side, "PRAGMA page_size").c_str());
        const long long pages = std::atoll(answer(side, "PRAGMA page_count").c_str());
        const long long unused = std::atoll(answer(side, "PRAGMA freelist_count").c_str());
        fact("size",
            std::to_string(page * pages) + " bytes, " + std::to_string(page * unused)
                + " of them unused");
        examineSpace(fs::absolute(file).parent_path());
        if (!mayChange(file))
            fact("access", "the file or its folder may only be read");
    }

    void examineIntegrity(SideConnection& side)
    {
        std::vector<std::string> findings;
        if (!side.run("PRAGMA integrity_check(20)", &findings))
            findings = {side.error()};
        const bool good = findings.size() == 1 && findings.front() == "ok";
        fact("integrity", good ? "ok" : "damaged");
        for (const std::string& finding : findings)
            if (!good)
                problem("The file is damaged: " + finding, kDamage);
    }

    void examineSpace(const fs::path& folder)
    {
        std::error_code error;
        const fs::space_info space = fs::space(folder, error);
        if (error)
            return;
        fact("free on disk", std::to_string(space.available / kMegabyte) + " MiB");
        if (space.available < kLittleSpace)
            problem("The disk is nearly full.", "Make room in " + folder.string() + '.');
    }

    // Tables of another version differ from the shipped ones rightly.
    void examineVersion(SideConnection& side, bool embedded)
    {
        if (!embedded)
            return examineTables(side, false, &result_);
        long version = 0;
        const std::string error = readSchemaVersion(&version);
        fact("tables", error.empty() ? "version " + std::to_string(version) : "unknown version");
        if (!error.empty())
            problem(error, "Make a database with: zonaris create FILE");
        else if (version > kSchemaVersion)
            problem("The tables are of a later version than this program's, which is "
                    + std::to_string(kSchemaVersion) + '.',
                "Use a newer program.");
        else if (version < kSchemaVersion)
            fact("",
                "any other command converts them to version " + std::to_string(kSchemaVersion)
                    + " and keeps a copy");
        else {
            fact("made with", answer(side, "SELECT made_with FROM " + sql::table("SCHEMA_INFO")));
            examineTables(side, true, &result_);
        }
    }

    const ConnectionSettings& settings_;
    Diagnosis result_;
};

} // namespace

Diagnosis examineDatabase(const ConnectionSettings& settings)
{
    return Examination(settings).run();
}

// tests/app/shell/MigrationTest.cpp
#include "app/shell/Backup.h"
#include "app/shell/OpenDatabase.h"
#include "app/shell/ProgramVersion.h"
#include "tests/app/Files.h"
#include "tests/support/MessageLog.h"
#include "tests/support/SchemaDatabase.h"
#include "tests/support/TestDatabase.h"

#include "db/Connection.h"
#include "db/Session.h"
#include "schema/Migrations.h"
#include "schema/Schema.h"
#include "tests/support/DriverControl.h"

#include <algorithm>
#include <memory>

#include <gmock/gmock.h>

#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

// What version 1 had otherwise.
constexpr const char* kVersionOne[] = {
    "DROP TABLE SCHEMA_INFO",
    "CREATE TABLE SCHEMA_INFO (version INTEGER NOT NULL)",
    "INSERT INTO SCHEMA_INFO (version) VALUES (1)",
    "INSERT INTO WELLS (well_code, well_name) VALUES ('A', 'kept')",
};

constexpr const char* kColumns =
    "SELECT m.name, c.name, c.type, c.pk FROM sqlite_master m, pragma_table_info(m.name) c"
    " WHERE m.type = 'table' ORDER BY m.name, c.cid";

// Made once and copied.
const std::string& oldFile()
{
    static const std::string file = [] {
        const std::string made = workspace::newFile("old.zdb");
        SchemaDatabase old("Access", made);
        for (const char* statement : kVersionOne)
            old.run(statement);
        return made;
    }();
    return file;
}

class Migrating : public testing::Test {
protected:
    Migrating()
    {
        settings.databaseFile = (folder.path() / "old's {1}.zdb").string();
        settings.kind = testSettings().kind;
        settings.ownerPrefix = testSettings().prefix;
        dbDisconnect();
        makeOld();
    }
    ~Migrating() override { dbDisconnect(); }

    void makeOld() const { fs::copy_file(oldFile(), settings.databaseFile); }
    std::string file(const char* suffix = "") const { return settings.databaseFile + suffix; }
    static std::vector<std::string> lines(const std::string& file, const std::string& sql)
    {
        return OdbcConnection(driver_control::connectString(file, "Access")).lines(sql);
    }
    static std::string version(const std::string& file)
    {
        const auto rows = lines(file, "SELECT max(version) FROM SCHEMA_INFO");
        return rows.empty() ? "" : rows.front();
    }
    std::vector<std::string> files() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

    const TestDatabase session; // the kind and the prefix of this process
    const Folder folder;
    ConnectionSettings settings;
};

TEST_F(Migrating, GivesTheTablesOfANewDatabaseAndKeepsTheFormerFile)
{
    std::string notice;
    ASSERT_EQ("", openDatabase(settings, &notice));
    EXPECT_EQ("The tables of " + file()
            + " were converted from version 1 to 2. The file as it was"
              " before is "
            + file(".v1.bak") + ".",
        notice);
    dbDisconnect();
    EXPECT_EQ(lines(file(), "SELECT version, made_with FROM SCHEMA_INFO"),
        std::vector{"2|" + std::string(programVersion())});
    SchemaDatabase fresh;
    EXPECT_EQ(fresh.lines(kColumns), lines(file(), kColumns));
    EXPECT_EQ(lines(file(), "SELECT well_name FROM WELLS"), std::vector<std::string>{"kept"});
    EXPECT_EQ("1", version(file(".v1.bak")));
    EXPECT_EQ(
        lines(file(".v1.bak"), "SELECT well_name FROM WELLS"), std::vector<std::string>{"kept"});
    EXPECT_EQ(static_cast<std::size_t>(kSchemaVersion - 1), migrations().size());
    EXPECT_EQ(kSchemaVersion, migrations().back().version);

    notice.clear();
    EXPECT_EQ("", openDatabase(settings, &notice));
    EXPECT_EQ("", notice);
    EXPECT_EQ(files(),
        (std::vector<std::string>{
            "old's {1}.zdb", "old's {1}.zdb-shm", "old's {1}.zdb-wal", "old's {1}.zdb.v1.bak"}));
}

TEST_F(Migrating, OverwritesNoCopy)
{
    folder.write("old's {1}.zdb.v1.bak", "mine");
    ASSERT_EQ("", openDatabase(settings));
    EXPECT_EQ(4u, fs::file_size(file(".v1.bak")));
    EXPECT_EQ("1", version(file(".v1.bak2")));
}

TEST_F(Migrating, EachDriverCallFailingLeavesTheFileAsItWas)
{
    const MessageLog boxes;
    int kept = 0;
    for (int n = 1;; ++n) {
        auto fault = std::make_unique<DriverFault>(n);
        const std::string error = openDatabase(settings);
        dbDisconnect();
        const bool fired = fault->fired();
        SCOPED_TRACE(fault->call() + ' ' + std::to_string(n) + ": " + error);
        fault.reset();
        const bool copied = fs::exists(file(".v1.bak"));
        const bool refused = error.find("could not be converted") != std::string::npos;
        EXPECT_TRUE(!error.empty() || version(file()) == "2");
        EXPECT_TRUE(!refused || version(file()) == "1");
        EXPECT_TRUE(!refused || copied == (error.find("; a copy of it is ") != std::string::npos));
        EXPECT_TRUE(!copied || version(file(".v1.bak")) == "1");
        EXPECT_THAT(files(), testing::Each(testing::Not(HasSubstr(".part"))));
        kept += refused && copied;
        if (!fired)
            break;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            fs::remove(entry);
        makeOld();
    }
    EXPECT_EQ("2", version(file()));
    EXPECT_GT(kept, 5) << "failures behind the copy";
}

// Both have seen the old version and wait for a writer when the first of them begins.
TEST_F(Migrating, OfTwoProcessesOneConvertsAndTheOtherWaits)
{
    const auto start = [&] {
        const pid_t child = fork();
        if (child == 0) {
            usleep(300'000);
            _exit(openDatabase(settings).empty() ? 0 : 1);
        }
        return child;
    };
    const pid_t children[] = {start(), start()};
    {
        OdbcConnection writer(driver_control::connectString(file(), "Access"));
        writer.begin();
        writer.run("UPDATE WELLS SET well_name = 'last'");
        usleep(1'200'000);
        writer.commit();
    }
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(0, status);
    }
    EXPECT_EQ("2", version(file()));
    EXPECT_EQ(
        lines(file(".v1.bak"), "SELECT well_name FROM WELLS"), std::vector<std::string>{"last"});
    EXPECT_FALSE(fs::exists(file(".v1.bak2"))) << "converted once";
}

/// Not even the administrator may write what is marked as read only, while it lives.
class OrdinaryRights {
public:
    OrdinaryRights()
    {
        syscall(SYS_capget, &header_, before_);
        __user_cap_data_struct less[2] = {before_[0], before_[1]};
        less[0].effective &= ~(1u << CAP_DAC_OVERRIDE | 1u << CAP_DAC_READ_SEARCH);
        syscall(SYS_capset, &header_, less);
    }
    ~OrdinaryRights() { syscall(SYS_capset, &header_, before_); }

private:
    __user_cap_header_struct header_{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct before_[2]{};
};

TEST_F(Migrating, SaysThatAFileMayOnlyBeRead)
{
    const OrdinaryRights rights;
    chmod(file().c_str(), 0444);
    EXPECT_EQ(file()
            + " could not be converted to tables of version 2: it or its folder may only"
              " be read. Make both writable, or copy the file elsewhere.",
        openDatabase(settings));
    EXPECT_FALSE(fs::exists(file(".v1.bak")));
}

TEST_F(Migrating, BackupCopiesWhatIsCommittedWhileOthersWrite)
{
    ASSERT_EQ("", openDatabase(settings));
    OdbcConnection other(driver_control::connectString(file(), "Access"));
    other.begin();
    other.run("INSERT INTO WELLS (well_code) VALUES ('B')");
    const std::string copy = (folder.path() / "copy's.zdb").string();
    const BackupResult made = backUpDatabase(settings, copy);
    EXPECT_EQ("", made.error);
    EXPECT_EQ(fs::file_size(copy), made.bytes);
    other.commit();
    EXPECT_EQ(lines(copy, "SELECT well_code FROM WELLS"), std::vector<std::string>{"A"});
    EXPECT_EQ(copy + " is there already; it was left as it is. Name a new file.",
        backUpDatabase(settings, copy).error);
    EXPECT_THAT(backUpDatabase(settings, folder.path() / "none" / "b.zdb").error,
        StartsWith("The database could not be copied to "));
}

} // namespace

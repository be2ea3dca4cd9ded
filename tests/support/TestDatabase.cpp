// tests/support/TestDatabase.cpp
#include "tests/support/TestDatabase.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Session.h"
#include "tests/support/DriverControl.h"
#include "tests/support/Restore.h"
#include "tests/support/SchemaDatabase.h"
#include "tests/support/Workspace.h"

#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

namespace {

TestSettings settingsFromEnvironment()
{
    const char* kind = std::getenv("ZONARIS_TEST_KIND");
    const char* prefix = std::getenv("ZONARIS_TEST_PREFIX");
    return {kind ? std::atoi(kind) : 0, prefix ? prefix : ""};
}

const char* dialect() { return testSettings().kind == 2 ? "Oracle" : "Access"; }

// Made once per process and copied for each test.
std::string makeTemplate()
{
    const std::string file = workspace::newFile("schema.db");
    SchemaDatabase made(dialect(), file);
    return file;
}

std::string newDatabase(TestDatabase::Contents contents)
{
    const std::string file = workspace::newFile("test.db");
    if (contents == TestDatabase::Schema) {
        static const std::string schema = makeTemplate();
        std::filesystem::copy_file(schema, file);
    }
    return file;
}

bool needsDateFormat(int kind) { return kind == 2 || kind == 3; }

} // namespace

const TestSettings& testSettings()
{
    static const TestSettings settings = settingsFromEnvironment();
    return settings;
}

struct TestDatabase::State {
    Restore<int> kind{dbKind, testSettings().kind};
    Restore<FixedText<50>> prefix{ownerPrefix, FixedText<50>(testSettings().prefix)};
    Restore<int> fatal{fatalError};
    OdbcConnection beside;

    explicit State(const std::string& connectString)
        : beside(connectString)
    {
    }
};

TestDatabase::TestDatabase(Contents contents)
    : state_(nullptr)
    , file_(newDatabase(contents))
    , connectString_(driver_control::connectString(file_, dialect()))
{
    if (std::getenv("ZONARIS_TEST_RECORD"))
        driver_control::record();
    state_ = new State(connectString_);
    EXPECT_EQ(1, dbConnect(connectString_.c_str())) << connectString_;
    const bool ready =
        !needsDateFormat(dbKind) || runStatement("ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy'");
    EXPECT_TRUE(ready) << dbErrorText();
}

TestDatabase::~TestDatabase()
{
    dbDisconnect();
    dbSetConnectString(nullptr);
    delete state_;
    for (const char* suffix : {"", "-journal", "-wal", "-shm"})
        std::filesystem::remove(file_ + suffix);
}

void TestDatabase::run(const std::string& sql) { state_->beside.run(sql); }

std::string TestDatabase::value(const std::string& sql)
{
    const auto rows = state_->beside.run(sql);
    return rows.empty() ? "" : rows.front().front();
}

std::vector<std::string> TestDatabase::rows(const std::string& sql)
{
    return state_->beside.lines(sql);
}

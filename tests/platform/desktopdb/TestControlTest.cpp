// tests/platform/desktopdb/TestControlTest.cpp
// Faults and the recorder, as tests elsewhere rely on them.
#include "platform/desktopdb/TestControl.h"
#include "tests/platform/desktopdb/Client.h"

#include <cstdlib>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

/// A 2.x application, as the older call set has it, from connecting to the last handle.
class Application {
public:
    explicit Application(const std::string& connectString)
    {
        SQLAllocEnv(&environment_);
        SQLAllocConnect(environment_, &connection_);
        SQLCHAR out[500];
        SQLSMALLINT length = 0;
        connected_ = SQL_SUCCEEDED(SQLDriverConnect(connection_, nullptr, bytes(connectString),
            SQL_NTS, out, sizeof out, &length, SQL_DRIVER_COMPLETE));
    }
    ~Application()
    {
        SQLDisconnect(connection_);
        SQLFreeConnect(connection_);
        SQLFreeEnv(environment_);
    }
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    bool isConnected() const { return connected_; }

    void everyCall()
    {
        SQLSetConnectOption(connection_, SQL_AUTOCOMMIT, SQL_AUTOCOMMIT_OFF);
        char name[100];
        SQLSMALLINT length = 0;
        SQLGetInfo(connection_, SQL_DRIVER_NAME, name, sizeof name, &length);
        SQLHSTMT s = SQL_NULL_HSTMT;
        if (SQLAllocStmt(connection_, &s) == SQL_SUCCESS) {
            SQLSetStmtOption(s, SQL_NOSCAN, SQL_NOSCAN_ON);
            if (SQLExecDirect(s, bytes("SELECT a, b FROM t"), SQL_NTS) == SQL_SUCCESS) {
                SQLINTEGER value = 0;
                SQLLEN indicator = 0;
                SQLFetch(s);
                SQLGetData(s, 1, SQL_C_LONG, &value, 4, &indicator);
                SQLRowCount(s, &indicator);
            }
            SQLFreeStmt(s, SQL_DROP);
        }
        if (SQLAllocStmt(connection_, &s) == SQL_SUCCESS) {
            write(s);
            SQLFreeStmt(s, SQL_DROP);
        }
        if (SQLAllocStmt(connection_, &s) == SQL_SUCCESS) {
            SQLColumns(s, nullptr, 0, nullptr, 0, bytes("t"), SQL_NTS, nullptr, 0);
            SQLFreeStmt(s, SQL_DROP);
        }
        SQLTransact(environment_, connection_, SQL_COMMIT);
    }

private:
    static void write(SQLHSTMT s)
    {
        if (SQLPrepare(s, bytes("INSERT INTO t VALUES (1, ?)"), SQL_NTS) != SQL_SUCCESS)
            return;
        SQLLEN later = SQL_DATA_AT_EXEC;
        SQLSetParam(s, 1, SQL_C_CHAR, SQL_CHAR, 3, 0, nullptr, &later);
        SQLPOINTER token = nullptr;
        if (SQLExecute(s) == SQL_NEED_DATA && SQLParamData(s, &token) == SQL_NEED_DATA) {
            SQLPutData(s, bytes("x|y"), SQL_NTS);
            SQLParamData(s, &token);
        }
        SQLCancel(s);
    }

    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
    bool connected_ = false;
};

class TestControl : public testing::Test {
protected:
    TestControl()
    {
        control_.setAttribute(SQL_ATTR_DESKTOPDB_HIDDEN, SQLULEN{1});
        control_.run("CREATE TABLE t (a INTEGER, b VARCHAR(20))");
    }
    ~TestControl() override
    {
        setFault("");
        control_.setAttribute(SQL_ATTR_DESKTOPDB_RECORD, "");
    }
    SQLRETURN setFault(const std::string& text)
    {
        return control_.setAttribute(SQL_ATTR_DESKTOPDB_FAULT, text);
    }
    std::string fired() { return control_.textAttribute(SQL_ATTR_DESKTOPDB_FAULT_FIRED); }

    DatabaseFile file_;
    Client control_{file_};
};

TEST_F(TestControl, OneCallFailsWithWhatWasSet)
{
    Client client(file_);
    setFault("SQLExecDirect:2:HYT00:no time: at all");
    EXPECT_EQ(fired(), "");
    EXPECT_TRUE(client.run("INSERT INTO t VALUES (1, 'a')"));
    EXPECT_EQ(fired(), "");
    EXPECT_FALSE(client.run("INSERT INTO t VALUES (2, 'b')"));
    EXPECT_EQ(client.state(), "HYT00");
    EXPECT_THAT(client.message(), HasSubstr("no time: at all"));
    EXPECT_EQ(fired(), "SQLExecDirect");
    EXPECT_TRUE(client.run("INSERT INTO t VALUES (3, 'c')"));
    EXPECT_EQ(client.value("SELECT count(*) FROM t"), "2"); // the failed one did nothing
}

TEST_F(TestControl, AlwaysMeansFromThenOn)
{
    Client client(file_);
    setFault("SQLExecDirect:2:42000:no:always");
    EXPECT_TRUE(client.run("INSERT INTO t VALUES (1, 'a')"));
    EXPECT_FALSE(client.run("INSERT INTO t VALUES (2, 'b')"));
    EXPECT_FALSE(client.run("INSERT INTO t VALUES (3, 'c')"));
    setFault("");
    EXPECT_TRUE(client.run("INSERT INTO t VALUES (4, 'd')"));
}

TEST_F(TestControl, SettingsThatCannotBeRead)
{
    for (const char* text : {"SQLFetch", "SQLFetch:0", "SQLFetch:x", ":1", "SQLFetch:1:42"})
        EXPECT_EQ(setFault(text), SQL_ERROR) << text;
    EXPECT_EQ(setFault("SQLFetch:1"), SQL_SUCCESS);
}

// Each call of the application in turn, until there is none left to fail.
TEST_F(TestControl, EachCallOfAnOlderApplication)
{
    std::vector<std::string> calls;
    for (int n = 1;; ++n) {
        setFault("any:" + std::to_string(n));
        {
            Application application(file_.connectString(""));
            if (application.isConnected())
                application.everyCall();
        }
        if (fired().empty())
            break;
        calls.push_back(fired());
        ASSERT_LT(n, 100);
    }
    setFault("");
    EXPECT_THAT(calls,
        ElementsAre("SQLAllocHandle", "SQLSetEnvAttr", "SQLAllocHandle", "SQLDriverConnect",
            "SQLSetConnectAttr", "SQLGetInfo", "SQLAllocHandle", "SQLSetStmtAttr", "SQLExecDirect",
            "SQLFetch", "SQLGetData", "SQLRowCount", "SQLFreeHandle", "SQLAllocHandle",
            "SQLPrepare", "SQLBindParameter", "SQLExecute", "SQLParamData", "SQLPutData",
            "SQLParamData", "SQLCancel", "SQLFreeHandle", "SQLAllocHandle", "SQLColumns",
            "SQLFreeHandle", "SQLEndTran", "SQLDisconnect", "SQLFreeHandle", "SQLFreeHandle"));
    EXPECT_EQ(control_.value("SELECT 'still here'"), "still here");
}

TEST_F(TestControl, HiddenConnectionsDoNotCount)
{
    Client hidden(file_);
    hidden.setAttribute(SQL_ATTR_DESKTOPDB_HIDDEN, SQLULEN{1});
    Client client(file_);
    setFault("any:1");
    EXPECT_EQ(hidden.value("SELECT 1"), "1");
    EXPECT_EQ(fired(), "");
    SQLHSTMT none = SQL_NULL_HSTMT;
    EXPECT_EQ(SQLAllocHandle(SQL_HANDLE_STMT, client.connection(), &none), SQL_ERROR);
    EXPECT_EQ(fired(), "SQLAllocHandle");
}

TEST_F(TestControl, TheRecorderKeepsStatementsAsTheyCame)
{
    const DatabaseFile record("record.txt");
    EXPECT_EQ(control_.setAttribute(SQL_ATTR_DESKTOPDB_RECORD, record.path()), SQL_SUCCESS);
    control_.run("SELECT 'hidden'");
    Client client(file_);
    client.run("SELECT a\n\tFROM GEO.t WHERE UCASE(b) LIKE 'A*\\'");
    client.run("SELEC nonsense");
    const SQLHSTMT s = client.statement();
    SQLPrepare(s, bytes("INSERT INTO t VALUES (?, ?)"), SQL_NTS);
    SQLINTEGER a = 5;
    SQLLEN later = SQL_DATA_AT_EXEC;
    SQLPOINTER token = nullptr;
    SQLBindParameter(s, 1, SQL_PARAM_INPUT, SQL_C_SLONG, SQL_INTEGER, 0, 0, &a, 0, nullptr);
    SQLBindParameter(s, 2, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, nullptr, 0, &later);
    SQLExecute(s);
    SQLParamData(s, &token);
    SQLPutData(s, bytes("x|\n"), SQL_NTS);
    SQLParamData(s, &token);
    client.drop(s);
    control_.setAttribute(SQL_ATTR_DESKTOPDB_RECORD, "");
    client.run("SELECT 'afterwards'");
    std::ifstream in(record.path());
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    EXPECT_THAT(lines,
        ElementsAre("SELECT a\\n\\tFROM GEO.t WHERE UCASE(b) LIKE 'A*\\\\'", "SELEC nonsense",
            "INSERT INTO t VALUES (?, ?)", "param:5", "param:x|\\n"));
}

TEST_F(TestControl, TheEnvironmentVariablesWorkBeforeTheFirstConnect)
{
    const DatabaseFile record("record.txt");
    setenv("DESKTOPDB_FAULT", "SQLDriverConnect:1:08001:no line", 1);
    setenv("DESKTOPDB_RECORD", record.path().c_str(), 1);
    {
        Client client;
        EXPECT_EQ(client.connect(file_.connectString("")), SQL_ERROR);
        EXPECT_THAT(client.message(), HasSubstr("no line"));
        EXPECT_EQ(client.connect(file_.connectString("")), SQL_SUCCESS) << "the fault strikes once";
        client.run("SELECT 1");
    }
    unsetenv("DESKTOPDB_FAULT");
    unsetenv("DESKTOPDB_RECORD");
    const Client off(file_);
    std::ifstream in(record.path());
    std::string line;
    std::getline(in, line);
    EXPECT_EQ(line, "SELECT 1");
    EXPECT_EQ(control_.textAttribute(SQL_ATTR_DESKTOPDB_RECORD), "");
}

} // namespace

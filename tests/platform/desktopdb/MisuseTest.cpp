// tests/platform/desktopdb/MisuseTest.cpp
// Calls out of turn and handles that are none: to the driver itself, past the driver manager, which
// would catch most of them.
#include "tests/platform/desktopdb/Client.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace {

class Driver {
public:
    Driver()
        : library_(dlopen(DESKTOPDB_FILE, RTLD_NOW | RTLD_LOCAL))
    {
        EXPECT_NE(library_, nullptr) << dlerror();
    }
    template <class Function> Function* call(const char* name, Function*) const
    {
        void* found = dlsym(library_, name);
        EXPECT_NE(found, nullptr) << name;
        return reinterpret_cast<Function*>(found);
    }
    bool exports(const char* name) const { return dlsym(library_, name) != nullptr; }

private:
    void* library_;
};

#define DRIVER(driver, function) (driver).call(#function, &function)

class Misuse : public testing::Test {
protected:
    Misuse()
    {
        DRIVER(driver_, SQLAllocHandle)(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_);
        DRIVER(driver_, SQLAllocHandle)(SQL_HANDLE_DBC, environment_, &connection_);
        const std::string text = file_.connectString();
        DRIVER(driver_, SQLDriverConnect)
        (connection_, nullptr, bytes(text), SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
        DRIVER(driver_, SQLAllocHandle)(SQL_HANDLE_STMT, connection_, &statement_);
    }
    ~Misuse() override
    {
        DRIVER(driver_, SQLDisconnect)(connection_);
        DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_DBC, connection_);
        DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_ENV, environment_);
    }
    SQLRETURN run(const std::string& sql)
    {
        return DRIVER(driver_, SQLExecDirect)(statement_, bytes(sql), SQL_NTS);
    }
    std::string state()
    {
        SQLCHAR state[6] = "";
        DRIVER(driver_, SQLGetDiagRec)
        (SQL_HANDLE_STMT, statement_, 1, state, nullptr, nullptr, 0, nullptr);
        return reinterpret_cast<const char*>(state);
    }
    DatabaseFile file_;
    Driver driver_;
    SQLHENV environment_ = SQL_NULL_HENV;
    SQLHDBC connection_ = SQL_NULL_HDBC;
    SQLHSTMT statement_ = SQL_NULL_HSTMT;
};

TEST_F(Misuse, HandlesThatAreNone)
{
    int object = 0;
    SQLSMALLINT count = 0;
    for (void* handle : {static_cast<void*>(nullptr), static_cast<void*>(&object),
             reinterpret_cast<void*>(~SQLULEN{0})}) {
        EXPECT_EQ(DRIVER(driver_, SQLFetch)(handle), SQL_INVALID_HANDLE);
        EXPECT_EQ(DRIVER(driver_, SQLCancel)(handle), SQL_INVALID_HANDLE);
        EXPECT_EQ(DRIVER(driver_, SQLNumResultCols)(handle, &count), SQL_INVALID_HANDLE);
        EXPECT_EQ(DRIVER(driver_, SQLDisconnect)(handle), SQL_INVALID_HANDLE);
        EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_STMT, handle), SQL_INVALID_HANDLE);
        EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_ENV, handle), SQL_INVALID_HANDLE);
        EXPECT_EQ(
            DRIVER(driver_, SQLEndTran)(SQL_HANDLE_DBC, handle, SQL_COMMIT), SQL_INVALID_HANDLE);
    }
    EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(99, statement_), SQL_INVALID_HANDLE);
    EXPECT_EQ(DRIVER(driver_, SQLAllocHandle)(SQL_HANDLE_STMT, connection_, nullptr), SQL_ERROR);
}

TEST_F(Misuse, AHandleFreedTwice)
{
    EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_STMT, statement_), SQL_SUCCESS);
    EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_STMT, statement_), SQL_INVALID_HANDLE);
    EXPECT_EQ(DRIVER(driver_, SQLFetch)(statement_), SQL_INVALID_HANDLE);
}

TEST_F(Misuse, TheDisconnectTakesTheStatementsAlong)
{
    EXPECT_EQ(run("SELECT 1"), SQL_SUCCESS);
    EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_DBC, connection_), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_ENV, environment_), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLDisconnect)(connection_), SQL_SUCCESS);
    EXPECT_EQ(DRIVER(driver_, SQLFetch)(statement_), SQL_INVALID_HANDLE);
    EXPECT_EQ(DRIVER(driver_, SQLDisconnect)(connection_), SQL_ERROR);
    SQLHSTMT none = nullptr;
    EXPECT_EQ(DRIVER(driver_, SQLAllocHandle)(SQL_HANDLE_STMT, connection_, &none), SQL_ERROR);
}

// The driver manager makes a new handle for each connection; others may use one again.
TEST_F(Misuse, AConnectionStartsAfreshEachTime)
{
    EXPECT_EQ(run("ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' "), SQL_SUCCESS);
    EXPECT_EQ(DRIVER(driver_, SQLDisconnect)(connection_), SQL_SUCCESS);
    const std::string text = file_.connectString();
    EXPECT_EQ(DRIVER(driver_, SQLDriverConnect)(connection_, nullptr, bytes(text), SQL_NTS, nullptr,
                  0, nullptr, SQL_DRIVER_NOPROMPT),
        SQL_SUCCESS);
    DRIVER(driver_, SQLAllocHandle)(SQL_HANDLE_STMT, connection_, &statement_);
    EXPECT_EQ(run("CREATE TABLE t (d DATE)"), SQL_SUCCESS);
    EXPECT_EQ(run("INSERT INTO t VALUES ('31021998')"), SQL_SUCCESS); // no date, no check
}

TEST_F(Misuse, CallsOutOfTurn)
{
    SQLLEN rows = 0;
    SQLSMALLINT columns = 0;
    char text[10];
    SQLPOINTER token = nullptr;
    EXPECT_EQ(DRIVER(driver_, SQLExecute)(statement_), SQL_ERROR);
    EXPECT_EQ(state(), "HY010");
    EXPECT_EQ(DRIVER(driver_, SQLFetch)(statement_), SQL_ERROR);
    EXPECT_EQ(state(), "24000");
    EXPECT_EQ(DRIVER(driver_, SQLGetData)(statement_, 1, SQL_C_CHAR, text, 10, nullptr), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLRowCount)(statement_, &rows), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLNumResultCols)(statement_, &columns), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLParamData)(statement_, &token), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLPutData)(statement_, text, 1), SQL_ERROR);
    EXPECT_EQ(state(), "HY010");
    run("SELECT 1");
    EXPECT_EQ(DRIVER(driver_, SQLGetData)(statement_, 1, SQL_C_CHAR, text, 10, nullptr), SQL_ERROR);
    EXPECT_EQ(state(), "24000");
    DRIVER(driver_, SQLFetch)(statement_);
    for (const SQLUSMALLINT column : std::initializer_list<SQLUSMALLINT>{0, 2, 65535}) {
        EXPECT_EQ(DRIVER(driver_, SQLGetData)(statement_, column, SQL_C_CHAR, text, 10, nullptr),
            SQL_ERROR);
        EXPECT_EQ(state(), "07009");
    }
    EXPECT_EQ(DRIVER(driver_, SQLGetData)(statement_, 1, SQL_C_CHAR, text, -1, nullptr), SQL_ERROR);
    EXPECT_EQ(state(), "HY090");
}

TEST_F(Misuse, AStatementThatWaitsForData)
{
    SQLLEN later = SQL_DATA_AT_EXEC;
    DRIVER(driver_, SQLBindParameter)
    (statement_, 1, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_VARCHAR, 0, 0, nullptr, 0, &later);
    EXPECT_EQ(run("SELECT ?"), SQL_NEED_DATA);
    EXPECT_EQ(run("SELECT 1"), SQL_ERROR);
    EXPECT_EQ(state(), "HY010");
    EXPECT_EQ(DRIVER(driver_, SQLFetch)(statement_), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLFreeStmt)(statement_, SQL_CLOSE), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLPutData)(statement_, nullptr, 5), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLFreeHandle)(SQL_HANDLE_STMT, statement_), SQL_SUCCESS);
}

TEST_F(Misuse, ArgumentsThatAreNone)
{
    EXPECT_EQ(DRIVER(driver_, SQLExecDirect)(statement_, nullptr, SQL_NTS), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLPrepare)(statement_, bytes("SELECT 1"), -5), SQL_ERROR);
    EXPECT_EQ(state(), "HY090");
    EXPECT_EQ(DRIVER(driver_, SQLSetStmtAttr)(statement_, 4711, nullptr, 0), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLSetConnectAttr)(connection_, 4711, nullptr, 0), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLEndTran)(SQL_HANDLE_DBC, connection_, 7), SQL_ERROR);
    EXPECT_EQ(
        DRIVER(driver_, SQLBindCol)(statement_, 0, SQL_C_CHAR, nullptr, 0, nullptr), SQL_ERROR);
    EXPECT_EQ(DRIVER(driver_, SQLBindParameter)(
                  statement_, 0, SQL_PARAM_INPUT, SQL_C_CHAR, SQL_CHAR, 0, 0, nullptr, 0, nullptr),
        SQL_ERROR);
    EXPECT_EQ(state(), "07009");
}

TEST_F(Misuse, HostileText)
{
    const std::string deep = "SELECT " + std::string(5000, '(') + "1" + std::string(5000, ')');
    const std::string cases[] = {"", " ", ";", "'", "\"", "[", "`", "--", "/*", "SELECT '",
        "SELECT \"", "SELECT 1 WHERE a LIKE '", "{", "}", "{d", "SELECT {fn", "#", "LIKE",
        "BETWEEN", "GEO.", ".", "INSERT INTO", "INSERT INTO t VALUES", "ALTER SESSION",
        "CREATE TRIGGER", "WITH", "SELECT \x01\xff", deep, std::string(100000, '\'') + "x",
        "SELECT " + std::string(200000, '?')};
    for (const std::string& sql : cases) {
        EXPECT_EQ(run(sql), SQL_ERROR) << sql.substr(0, 40);
        EXPECT_EQ(state(), "42000") << sql.substr(0, 40);
    }
    const std::string cut("SELECT 1\0 FROM nix", 18);
    EXPECT_EQ(DRIVER(driver_, SQLExecDirect)(statement_, bytes(cut), 18), SQL_ERROR);
    EXPECT_EQ(run("SELECT 1"), SQL_SUCCESS);
}

// What would make the driver manager take detours is left out.
TEST_F(Misuse, ExportedNames)
{
    for (const char* name : {"SQLFetch", "SQLGetDiagRec", "SQLGetDiagField", "SQLColumns"})
        EXPECT_TRUE(driver_.exports(name)) << name;
    for (const char* name : {"SQLGetFunctions", "SQLGetStmtAttr", "SQLExecDirectW", "SQLError",
             "SQLAllocStmt", "SQLTransact"})
        EXPECT_FALSE(driver_.exports(name)) << name;
}

} // namespace

// tests/platform/desktopdb/StreamTest.cpp
// Rows are not piled up, and compiled statements are used again.
#include "platform/desktopdb/TestControl.h"
#include "tests/platform/desktopdb/Client.h"

#include <fstream>

#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // g++ ships no header of it
#endif

namespace {

const char* const kRows = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n WHERE i<";

// Memory in use now, in KiB. Under the sanitizer the process keeps what was freed for a while, so
// there its own count is asked.
long inUseKiB()
{
#ifdef __SANITIZE_ADDRESS__
    return static_cast<long>(__sanitizer_get_current_allocated_bytes() / 1024);
#else
    std::ifstream status("/proc/self/statm");
    long total = 0;
    long resident = 0;
    status >> total >> resident;
    return resident * 4;
#endif
}

/// Reads every row and gives the memory that was in use on the last one.
long inUseAtEnd(Client& client, long rows)
{
    const SQLHSTMT s = client.statement();
    client.execute(
        s, kRows + std::to_string(rows) + ") SELECT i, 'a text of some length ' || i FROM n");
    char text[100];
    SQLLEN length = 0;
    long inUse = 0;
    long read = 0;
    while (SQLFetch(s) == SQL_SUCCESS) {
        SQLGetData(s, 2, SQL_C_CHAR, text, sizeof text, &length);
        if (++read == rows)
            inUse = inUseKiB();
    }
    EXPECT_EQ(read, rows);
    client.drop(s);
    return inUse;
}

// Kept, the rows below would take some ten megabytes.
TEST(Stream, MemoryDoesNotGrowWithTheRows)
{
    const DatabaseFile file;
    Client client(file);
    const long few = inUseAtEnd(client, 2000);
    const long many = inUseAtEnd(client, 200000);
    EXPECT_LT(many - few, 2048);
}

// The first row is there long before the last one could be.
TEST(Stream, TheFirstRowDoesNotWaitForTheLast)
{
    const DatabaseFile file;
    Client client(file);
    const SQLHSTMT s = client.statement();
    EXPECT_EQ(client.execute(s, std::string(kRows) + "100000000000) SELECT i FROM n"), SQL_SUCCESS);
    EXPECT_EQ(SQLFetch(s), SQL_SUCCESS);
    EXPECT_EQ(client.drop(s), SQL_SUCCESS);
}

class CacheTest : public testing::Test {
protected:
    CacheTest()
    {
        client_.run("CREATE TABLE t (a INTEGER PRIMARY KEY, b VARCHAR(20))");
        for (int i = 1; i <= 50; ++i)
            client_.run(
                "INSERT INTO t VALUES (" + std::to_string(i) + ", 'n" + std::to_string(i) + "')");
    }
    /// Hits and misses since the last call.
    std::pair<long, long> counted()
    {
        const std::pair<long, long> now{client_.numberAttribute(SQL_ATTR_DESKTOPDB_CACHE_HITS),
            client_.numberAttribute(SQL_ATTR_DESKTOPDB_CACHE_MISSES)};
        const std::pair<long, long> since{now.first - last_.first, now.second - last_.second};
        last_ = now;
        return since;
    }
    DatabaseFile file_;
    Client client_{file_};
    std::pair<long, long> last_{0, 0};
};

TEST_F(CacheTest, OneStatementServesALoopOfLookups)
{
    EXPECT_EQ(counted(), std::make_pair(49L, 1L)); // the inserts
    for (int i = 1; i <= 50; ++i)
        EXPECT_EQ(
            client_.value("SELECT b FROM t WHERE a=" + std::to_string(i)), "n" + std::to_string(i));
    EXPECT_EQ(counted(), std::make_pair(49L, 1L));
}

TEST_F(CacheTest, OrdinalsAreNotValues)
{
    counted();
    EXPECT_EQ(client_.rows("SELECT a, b FROM t WHERE a<3 ORDER BY 1").front(), "1|n1");
    EXPECT_EQ(client_.rows("SELECT a, b FROM t WHERE a<11 ORDER BY 2 DESC").front(), "9|n9");
    EXPECT_EQ(counted(), std::make_pair(0L, 2L));
}

TEST_F(CacheTest, TwoAtOnceOfTheSameText)
{
    const SQLHSTMT first = client_.statement();
    const SQLHSTMT second = client_.statement();
    client_.execute(first, "SELECT b FROM t WHERE a>10 ORDER BY a");
    client_.execute(second, "SELECT b FROM t WHERE a>20 ORDER BY a");
    EXPECT_EQ(client_.fetchAll(first).front(), "n11");
    EXPECT_EQ(client_.fetchAll(second).front(), "n21");
}

TEST_F(CacheTest, AStatementThatFailedIsAsGoodAsNew)
{
    EXPECT_FALSE(client_.run("INSERT INTO t VALUES (1, 'again')"));
    EXPECT_TRUE(client_.run("INSERT INTO t VALUES (100, 'new')"));
    EXPECT_EQ(client_.value("SELECT b FROM t WHERE a=100"), "new");
}

TEST_F(CacheTest, ChangedTablesAreSeen)
{
    client_.value("SELECT * FROM t WHERE a=1");
    client_.run("ALTER TABLE t ADD COLUMN c INTEGER DEFAULT 5");
    EXPECT_EQ(client_.rows("SELECT * FROM t WHERE a=1").front(), "1|n1|5");
    Client other(file_);
    other.run("ALTER TABLE t ADD COLUMN d INTEGER DEFAULT 6");
    EXPECT_EQ(client_.rows("SELECT * FROM t WHERE a=1").front(), "1|n1|5|6");
}

} // namespace

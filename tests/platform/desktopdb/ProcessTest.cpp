// tests/platform/desktopdb/ProcessTest.cpp
// Two processes on one file.
#include "tests/platform/desktopdb/Client.h"

#include <chrono>
#include <functional>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Runs `work` in another process; its end gives the number that `work` returned.
class Process {
public:
    explicit Process(const std::function<int()>& work)
        : id_(fork())
    {
        if (id_ == 0)
            _exit(work());
    }
    int wait() const
    {
        int status = 0;
        waitpid(id_, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t id_;
};

/// Adds one to the counter `times` times, each in a transaction; returns how many failed.
int count(const DatabaseFile& file, int times)
{
    int failed = 0;
    Client client(file, "");
    client.autocommit(false);
    for (int i = 0; i < times; ++i) {
        failed += !client.run("UPDATE counter SET n=n+1");
        failed += !client.run("INSERT INTO log VALUES (" + std::to_string(getpid()) + ")");
        failed += client.commit() != SQL_SUCCESS;
    }
    return failed;
}

TEST(Processes, WriteOneFileInTurns)
{
    const DatabaseFile file;
    {
        Client client(file);
        client.run("CREATE TABLE counter (n INTEGER)");
        client.run("CREATE TABLE log (pid INTEGER)");
        client.run("INSERT INTO counter VALUES (0)");
    }
    constexpr int kTimes = 100;
    const Process first([&] { return count(file, kTimes); });
    const Process second([&] { return count(file, kTimes); });
    EXPECT_EQ(first.wait(), 0);
    EXPECT_EQ(second.wait(), 0);
    Client client(file, "");
    EXPECT_EQ(client.value("SELECT n FROM counter"), std::to_string(2 * kTimes));
    EXPECT_EQ(client.value("SELECT count(*) FROM log"), std::to_string(2 * kTimes));
}

TEST(Processes, AReaderSeesWhatIsCommittedOnly)
{
    const DatabaseFile file;
    Client writer(file);
    writer.run("CREATE TABLE t (a INTEGER)");
    writer.autocommit(false);
    writer.run("INSERT INTO t VALUES (1)");
    const auto rows = [&] {
        Client reader(file, "Timeout=0");
        return std::stoi(reader.value("SELECT count(*) FROM t"));
    };
    EXPECT_EQ(Process(rows).wait(), 0);
    writer.commit();
    EXPECT_EQ(Process(rows).wait(), 1);
}

TEST(Processes, AWriterWaitsAsLongAsItIsTold)
{
    const DatabaseFile file;
    Client holder(file);
    holder.run("CREATE TABLE t (a INTEGER)");
    holder.autocommit(false);
    holder.run("INSERT INTO t VALUES (1)");
    Client other(file, "Timeout=100");
    const auto before = std::chrono::steady_clock::now();
    EXPECT_FALSE(other.run("INSERT INTO t VALUES (2)"));
    const auto waited = std::chrono::steady_clock::now() - before;
    EXPECT_EQ(other.state(), "HYT00");
    EXPECT_GE(waited, std::chrono::milliseconds(90));
    holder.commit();
    EXPECT_TRUE(other.run("INSERT INTO t VALUES (2)"));
}

// The open rows show the file as it was; writing on from that view would lose the other's work.
TEST(Processes, AWriteFromAnOldViewIsRefused)
{
    const DatabaseFile file;
    Client reader(file);
    reader.run("CREATE TABLE t (a INTEGER)");
    reader.run("INSERT INTO t VALUES (1), (2)");
    reader.autocommit(false);
    const SQLHSTMT open = reader.statement();
    reader.execute(open, "SELECT a FROM t");
    SQLFetch(open);
    Client other(file);
    other.run("INSERT INTO t VALUES (3)");
    EXPECT_FALSE(reader.run("INSERT INTO t VALUES (4)"));
    EXPECT_EQ(reader.state(), "40001");
    reader.drop(open);
    EXPECT_TRUE(reader.run("INSERT INTO t VALUES (4)"));
}

} // namespace

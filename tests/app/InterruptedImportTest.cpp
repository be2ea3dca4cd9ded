// tests/app/InterruptedImportTest.cpp
#include "tests/app/Program.h"
#include "tests/support/DriverControl.h"

#include <chrono>
#include <csignal>
#include <iostream>
#include <random>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

#include <gmock/gmock.h>

namespace {

using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

constexpr int kPoints = 20;
constexpr unsigned kSeed = 20240229;

std::string connectString(const std::filesystem::path& file)
{
    return driver_control::connectString(file.string(), "Access");
}

// Every row of every table, read through the driver as after a crash.
std::vector<std::string> contentsOf(const std::filesystem::path& file)
{
    OdbcConnection db(connectString(file));
    std::vector<std::string> all = db.lines("PRAGMA integrity_check");
    for (const auto& table : db.lines("SELECT name FROM sqlite_master WHERE type='table'"))
        for (const std::string& row : db.lines("SELECT * FROM " + table))
            all.push_back(table + ": " + row);
    return all;
}

// An import in a process of its own, in the folder of the files.
class Child {
public:
    Child(const std::filesystem::path& folder, const char* database)
        : id_(fork())
    {
        if (id_ != 0)
            return;
        const int log = open((folder / "child.txt").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(log, STDOUT_FILENO);
        dup2(log, STDERR_FILENO);
        if (chdir(folder.c_str()) == 0)
            execl(ZONARIS_PROGRAM, "zonaris", "--database", database, "import", ".", nullptr);
        _exit(127);
    }
    void kill() const { ::kill(id_, SIGKILL); }
    /// The status as `waitpid` gives it.
    int wait() const
    {
        int status = 0;
        waitpid(id_, &status, 0);
        return status;
    }

private:
    pid_t id_;
};

class InterruptedImport : public Program {
protected:
    // Long comments: more than the engine keeps in memory, so that an unfinished import has
    // written into the journal already.
    void SetUp() override
    {
        const std::string make = ZONARIS_SOURCE_DIR "/bench/import/make-rows ";
        ASSERT_EQ(0, std::system((make + folder.path().string() + " 3000 60 1000").c_str()));
        ASSERT_EQ(0, run("create before.zdb")) << err;
    }
    std::filesystem::path copyOf(const char* from, const char* to) const
    {
        for (const char* rest : {"-wal", "-shm"})
            std::filesystem::remove(folder.path() / (std::string(to) + rest));
        std::filesystem::copy_file(folder.path() / from, folder.path() / to,
            std::filesystem::copy_options::overwrite_existing);
        return folder.path() / to;
    }
};

TEST_F(InterruptedImport, LeavesAllOrNothing)
{
    const auto before = contentsOf(folder.path() / "before.zdb");
    ASSERT_EQ("ok", before.front());
    const auto full = copyOf("before.zdb", "full.zdb");
    const auto start = Clock::now();
    ASSERT_EQ(0, Child(folder.path(), "full.zdb").wait());
    const Seconds duration = Clock::now() - start;
    const auto after = contentsOf(full);
    ASSERT_LT(before.size() + 3000, after.size());

    std::mt19937 random(kSeed);
    std::uniform_real_distribution<double> share(0, 1.1);
    int whole = 0;
    int killed = 0;
    int begun = 0; // to write
    for (int point = 0; point < kPoints; ++point) {
        const auto file = copyOf("before.zdb", "killed.zdb");
        const Seconds delay = duration * share(random);
        const Child child(folder.path(), "killed.zdb");
        std::this_thread::sleep_for(delay);
        child.kill();
        const bool wasKilled = WIFSIGNALED(child.wait());
        killed += wasKilled;
        std::error_code none;
        const auto journal = std::filesystem::file_size(file.string() + "-wal", none);
        begun += !none && journal > 0;
        const auto contents = contentsOf(file);
        whole += contents == after;
        EXPECT_TRUE(contents == after || (wasKilled && contents == before))
            << "killed after " << delay.count() << " of " << duration.count() << " s";
        if (point % 10 != 0)
            continue;
        EXPECT_EQ(0, Child(folder.path(), "killed.zdb").wait());
        EXPECT_EQ(after, contentsOf(file)) << "imported again";
    }
    std::cout << killed << " of " << kPoints << " killed, " << begun << " of them writing, "
              << whole << " imports whole\n";
    EXPECT_LE(kPoints / 2, killed);
}

TEST_F(InterruptedImport, WaitsForAnotherProgramOrSaysSo)
{
    OdbcConnection other(connectString(folder.path() / "before.zdb"));
    other.begin();
    other.run("INSERT INTO WELLS (well_code) VALUES ('OTHER')");
    EXPECT_EQ(1, run("--database before.zdb import ."));
    EXPECT_THAT(err, testing::HasSubstr("another program does so now. Nothing was stored; try "));
    std::thread later([&] {
        std::this_thread::sleep_for(std::chrono::seconds(1));
        other.commit();
    });
    EXPECT_EQ(0, run("--database before.zdb import .")) << err;
    later.join();
    EXPECT_EQ("2", other.lines("SELECT count(*) FROM WELLS").front());
}

// What the first one stores is not there yet when the second one begins.
TEST_F(InterruptedImport, OfTwoAtOnceOneStores)
{
    copyOf("before.zdb", "full.zdb");
    ASSERT_EQ(0, Child(folder.path(), "full.zdb").wait());
    const Child first(folder.path(), "before.zdb");
    const int second = Child(folder.path(), "before.zdb").wait();
    EXPECT_EQ(0, first.wait() * second) << "both refused";
    EXPECT_EQ(contentsOf(folder.path() / "full.zdb"), contentsOf(folder.path() / "before.zdb"));
}

} // namespace

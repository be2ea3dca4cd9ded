// app/shell/Backup.cpp
#include "app/shell/Backup.h"

#include "app/shell/EmbeddedDatabase.h"
#include "app/shell/FilePlacing.h"
#include "app/shell/SideConnection.h"

#include <chrono>

namespace {

namespace fs = std::filesystem;

constexpr int kMostNames = 1000;

std::string literal(const fs::path& path)
{
    std::string text = "'";
    for (const char c : path.string())
        text.append(c == '\'' ? 2 : 1, c);
    return text + '\'';
}

// A file that is not finished yet; it goes unless it got its name.
class Unfinished {
public:
    explicit Unfinished(const fs::path& file)
        : path_(fs::absolute(unfinishedName(file)))
    {
    }
    ~Unfinished()
    {
        std::error_code ignored;
        for (const char* suffix : {"", "-journal", "-wal", "-shm"})
            fs::remove(path_.string() + suffix, ignored);
    }
    Unfinished(const Unfinished&) = delete;
    Unfinished& operator=(const Unfinished&) = delete;

    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

std::string examine(SideConnection& side, const fs::path& copy)
{
    std::vector<std::string> findings;
    if (!side.run("ATTACH DATABASE " + literal(copy) + " AS finished_copy")
        || !side.run("PRAGMA finished_copy.integrity_check", &findings)
        || !side.run("DETACH DATABASE finished_copy"))
        return "The copy could not be examined: " + side.error();
    if (findings.size() == 1 && findings.front() == "ok")
        return {};
    return "The copy is damaged: " + (findings.empty() ? "no answer" : findings.front())
        + ". Run `zonaris doctor` on the database.";
}

// Another connection, since the engine copies outside of transactions only.
std::string writeCopy(const ConnectionSettings& settings, const fs::path& copy)
{
    std::string error;
    const std::string text = connectStringOf(settings, FileAccess::Open, &error);
    if (text.empty())
        return error;
    {
        SideConnection side(text);
        if (!side.run("VACUUM INTO " + literal(copy)))
            return "The database could not be copied to " + copy.string() + ": " + side.error();
        error = examine(side, copy);
    }
    if (!error.empty())
        return error;
    const std::error_code failure = syncToDisk(copy);
    return failure ? "The copy could not be brought to the disk: " + failure.message() : "";
}

// What the caller names the copy; `file_exists` makes it try once more with another number.
template <typename NameOf>
std::string place(const fs::path& copy, int tries, NameOf nameOf, fs::path* file)
{
    std::error_code error;
    for (int n = 1; n <= tries; ++n) {
        *file = nameOf(n);
        error = renameToNew(copy, *file);
        if (error != std::errc::file_exists)
            break;
    }
    if (error == std::errc::file_exists)
        return file->string() + " is there already; it was left as it is.";
    return error ? file->string() + " could not be made: " + error.message() : "";
}

template <typename NameOf>
BackupResult backUp(const ConnectionSettings& settings, int tries, NameOf nameOf, fs::path* file)
{
    const auto start = std::chrono::steady_clock::now();
    const Unfinished copy(nameOf(1));
    BackupResult result;
    result.error = writeCopy(settings, copy.path());
    if (result.error.empty())
        result.error = place(copy.path(), tries, nameOf, file);
    if (!result.error.empty())
        return result;
    std::error_code ignored;
    result.bytes = fs::file_size(*file, ignored);
    result.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return result;
}

} // namespace

BackupResult backUpDatabase(const ConnectionSettings& settings, const fs::path& file)
{
    if (!isEmbedded())
        return {"Only an embedded database, held in one file, is copied this way. A database on a "
                "server is backed up with the server's own tools."};
    std::error_code ignored;
    if (fs::exists(fs::symlink_status(file, ignored)))
        return {file.string() + " is there already; it was left as it is. Name a new file."};
    fs::path made;
    return backUp(
        settings, 1, [&](int) { return file; }, &made);
}

BackupResult backUpBeside(const ConnectionSettings& settings, long version, fs::path* file)
{
    const std::string name = embeddedFile(settings) + ".v" + std::to_string(version) + ".bak";
    return backUp(
        settings, kMostNames,
        [&](int n) { return fs::path(n == 1 ? name : name + std::to_string(n)); }, file);
}

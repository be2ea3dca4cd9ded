// tests/support/Workspace.cpp
#include "tests/support/Workspace.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <stdlib.h>
#include <unistd.h>

namespace {

// Every commit of every test waits for the disk; where the machine has a folder in memory, none
// does.
std::filesystem::path place()
{
    const std::filesystem::path inMemory = "/dev/shm";
    std::error_code none;
    const bool chosen = std::getenv("TMPDIR") != nullptr;
    return !chosen && std::filesystem::is_directory(inMemory, none)
        ? inMemory
        : std::filesystem::temp_directory_path();
}

class Folder {
public:
    Folder()
        : path_(place() / "zonaris-XXXXXX")
        , owner_(getpid())
    {
        if (!mkdtemp(path_.data()))
            throw std::runtime_error("no temporary folder " + path_);
    }
    ~Folder()
    {
        std::error_code ignored;
        if (getpid() == owner_) // not in a process forked from this one
            std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string newFile(const std::string& name)
    {
        return path_ + "/" + std::to_string(++files_) + "-" + name;
    }

private:
    std::string path_;
    pid_t owner_;
    int files_ = 0;
};

} // namespace

std::string workspace::newFile(const std::string& name)
{
    static Folder folder;
    return folder.newFile(name);
}

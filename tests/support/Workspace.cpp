// tests/support/Workspace.cpp
#include "tests/support/Workspace.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include <stdlib.h>
#include <unistd.h>

namespace {

class Folder {
public:
    Folder()
        : path_(std::filesystem::temp_directory_path() / "zonaris-XXXXXX")
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

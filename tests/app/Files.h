// tests/app/Files.h
#pragma once

#include "tests/support/Workspace.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

inline std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// A new folder for the files of one test.
class Folder {
public:
    Folder()
        : path_(workspace::newFile("folder"))
    {
        std::filesystem::create_directories(path_);
    }
    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path write(const std::string& name, std::string_view content) const
    {
        std::ofstream(path_ / name, std::ios::binary) << content;
        return path_ / name;
    }

private:
    std::filesystem::path path_;
};

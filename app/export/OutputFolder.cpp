// app/export/OutputFolder.cpp
#include "app/export/OutputFolder.h"

#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

OutputFolder::OutputFolder(fs::path folder)
    : folder_(std::move(folder))
{
}

OutputFolder::~OutputFolder()
{
    if (kept_)
        return;
    stream_.close();
    std::error_code ignored; // what is in the way of removing them was in the way of writing
    for (const std::string& name : names_)
        fs::remove(partOf(name), ignored);
    if (isNew_)
        fs::remove(folder_, ignored);
}

fs::path OutputFolder::partOf(const std::string& name) const { return folder_ / (name + ".part"); }

bool OutputFolder::fail(const fs::path& where, const std::string& why)
{
    error_ = where.string() + ": " + why;
    return false;
}

bool OutputFolder::open(bool force)
{
    std::error_code error;
    isNew_ = fs::create_directories(folder_, error);
    if (error)
        return fail(folder_, "cannot be made: " + error.message());
    const bool empty = fs::is_empty(folder_, error);
    if (error)
        return fail(folder_, "cannot be looked into: " + error.message());
    return empty || force
        || fail(folder_, "holds files already; --force replaces those that an export writes");
}

std::ostream* OutputFolder::begin(const std::string& name)
{
    errno = 0;
    stream_.open(partOf(name), std::ios::binary | std::ios::trunc);
    if (!stream_) {
        fail(partOf(name), std::string("cannot be written: ") + std::strerror(errno));
        return nullptr;
    }
    names_.push_back(name);
    return &stream_;
}

bool OutputFolder::end()
{
    errno = 0;
    stream_.close();
    return stream_
        || fail(partOf(names_.back()), std::string("cannot be written: ") + std::strerror(errno));
}

bool OutputFolder::keep()
{
    for (const std::string& name : names_) {
        std::error_code error;
        fs::rename(partOf(name), folder_ / name, error);
        if (error)
            return fail(folder_ / name, "cannot be put in its place: " + error.message());
    }
    kept_ = true;
    return true;
}

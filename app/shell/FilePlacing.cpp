// app/shell/FilePlacing.cpp
#include "app/shell/FilePlacing.h"

#include <cerrno>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

std::error_code lastError() { return {errno, std::generic_category()}; }

std::error_code writeAll(int descriptor, std::string_view content)
{
    while (!content.empty()) {
        const ssize_t written = write(descriptor, content.data(), content.size());
        if (written < 0)
            return lastError();
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return fsync(descriptor) == 0 ? std::error_code() : lastError();
}

std::error_code writeNew(const fs::path& file, std::string_view content)
{
    constexpr int kMode = O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW;
    const int descriptor = open(file.c_str(), kMode, 0600);
    if (descriptor < 0)
        return lastError();
    const std::error_code error = writeAll(descriptor, content);
    close(descriptor);
    return error;
}

bool mayWrite(const fs::path& path)
{
    return faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
}

} // namespace

fs::path unfinishedName(const fs::path& file)
{
    return file.string() + ".part" + std::to_string(getpid());
}

std::error_code syncToDisk(const fs::path& file)
{
    const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return lastError();
    const std::error_code error = fsync(descriptor) == 0 ? std::error_code() : lastError();
    close(descriptor);
    return error;
}

std::error_code renameToNew(const fs::path& from, const fs::path& to)
{
    std::error_code error;
    if (fs::exists(fs::symlink_status(to, error)))
        return std::make_error_code(std::errc::file_exists);
    // A second name fails where a rename would replace a file that came meanwhile.
    fs::create_hard_link(from, to, error);
    if (!error)
        fs::remove(from, error);
    else if (error != std::errc::file_exists) // a file system without second names
        fs::rename(from, to, error);
    return error;
}

std::error_code writePrivately(const fs::path& file, std::string_view content)
{
    std::error_code error;
    const fs::file_status status = fs::symlink_status(file, error);
    if (fs::exists(status) && !fs::is_regular_file(status))
        return std::make_error_code(std::errc::invalid_argument);
    const fs::path unfinished = unfinishedName(file);
    error = writeNew(unfinished, content);
    if (!error)
        fs::rename(unfinished, file, error);
    std::error_code ignored;
    if (error)
        fs::remove(unfinished, ignored);
    return error;
}

bool mayChange(const fs::path& file)
{
    const fs::path folder = file.parent_path();
    return mayWrite(file) && mayWrite(folder.empty() ? "." : folder);
}

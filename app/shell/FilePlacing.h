// app/shell/FilePlacing.h
#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

// Files that appear whole or not at all: written beside their place, then given their name.

/// A name for a file that is still being written, in the folder of `file`, this process's own.
std::filesystem::path unfinishedName(const std::filesystem::path& file);

/// Waits until what was written to the file is on the disk.
std::error_code syncToDisk(const std::filesystem::path& file);

/// Gives `from` the name `to`, which nothing may have yet: `std::errc::file_exists` otherwise, and
/// nothing is changed. Both in one folder.
std::error_code renameToNew(const std::filesystem::path& from, const std::filesystem::path& to);

/// Makes `file`, or replaces it, with this content; only its owner may read it. Nothing but a plain
/// file is replaced.
std::error_code writePrivately(const std::filesystem::path& file, std::string_view content);

/// Whether this process may write the file and make others beside it.
bool mayChange(const std::filesystem::path& file);

// app/shell/ProgramFiles.h
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

/// A file or folder that comes with the program.
struct ProgramPart {
    std::filesystem::file_type type;
    const char* variable;                 ///< of the environment, names it and nothing else
    std::span<const char* const> besides; ///< else seen from the folder above that of the program
    const char* missing;                  ///< what to say without it
    const char* wanted;                   ///< what the variable is to be set to
};

/// Where the part is looked for, in this order.
std::vector<std::filesystem::path> placesOf(
    const ProgramPart& part, const std::filesystem::path& program);

/// The first of the places for the running program that is there. Empty: none, and `*error` lists
/// where it was looked for.
std::filesystem::path findPart(const ProgramPart& part, std::string* error);

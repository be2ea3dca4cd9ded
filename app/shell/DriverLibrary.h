// app/shell/DriverLibrary.h
#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Where the driver of embedded databases is looked for, in this order: what the environment
/// variable ZONARIS_DRIVER names and nothing else, or beside the program: "../lib" of a build tree,
/// "../lib/zonaris" of an installation.
std::vector<std::filesystem::path> driverPlaces(const std::filesystem::path& program);

/// The first of them that is there. Empty: none, and `*error` lists where it was looked for.
std::string driverLibrary(std::string* error);

// app/shell/StarterData.h
#pragma once

#include <filesystem>
#include <string>

/// The folder of the starter dictionaries: what the environment variable ZONARIS_STARTER names, or
/// "../share/zonaris/starter" beside the program, in a build tree as in an installation. Empty: it
/// is not there, and `*error` says where it was looked for.
std::filesystem::path starterFolder(std::string* error);

// app/shell/StarterData.cpp
#include "app/shell/StarterData.h"

#include "app/shell/ProgramFiles.h"

namespace {

constexpr const char* kBesides[] = {"share/zonaris/starter"};
constexpr ProgramPart kStarter{std::filesystem::file_type::directory, "ZONARIS_STARTER", kBesides,
    "The starter dictionaries were not found.", "the folder that holds them"};

} // namespace

std::filesystem::path starterFolder(std::string* error) { return findPart(kStarter, error); }

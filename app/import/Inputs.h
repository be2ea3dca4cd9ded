// app/import/Inputs.h
#pragma once

#include "app/import/ColumnMap.h"
#include "app/import/InputFile.h"

#include <filesystem>
#include <string>
#include <vector>

/// The files of an import, in the order of storing, and those that are left because their names are
/// not known.
struct Inputs {
    std::vector<InputFile> files; ///< path, name, set and shape filled in
    std::vector<Issue> left;
    std::string failure; ///< an input that is not there, or nothing to import
};

/// Looks into the folders among `inputs`, not into folders within them. Files of one folder are a
/// set. A file that is named twice counts once. A file that `map` knows is what the map says, once
/// for each kind; `map` must live as long as the result. The file of the map, `mapFile`, is no
/// input.
Inputs findInputs(const std::vector<std::filesystem::path>& inputs,
    const std::filesystem::path& mapFile, const ColumnMap& map);

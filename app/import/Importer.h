// app/import/Importer.h
#pragma once

#include "app/import/Report.h"

#include <filesystem>
#include <string>
#include <vector>

struct ImportOptions {
    std::vector<std::filesystem::path> inputs; ///< files, and folders whose .csv files are meant
    bool dryRun = false;                       ///< check and count, store nothing
    std::filesystem::path map = {};            ///< a map of columns; empty: none
};

struct ImportResult {
    /// Why nothing was stored; empty after an import that was carried out.
    std::string failure;
    /// In the order of storing. After a failure the rows count as neither added nor changed.
    std::vector<FileCounts> files;

    long refused() const;
    /// Rows that were added or changed, or would be.
    long stored() const;
};

/// Brings files into the session's database. All files are checked whole before anything is stored;
/// then everything that is not refused is stored in one transaction. The order of storing follows
/// from what refers to what, not from the order of `inputs`. A second import of the same files
/// finds every row as it is and changes nothing. The session must be connected, with nothing
/// uncommitted.
ImportResult importFiles(const ImportOptions& options, ImportListener& listener);

// app/export/Exporter.h
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

struct ExportOptions {
    std::filesystem::path folder; ///< new or empty, unless `force`
    long well = 0;                ///< WELL_IDENT.well_id; 0: all wells
    bool force = false;           ///< replace the files that an export writes, leave others
};

struct ExportedFile {
    std::string name;
    long rows = 0;
};

struct ExportResult {
    std::string failure;             ///< why no file was written; empty after success
    std::vector<ExportedFile> files; ///< in the order of writing
    std::vector<std::string> left;   ///< rows that no file can hold, counted, with the reason
};

/// Writes the tables of the session's database as files that an import reads. Rows of one well, or
/// of all; dictionaries are written whole. The same contents give the same bytes, whatever numbers
/// the database gave its rows. All files or none are put in their places. Memory grows with the
/// rows that others refer to and with the rows of one well. `written` is told of each file.
ExportResult exportTables(
    const ExportOptions& options, const std::function<void(const ExportedFile&)>& written = {});

// app/import/ColumnMap.h
#pragma once

#include "app/import/InputFile.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

struct LengthUnit;

// A map tells an import of files whose names or columns it does not know: a CSV file of its own,
// one line for each column that is to be filled.

/// One column of a kind, and what fills it: a column of the file, or a text.
struct MapLine {
    long line = 0;                       ///< of the map
    const ColumnShape* column = nullptr; ///< null: all columns that the file names as usual
    std::string from;                    ///< header of the file's column; empty: `value`
    std::string value;                   ///< "OC", "{lake} {depth_cm}": braces hold headers
    const LengthUnit* unit = nullptr;    ///< null: as without a map
    char direction = 0;                  ///< as in `MappedColumn`
};

/// What a map says of the files of one name as one kind.
struct MapEntry {
    std::string map; ///< name of the map, for messages
    long line = 0;   ///< where the entry begins
    std::string pattern;
    const FileShape* shape = nullptr;
    std::vector<MapLine> lines;

    /// Whether columns are also found by their usual names.
    bool isByName() const;
    /// "map.csv:12".
    std::string place(long which) const { return map + ':' + std::to_string(which); }
};

struct ColumnMap {
    std::vector<MapEntry> entries;
    std::string failure; ///< why the map cannot be used, with its line; empty for a good one

    /// The entries for a file of that name, in the order of the map.
    std::vector<const MapEntry*> entriesOf(const std::string& fileName) const;
};

ColumnMap readColumnMap(const std::filesystem::path& file);

/// Fills the columns of `file` as its entry says, over what stands there. Tells `report` what the
/// file does not have and which fixed values cannot stand where they are to go.
void applyMap(InputFile* file, const std::vector<std::string>& header, FileReport* report);

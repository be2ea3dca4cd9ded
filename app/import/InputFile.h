// app/import/InputFile.h
#pragma once

#include "app/import/CsvReader.h"
#include "app/import/Report.h"
#include "app/import/Shapes.h"

#include <filesystem>
#include <string>
#include <vector>

/// Where one column of a shape stands in a file.
struct MappedColumn {
    int field = -1;     ///< place in the rows; -1: the file does not have it
    std::string header; ///< as the file writes it
    char units = 0;     ///< 'M' or 'F' when the header ends in a unit or a map says it
    double divisor = 1; ///< of depths, for those units
    char direction = 0; ///< 'U' or 'D': depths grow upwards or downwards; 0: as the well counts
    bool usualName = false;
    bool decimalComma = false;
    bool mixedDecimals = false; ///< points and commas: those with a comma are refused
};

/// A text that the cells of a row are put together to.
struct ComposedText {
    struct Piece {
        std::string text;
        int field = -1; ///< whose cell follows the text; -1: none
    };
    std::vector<Piece> pieces;
};

struct MapEntry;

/// A file of an import: what it is and how it is to be read.
struct InputFile {
    std::filesystem::path path;
    std::string name; ///< as reports call it
    std::string set;  ///< files of one set share the numbers that they give their rows
    const FileShape* shape = nullptr;   ///< null once the file is left
    bool namedExactly = false;          ///< "wells.csv", not "north_wells.csv", and no other kind's
    std::vector<MappedColumn> columns;  ///< by `ColumnShape::column`
    std::size_t fields = 0;             ///< that every row must have
    const MapEntry* map = nullptr;      ///< what a map says of it
    std::vector<ComposedText> composed; ///< fields behind those of the rows
    bool takesRowsOnce = false; ///< rows that fill all columns as one before do are passed over

    const MappedColumn& column(int which) const { return columns[static_cast<std::size_t>(which)]; }
    bool has(int which) const { return column(which).field >= 0; }
};

/// Puts the composed fields behind those of the row. False for a row that cannot be read or has not
/// the fields of its file: that stays as it is.
bool completeRow(const InputFile& file, CsvRow* row);

/// Reads the header into `file->columns` and tells `report` of columns that are not kept and of
/// what makes the file unusable: empty, unreadable, a required column missing. A file whose name is
/// only similar and that lacks a required column is another kind of file: it loses its shape. Of
/// several kinds with that name it becomes the one whose required columns it has.
void readHeader(InputFile* file, FileReport* report);

/// Reads the rows once to find out what only a whole column tells: decimal commas, and whether a
/// column that might be the well type is it.
void surveyColumns(InputFile* file, FileReport* report);

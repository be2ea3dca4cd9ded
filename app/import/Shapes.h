// app/import/Shapes.h
#pragma once

#include <memory>
#include <span>
#include <string_view>
#include <vector>

class ImportContext;
class RowLoader;
struct TableFile;

// The files that an import knows. A new kind of file is a column table and a row in `fileShapes`,
// both in Shapes.cpp, and a loader in a file of its own.

enum class CellKind {
    Text,
    Key,   ///< a text that rows are found by: never empty, no wildcard
    Id,    ///< the file's own number of a row, kept as text
    Whole, ///< rounded to a whole number of 32 bits
    Number,
    Depth,    ///< a number whose column name may end in a unit: "_m", "_ft"
    Date,     ///< yyyy-mm-dd
    WellType, ///< W or O
    SampleType,
    Units ///< M or F, also in words
};

/// What a cell that cannot be read does: refuse its row, or be left out of it.
enum class BadCell { RefusesRow, IsLeftOut };

struct ColumnShape {
    int column;             ///< place in its table, as the loader names it
    std::string_view names; ///< separated by blanks, the usual one first, units left off
    CellKind kind;
    BadCell bad;
    bool required = false;    ///< a file without the column fails
    std::size_t capacity = 0; ///< bytes of a text
};

struct FileShape {
    std::string_view name; ///< of the file, without ".csv"
    std::span<const ColumnShape> columns;
    std::unique_ptr<RowLoader> (*makeLoader)(ImportContext&);
    /// Files of other kinds have this name too: one without the required columns is left.
    bool sharesName = false;
    /// A table of the database as an export writes it: known by its exact name and all its columns,
    /// and loaded by these instead of `makeLoader`.
    const TableFile* table = nullptr;
};

/// In the order in which they have to be stored: each behind those whose rows it refers to.
std::span<const FileShape> fileShapes();

/// The shapes that a file may have by its name without extension, in lower case ("wells",
/// "wells-2024", "north_wells"): those that say the most of its name first.
std::vector<const FileShape*> shapesOfFile(std::string_view stem);
/// The first of them; null when there is none.
const FileShape* shapeOfFile(std::string_view stem);

namespace wells {
enum {
    Code,
    Name,
    Operator,
    Country,
    County,
    Ocs,
    Field,
    GridX,
    GridY,
    Latitude,
    Longitude,
    GeoDatum,
    SpudDate,
    CompDate,
    Td,
    Sl,
    Sb,
    Rte,
    Kicko,
    Type,
    Units,
    Description,
    Count
};
}

namespace samples {
enum { WellCode, Id, Top, Base, Type, Label, Units, GridX, GridY, Count };
}

namespace disciplines {
enum { Letter, Name, Abr, Adjective, Count };
}

namespace categories {
enum { Mnemonic, Discipline, Name, Count };
}

namespace taxa {
enum {
    Id,
    Category,
    Group,
    Discipline,
    Name,
    AboveGenus,
    GenusMark,
    Genus,
    Subgenus,
    SpeciesMark,
    Species,
    SubspeciesMark,
    Subspecies,
    Rest,
    Author,
    Year,
    AlphaCode,
    Code,
    Notes,
    Count
};
}

/// Of synonymy and of name variants.
namespace synonymy {
enum { Name, Preferred, PreferredId, Category, Scheme, Count };
}

/// Abundance schemes.
namespace schemes {
enum { Id, Name, Count };
}

namespace levels {
enum { SchemeId, Scheme, EntryNo, Name, Abr, Min, MinExclusive, Output, Count };
}

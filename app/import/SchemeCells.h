// app/import/SchemeCells.h
#pragma once

#include "app/import/Cells.h"
#include "app/import/ImportContext.h"

#include <array>
#include <optional>
#include <string>

// Cells of rows that name schemes and terms of interpretations.

/// The last part of the path of the row's set.
std::string folderOf(const InputFile& file);

/// The scheme of that name and type; announced when it is not there. A scheme of that name and
/// another type refuses the row: names find schemes whatever their type. The schemes must be
/// loaded.
NamedEntry* schemeNamed(
    CellReader& cells, int column, const std::string& name, long type, ImportContext& context);

/// The type of the biozones of a discipline letter, 41 to 44; 0 for any other letter.
long biozoneType(char discipline);

/// The type as people call it: "Chronostratigraphy".
std::string typeText(long type);

/// The rank of the row by its number or, without one, by its name; none when it gives neither, and
/// when the row is refused. There is no rank 0: it is taken for the widest, and told.
std::optional<long> readRank(CellReader& cells, int number, int name, long type);

using ColourValues = std::array<std::optional<Value>, 3>;
/// Red, green and blue, each 0 to 255; all of them or none.
ColourValues readColour(CellReader& cells, const std::array<int, 3>& columns);

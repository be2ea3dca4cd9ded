// app/import/DictionaryCells.h
#pragma once

#include "app/import/Cells.h"
#include "store/CategoryWriter.h"

#include <string>
#include <string_view>

// Cells that the files of the dictionaries have in common.

/// The mnemonic of a category in capitals, as the system compares and searches it; told when the
/// file writes it otherwise.
std::string inCapitals(CellReader& cells, int column, const std::string& mnemonic);

/// The letter of a discipline in capitals: M, N, P or A; 0 for anything else.
char disciplineLetter(std::string_view cell);

/// A discipline letter: M, N, P or A. Anything else is told and not taken.
Cell readDiscipline(CellReader& cells, int column, char* out);

/// The category that a row names by its mnemonic or, in a group column or with more letters than a
/// mnemonic has, by the name of a group of taxa. A group that is not there yet is announced, as is
/// a mnemonic whose discipline the row gives. Null: the cell is empty, or the row was refused.
Category* readCategory(
    CellReader& cells, int column, bool isGroup, char discipline, CategoryWriter& categories);

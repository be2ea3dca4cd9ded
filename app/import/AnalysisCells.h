// app/import/AnalysisCells.h
#pragma once

#include "app/import/Cells.h"
#include "app/import/ImportContext.h"

#include <optional>
#include <string>

// Cells that the files of analytical data have in common. What cannot be read refuses the row.

/// Reads taxa, categories and users unless that is done. False: `*error`.
bool loadNames(ImportContext& context, std::string* error);

/// The sample that the row names by the number that its samples file gives it; null when refused.
const FileId* readSample(CellReader& cells, int column, ImportContext& context);

/// Who analysed: an analyst of the database or of the files, or one who becomes known by the row.
struct AnalystCell {
    User* user = nullptr;       ///< null: the row is refused
    std::optional<long> number; ///< of the analysis, when the cell says it: "ABC/2"
};
/// Rows without an analyst are the current user's. The users must be loaded.
AnalystCell readAnalyst(CellReader& cells, int column, ImportContext& context);

/// The letter of the row, else the one of the category, else 0: the row is refused.
char readDisciplineOf(CellReader& cells, int column, const Category* category);

/// The number of an analysis: that of its column, else of the analyst's cell.
std::optional<long> readAnalysisNumber(CellReader& cells, int column, const AnalystCell& analyst);

/// Y or N in the forms people write; what is neither is told and not taken.
std::optional<bool> readYesNo(CellReader& cells, int column);

// app/import/TaxonReport.h
#pragma once

#include "app/import/Cells.h"
#include "app/import/TaxonName.h"

#include <string>

// What an import says about names, and what it keeps of them beside the slots.

/// Adjusts the row when the name does not read back as it was written, when its qualifiers could
/// not be told apart, and when searches will not find it.
void tellReading(CellReader& cells, const std::string& written, const NameReading& name);

/// The note that keeps a published spelling.
std::string asPublished(const std::string& written);

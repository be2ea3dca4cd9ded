// app/import/TableLoader.h
#pragma once

#include "app/import/Loader.h"
#include "app/import/Shapes.h"
#include "app/tables/TableFile.h"

#include <vector>

// The files that an export writes, one per table of the database.

/// Their shapes, in the order of storing.
std::vector<FileShape> tableShapes();

std::unique_ptr<RowLoader> makeTableLoader(ImportContext& context, const TableFile& table);

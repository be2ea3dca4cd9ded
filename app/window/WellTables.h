// app/window/WellTables.h
#pragma once

#include "app/window/WellTableModel.h"

#include <memory>

// The plain tables of a well, a row for each of its parts.

/// In the order of the well's list. Without those that stand in for samples which an event or an
/// analysis names and the database does not have.
std::unique_ptr<WellTableModel> sampleTable();

/// By depth, those last whose sample the database does not have: they are named and have no depth.
std::unique_ptr<WellTableModel> eventTable();

std::unique_ptr<WellTableModel> coreTable();

/// The points of the deviation survey, as far as it was read.
std::unique_ptr<WellTableModel> surveyTable();

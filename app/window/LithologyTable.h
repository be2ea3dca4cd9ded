// app/window/LithologyTable.h
#pragma once

#include "app/window/RecordTable.h"

class IGDBase;
class LithologyEditing;

/// The columns of the lithology of a well.
std::vector<WellColumn> lithologyColumns();

/// A rock interval, or what is said of the rocks, with depths in `units`.
RecordRow lithologyRow(const IGDBase& record, const LithologyEditing& edits, char units);

/// What kind of record it is.
QString kindText(char kind);

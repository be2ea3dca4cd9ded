// well/WellMaster.h
#pragma once

#include <array>

class Cursor;
class Well;

// WELLS_MASTER: a view that a company may lay over its own well register. Its columns replace what
// WELLS says; which of them a database has is for it to choose.

/// 0 at start: the view is not looked at. Set by the embedding application, which then calls
/// `Well::ProbeMasterColumns` before the next header is read.
extern int useWellsMaster;

/// A column of the view.
struct MasterColumn {
    const char* name;
    /// Reads it and keeps it in the well; whether that changed the well.
    bool (*take)(Well& well, const Cursor& row, short column);
    int available = 0; ///< 1 when the view has it, as last probed
};

/// All columns, in the order in which they are asked for.
extern std::array<MasterColumn, 21> masterColumns;

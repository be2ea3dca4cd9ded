// well/WellList.h
#pragma once

#include "util/OwningList.h"

class Well;

/// Wells in ascending order of name (bytes). Owns them: what is in the list is destroyed with it.
/// No operation moves the list's own cursor, except that insertion does as `insert` does.
class WellList : public OwningList<Well> {
public:
    ~WellList();

    /// Takes `w` over, behind wells of the same name.
    void InsertByName(Well* w);
    /// Takes `w` over and returns 1; 0 when a well of that `well_id` is in the list, and `w` stays
    /// the caller's.
    int AddUnique(Well* w);
    /// Reads the well of that identifier into the list and returns 1, whatever `Well(long)` made of
    /// it; 0 when it is in the list already.
    int AddById(long well_id);
    /// The well of that identifier. When the list has none: read as by `AddById` when `create` is
    /// not 0, else null.
    Well* Get(long well_id, int create);
    /// The n-th well, counted from 1; null when there are fewer or `n` is below 1.
    Well* At(int n) const;

private:
    Well* add(long well_id);
    Well* find(long well_id) const;
};

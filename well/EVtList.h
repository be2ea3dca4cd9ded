// well/EVtList.h
#pragma once

#include "util/OwningList.h"
#include "well/EVt.h"
#include "well/EventOrder.h"

/// The events of one well, by depth or by name and depth. Owns them. The list operations of `GList`
/// may be used beside these at any time.
class EVtList : public OwningList<EVt> {
public:
    EVtList()
        : order_(*this)
    {
    }

    /// Puts `evt` before the first event that it goes before, at the end when there is none. By
    /// name, letter case ignored, while the list groups by names; then by depth, shallowest first
    /// ('O' as `wellType`: deepest first); at the same depth (within 0.0001 m) tops before bases
    /// (`reverse` not 0: bases before tops). An event that is neither goes before the first base
    /// (`reverse`: top) of that depth. The number of events up to and with that one. No walk. Moves
    /// the cursor as `insert` does.
    int insertSorted(EVt* evt, char wellType, int reverse);

    /// Makes the list group its events by name (`mode` not 0) or not (0), and orders them as
    /// `insertSorted` does one by one in their former order. Nothing when that is the mode already.
    /// The cursor goes to the front.
    void sortBy(int mode, char wellType, int reverse);

    int groupingMode() const { return mode_; }

private:
    int mode_ = 0;
    EventOrder order_;
};

// well/EVtList.cpp
#include "well/EVtList.h"

#include <algorithm>
#include <vector>

int EVtList::insertSorted(EVt* evt, char wellType, int reverse)
{
    const std::size_t place = order_.placeOf(*evt, {mode_ != 0, wellType == 'O', reverse != 0});
    ListNode* before = order_.nodeAt(place);
    insertAt(before, evt);
    order_.added(place, before ? before->older : back());
    return static_cast<int>(before ? place + 1 : place);
}

void EVtList::sortBy(int mode, char wellType, int reverse)
{
    if (mode == mode_)
        return;
    mode_ = mode;
    std::vector<EVt*> events(begin(), end());
    while (pop()) {}
    const bool sorted = EventOrder::sort(events, {mode_ != 0, wellType == 'O', reverse != 0});
    for (EVt* evt : events) {
        if (sorted)
            push(evt);
        else
            insertSorted(evt, wellType, reverse);
    }
    reset();
}

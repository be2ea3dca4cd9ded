// well/EVtList.cpp
#include "well/EVtList.h"

#include <algorithm>
#include <vector>

int EVtList::insertSorted(EVt* evt, char wellType, int reverse)
{
    const auto place = order_.placeOf(*evt, {mode_ != 0, wellType == 'O', reverse != 0});
    insertAt(place.node, evt);
    order_.added(place, place.node ? place.node->older : back());
    return static_cast<int>(place.node ? place.number + 1 : place.number);
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

// well/WellList.cpp
#include "well/WellList.h"

#include "well/Well.h"

#include <algorithm>

WellList::~WellList() = default;

void WellList::InsertByName(Well* w)
{
    const auto behind = std::find_if(begin(), end(),
        [w](const Well* other) { return other->well_name.view() > w->well_name.view(); });
    insertAt(behind.node(), w);
}

int WellList::AddUnique(Well* w)
{
    if (find(w->well_id))
        return 0;
    InsertByName(w);
    return 1;
}

int WellList::AddById(long well_id)
{
    if (find(well_id))
        return 0;
    add(well_id);
    return 1;
}

Well* WellList::Get(long well_id, int create)
{
    Well* known = find(well_id);
    return known || !create ? known : add(well_id);
}

Well* WellList::At(int n) const
{
    for (Well* w : *this) {
        if (--n == 0)
            return w;
    }
    return nullptr;
}

Well* WellList::add(long well_id)
{
    auto* w = new Well(well_id);
    InsertByName(w);
    return w;
}

Well* WellList::find(long well_id) const
{
    const auto found =
        std::find_if(begin(), end(), [well_id](const Well* w) { return w->well_id == well_id; });
    return found == end() ? nullptr : *found;
}

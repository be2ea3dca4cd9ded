// interp/IGDList.cpp
#include "interp/IGDList.h"

#include "db/Session.h"
#include "well/Well.h"

#include <algorithm>

IGDList::IGDList(int igd_type, int hierMin, int hierMax, Well* well, char unit, long envsch_id,
    long interp_id, const long* schemeIds)
    : igd_type_(igd_type)
    , unit_(unit)
    , envsch_id_(envsch_id)
    , interp_id_(interp_id)
    , places_(DepthOrder(igdKind().sameTop))
{
    if (!well)
        return;
    well_id_ = well->well_id;
    if (igdKind().load)
        complete_ = igdKind().load(*this, {*well, hierMin, hierMax, schemeIds});
    changed_ = 0; // or a save would replace what could not be read by what could
}

IGDList::~IGDList()
{
    while (const IGDBase* record = pop())
        delete record;
}

void IGDList::insert(IGDBase* record)
{
    refresh();
    places_.put(*this, record);
    record->listed_ = true;
    changed_ = 1;
    noteState();
}

IGDBase* IGDList::at(int index) const
{
    refresh();
    return index < 0 ? nullptr : places_.at(static_cast<std::size_t>(index));
}

bool IGDList::contains(const IGDBase* record) const
{
    return std::find(begin(), end(), record) != end();
}

void IGDList::save(char unit, int negate)
{
    if (!igdKind().save)
        return;
    if (unit && unit != unit_)
        changed_ = 1;
    if (!changed_ || !igdKind().save(*this, unit ? unit : unit_, negate))
        return;
    dbCommit();
    changed_ = 0;
}

/// The index again, when somebody changed the list or a record without it.
void IGDList::refresh() const
{
    if (revision_ == revision() && changes_ == IGDBase::changes_)
        return;
    places_.clear();
    for (auto at = begin(); at != end(); ++at) {
        (*at)->listed_ = true;
        places_.append(at.node());
    }
    noteState();
}

void IGDList::noteState() const
{
    revision_ = revision();
    changes_ = IGDBase::changes_;
}

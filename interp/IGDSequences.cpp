// interp/IGDSequences.cpp
#include "interp/IGDList.h"

#include "interp/AgeIndex.h"
#include "interp/IGDZone.h"
#include "interp/SQPick.h"
#include "interp/igd_sch.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <memory>
#include <unordered_map>

namespace {

constexpr int kSequences = 10;

bool isRank(int hier) { return hier >= 1 && hier <= int(igd_sch::kLevels); }

/// A pick that can bound a zone: it has a sample, and its surface an age.
bool bounds(const SQPick& pick) { return pick.sample && pick.surface.age > 0; }

/// A term whose lower boundary was picked, and where: the first such pick.
struct Unit {
    const igdDict* term;
    const SQPick* base;
};

using Picks = std::unordered_map<long, AgeIndex<const SQPick*>>; ///< by scheme

Picks firstPicks(const TypedList<SQPick>& list)
{
    Picks picks;
    for (const SQPick* pick : list) {
        if (bounds(*pick))
            picks[pick->surface.sch_id].addFirst(pick->surface.age, pick);
    }
    return picks;
}

/// The terms of one rank of a scheme by their upper ages.
AgeIndex<Unit> unitsOf(const igd_sch& scheme, int hier, const Picks& picks)
{
    AgeIndex<Unit> units;
    const auto schemePicks = picks.find(scheme.sch_id);
    if (schemePicks == picks.end())
        return units;
    for (const igdDict* term : scheme.levels[static_cast<std::size_t>(hier - 1)]) {
        if (term->u_age <= 0 || term->l_age <= 0)
            continue;
        const auto bases = schemePicks->second.at(term->l_age);
        if (!bases.empty())
            units.add(term->u_age, {term, bases.front()});
    }
    return units;
}

std::unique_ptr<IGDZone> sequence(const SQPick& top, const Unit& unit, long sch_id)
{
    const SQPick& base = *unit.base;
    auto zone = std::make_unique<IGDZone>(
        kSequences, top.depth(), base.depth(), '\0', unit.term->name.c_str(), '\0', "");
    zone->top_id = top.samp_id;
    zone->topSampleType = top.sample->GetType();
    zone->base_id = base.samp_id;
    zone->baseSampleType = base.sample->GetType();
    zone->top_bnd = top.bnd;
    zone->base_bnd = base.bnd;
    zone->sch_id = sch_id;
    return zone;
}

} // namespace

IGDList::IGDList(const TypedList<SQPick>& picks, const Well& well, int hier)
    : igd_type_(kSequences)
    , well_id_(well.well_id)
    , places_(DepthOrder(igdKind().sameTop))
{
    if (!isRank(hier))
        return;
    const Picks bases = firstPicks(picks);
    std::unique_ptr<igd_sch> scheme;
    AgeIndex<Unit> units;
    for (const SQPick* top : picks) {
        if (!bounds(*top))
            continue;
        if (!scheme || scheme->sch_id != top->surface.sch_id) {
            scheme = std::make_unique<igd_sch>(top->surface.sch_id, 1);
            units = unitsOf(*scheme, hier, bases);
        }
        for (const Unit& unit : units.at(top->surface.age))
            insert(sequence(*top, unit, scheme->sch_id).release());
    }
    changed_ = 0;
}

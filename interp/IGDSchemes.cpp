// interp/IGDSchemes.cpp
#include "interp/IGDList.h"

#include "interp/IGDSchemeList.h"
#include "interp/IGDZone.h"

#include <memory>
#include <span>

namespace {

constexpr int kBiozones = 4;

bool covers(const IGDBase& record, const IGDBase& zone)
{
    return record.getTop(0) <= zone.getTop(0) && record.getBase(0) >= zone.getBase(0);
}

bool mayCover(const DepthOrder::Reach& branch, const IGDBase& zone)
{
    return branch.shallowestTop <= zone.getTop(0) && branch.deepestBase >= zone.getBase(0);
}

/// The depths of a zone under the name of its scheme.
std::unique_ptr<IGDZone> schemeZone(const IGDZone& zone)
{
    const igd_sch scheme(zone.sch_id, 0);
    auto result = std::make_unique<IGDZone>(
        kBiozones, zone.getTop(0), zone.getBase(0), '\0', scheme.name.c_str(), '\0', "");
    result->top_id = zone.top_id;
    result->base_id = zone.base_id;
    result->topSampleType = zone.topSampleType;
    result->baseSampleType = zone.baseSampleType;
    result->sch_id = zone.sch_id;
    return result;
}

/// Lets `first` end where `second` does, unless it reaches further down by itself.
void extend(IGDZone& first, const IGDZone& second)
{
    if (second.getBase(0) <= first.getBase(0))
        return;
    first.setBase(second.getBase(0));
    first.base_id = second.base_id;
    first.baseSampleType = second.baseSampleType;
}

IGDZone& zoneAt(const IGDList::iterator& at) { return dynamic_cast<IGDZone&>(**at); }

} // namespace

IGDList::IGDList(const IGDList* const* lists, int n)
    : igd_type_(kBiozones)
    , places_(DepthOrder(igdKind().sameTop))
{
    const IGDList* first = nullptr;
    for (const IGDList* list : std::span(lists, static_cast<std::size_t>(n))) {
        if (!list)
            continue;
        first = first ? first : list;
        addCoverage(*list);
        joinSchemes();
    }
    changed_ = 0;
    if (!first)
        return;
    well_id_ = first->well_id_;
    unit_ = first->unit_;
    title_ = first->title_;
}

void IGDList::addCoverage(const IGDList& list)
{
    for (const IGDBase* record : list) {
        const auto* zone = dynamic_cast<const IGDZone*>(record);
        if (!zone)
            continue;
        refresh();
        const bool covered =
            places_.any([=](const auto& branch) { return mayCover(branch, *zone); },
                [=](const IGDBase& member) { return covers(member, *zone); });
        if (!covered)
            insert(schemeZone(*zone).release());
    }
}

/// Joins neighbours of one scheme. Of several in a row all go into the first.
void IGDList::joinSchemes()
{
    for (auto at = begin(), behind = at; at != end(); at = behind) {
        for (++behind; behind != end() && zoneAt(at).sch_id == zoneAt(behind).sch_id;) {
            const auto joined = behind++;
            extend(zoneAt(at), zoneAt(joined));
            const std::unique_ptr<IGDBase> record(*joined);
            removeAt(joined.node());
        }
    }
}

bool IGDList::termInScheme(const IGDZone& zone, int upper, const IGDSchemeList* schemes)
{
    const long igd_id = upper ? zone.upp_zone : zone.low_zone;
    if (!schemes || igd_id < 1)
        return true;
    igd_sch* scheme = schemes->findScheme(zone.sch_id);
    if (!scheme)
        return false;
    scheme->loadTerms();
    return scheme->findTermById(igd_id) != nullptr;
}

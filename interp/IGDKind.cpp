// interp/IGDKind.cpp
#include "interp/IGDKind.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr auto kThick = SameTop::ThickestFirst;
constexpr auto kThin = SameTop::ThinnestFirst;

// Zones of a discipline (41 to 44) are loaded as zones of type 4, for several schemes at a time;
// lists of their own type are made by callers.
constexpr IGDKind kKinds[] = {
    // type, load, save, same top, zones, sampled
    {2, loadZones, nullptr, kThin, true, &kSampledZones},
    {3, loadZones, nullptr, kThin, true, &kSampledZones},
    {4, loadZones, nullptr, kThin, false, nullptr},
    {5, loadEnvironments, nullptr, kThick, false, &kSampledEnvironments},
    {10, loadZones, nullptr, SameTop::ThinnestFirstInRank, true, &kSampledZones},
    {11, loadCasings, nullptr, kThick, false, nullptr},
    {12, loadIntLithology, saveIntLithology, kThick, false, nullptr},
    {13, loadLithQualifiers, saveLithQualifiers, kThick, false, nullptr},
    {14, loadSeismicMarkers, nullptr, kThick, false, nullptr},
    {41, nullptr, nullptr, kThick, true, &kSampledZones},
    {42, nullptr, nullptr, kThick, true, &kSampledZones},
    {43, nullptr, nullptr, kThick, true, &kSampledZones},
    {44, nullptr, nullptr, kThick, true, &kSampledZones},
};

constexpr IGDKind kOther = {0, nullptr, nullptr, kThick, false, nullptr};

} // namespace

const IGDKind& igdKindOf(int igd_type)
{
    const auto row = std::find_if(std::begin(kKinds), std::end(kKinds),
        [igd_type](const IGDKind& kind) { return kind.igd_type == igd_type; });
    return row == std::end(kKinds) ? kOther : *row;
}

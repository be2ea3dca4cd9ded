// bench/ranges/Ranges.cpp
// How long it takes to order all taxa of a well by their ranges, beside loading that well; and
// whether the order is that of the plain method, which looks through the well for each taxon.
#include "bench/well_load/BenchFile.h"
#include "bench/well_load/LoadedWell.h"
#include "bench/well_load/Stopwatch.h"
#include "taxonomy/TaxonList.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <array>

namespace {

const GeneratedWell kWell{.id = 1};
const GeneratedWell kSmaller{.id = 2, .samples = 400, .taxa = 300, .occurrencesPerDetail = 10};
constexpr char kAnyDiscipline = '\0';
constexpr int kByTop = 1, kByBase = 2;

void listAll(TaxonList& taxa, long count)
{
    for (long id = 1; id <= count; ++id) {
        auto* taxon = new Taxon;
        taxon->setSpecId(id);
        taxa.push(taxon);
    }
}

int rangeOrder(Well& well, TaxonList& taxa, int mode)
{
    constexpr int kExcluding = 1;
    return well.RangeOrder(taxa, mode, kAnyDiscipline, kExcluding, 0, 0, 0, 'M', 0, "");
}

bool holdsEnd(const Sample& s, long taxon, int mode, int exclude)
{
    for (const Smpdtl* d : s.details)
        for (const Fssabnd* o : d->occurrences)
            if (o->spec_id == taxon && countsForRange(*o, mode, exclude))
                return true;
    return false;
}

/// The depth of the taxon's first or last sample, by looking through all of them.
float plainEnd(const Well& well, long taxon, int mode)
{
    float end = mode == kByTop ? 99999.0F : -99999.0F;
    for (const int exclude : {1, 0}) {
        bool found = false;
        for (const Sample* s : well.samples) {
            const float depth = s->GetDepth('M', 0, 1);
            if ((mode == kByTop ? depth < end : depth > end) && holdsEnd(*s, taxon, mode, exclude))
                end = depth, found = true;
        }
        if (found)
            return end;
    }
    return end;
}

/// The identifiers by the depths of their ends, equal ones as they come.
std::vector<long> plainOrder(const Well& well, long count, int mode)
{
    std::vector<std::pair<float, long>> ends;
    for (long id = 1; id <= count; ++id)
        ends.emplace_back(plainEnd(well, id, mode), id);
    std::ranges::stable_sort(ends, [mode](const auto& a, const auto& b) {
        return mode == kByTop ? a.first < b.first : a.first > b.first;
    });
    std::vector<long> order;
    for (const auto& [end, id] : ends)
        order.push_back(id);
    return order;
}

bool ordersAsPlain(int mode)
{
    Well well;
    loadWhole(well, kSmaller.id);
    TaxonList taxa;
    listAll(taxa, kSmaller.taxa);
    rangeOrder(well, taxa, mode);
    std::vector<long> order;
    for (const Taxon* taxon : taxa)
        order.push_back(taxon->spec_id());
    return order == plainOrder(well, kSmaller.taxa, mode);
}

void compareTimes(int rounds)
{
    std::vector<Took> loads, byTop, byBase;
    const auto ordered = [](Well& well, int mode) {
        TaxonList taxa; // a new one each time: the same list would be left as it is
        listAll(taxa, kWell.taxa);
        return timed([&] { rangeOrder(well, taxa, mode); });
    };
    for (int i = 0; i < rounds; ++i) {
        Well well;
        loads.push_back(timed([&] { loadWhole(well, kWell.id); }));
        byTop.push_back(ordered(well, kByTop));
        byBase.push_back(ordered(well, kByBase));
    }
    std::printf("%ld taxa, %ld occurrences, %d rounds, seconds (median): load %.3f, by tops %.3f, "
                "by bases %.3f\n",
        kWell.taxa, kWell.occurrences(), rounds, medianWall(loads), medianWall(byTop),
        medianWall(byBase));
    showGoal("ordering by tops over loading", medianRatio(byTop, loads), 0.3);
    showGoal("ordering by bases over loading", medianRatio(byBase, loads), 0.3);
}

} // namespace

int main(int count, char** arguments)
{
    const BenchFile file(std::array{kWell, kSmaller});
    const BenchSession session(file.path());
    for (const int mode : {kByTop, kByBase})
        if (!ordersAsPlain(mode)) {
            std::printf("mode %d does not order as the plain method does\n", mode);
            return 1;
        }
    compareTimes(count > 1 ? std::max(1, std::atoi(arguments[1])) : 9);
    return 0;
}

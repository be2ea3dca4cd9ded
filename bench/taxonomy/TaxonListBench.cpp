// bench/taxonomy/TaxonListBench.cpp
#include "bench/support/Ratio.h"
#include "bench/taxonomy/ManyTaxa.h"
#include "taxonomy/TaxonList.h"

#include <algorithm>
#include <memory>
#include <strings.h>
#include <vector>

namespace {

std::vector<Taxon> manyTaxa(std::int64_t count)
{
    ManyTaxa names(7);
    std::vector<Taxon> taxa;
    for (long id = 1; id <= count; ++id)
        taxa.push_back(names.next(id));
    return taxa;
}

std::unique_ptr<TaxonList> listOf(const std::vector<Taxon>& taxa)
{
    auto list = std::make_unique<TaxonList>();
    for (const Taxon& taxon : taxa)
        list->push(new Taxon(taxon));
    return list;
}

bool goesBefore(const Taxon* a, const Taxon* b)
{
    const int category = std::string_view(a->category()).compare(b->category());
    if (category != 0)
        return category < 0;
    for (const int number : {slot::genus, slot::species, slot::subspecies}) {
        const int difference = strcasecmp(a->field(number), b->field(number));
        if (difference != 0)
            return difference < 0;
    }
    return false;
}

std::vector<const Taxon*> plainlySorted(const std::vector<Taxon>& taxa)
{
    std::vector<const Taxon*> sorted;
    for (const Taxon& taxon : taxa)
        sorted.push_back(&taxon);
    std::stable_sort(sorted.begin(), sorted.end(), goesBefore);
    return sorted;
}

bool sameOrder(TaxonList& list, const std::vector<const Taxon*>& sorted)
{
    return std::equal(list.begin(), list.end(), sorted.begin(), sorted.end(),
        [](const Taxon* a, const Taxon* b) { return a->spec_id() == b->spec_id(); });
}

/// Against a vector of pointers and the standard library's sort.
void BM_SortByCategory(benchmark::State& state)
{
    const std::vector<Taxon> taxa = manyTaxa(state.range(0));
    // A list that is sorted has less to do, so each round gets one of its own.
    std::vector<std::unique_ptr<TaxonList>> lists;
    for (auto round = state.max_iterations; round > 0; --round)
        lists.push_back(listOf(taxa));
    std::size_t next = 0;
    measureRatio(
        state, [&] { lists[next++]->sortBy(2, -1); },
        [&] { benchmark::DoNotOptimize(plainlySorted(taxa)); });
    if (!sameOrder(*lists.front(), plainlySorted(taxa)))
        state.SkipWithError("the order differs");
}
BENCHMARK(BM_SortByCategory)
    ->Arg(1000)
    ->Arg(20000)
    ->Iterations(10)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

/// Against filling a vector and sorting it at the end.
void BM_InsertSorted(benchmark::State& state)
{
    const std::vector<Taxon> taxa = manyTaxa(state.range(0));
    const auto filled = [&] {
        auto list = std::make_unique<TaxonList>();
        list->sortMode = 2;
        for (const Taxon& taxon : taxa)
            list->insertSorted(new Taxon(taxon), 1);
        return list;
    };
    measureRatio(
        state, [&] { benchmark::DoNotOptimize(filled()); },
        [&] { benchmark::DoNotOptimize(plainlySorted(std::vector<Taxon>(taxa))); });
    if (!sameOrder(*filled(), plainlySorted(taxa)))
        state.SkipWithError("the order differs");
}
BENCHMARK(BM_InsertSorted)
    ->Arg(1000)
    ->Arg(20000)
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

// A name without marks, as the composer puts it together.
std::string plainName(const Taxon& taxon)
{
    std::string name = taxon.genus();
    for (const char* part : {taxon.species(), taxon.subspecies()})
        if (*part)
            name.append(" ").append(part);
    if (taxon.has(slot::author)) // two blanks in front of it
        name.append("  ").append(taxon.author()).append(" ").append(std::to_string(taxon.year));
    return name;
}

/// Against joining the parts of a name that has no marks with blanks.
void BM_DisplayName(benchmark::State& state)
{
    std::vector<Taxon> taxa = manyTaxa(state.range(0));
    measureRatio(
        state,
        [&] {
            for (Taxon& taxon : taxa)
                benchmark::DoNotOptimize(taxon.displayName(1, 0, 0, 0));
        },
        [&] {
            for (const Taxon& taxon : taxa)
                benchmark::DoNotOptimize(plainName(taxon));
        });
    state.SetItemsProcessed(state.iterations() * state.range(0));
    for (Taxon& taxon : taxa)
        if (taxon.displayName(1, 0, 0, 0) != plainName(taxon))
            state.SkipWithError("a name differs");
}
BENCHMARK(BM_DisplayName)->Arg(20000)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

// bench/taxonomy/TaxonSearchBench.cpp
#include "bench/support/BenchDatabase.h"
#include "bench/support/Ratio.h"
#include "bench/taxonomy/ManyTaxa.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "taxonomy/TaxonList.h"

#include <algorithm>
#include <memory>
#include <set>
#include <strings.h>
#include <vector>

namespace {

constexpr long kSpecies = 50000;
constexpr long kSynonymEvery = 10;

/// A dictionary of 50,000 species, a tenth of them synonyms, made once.
class ManySpecies {
public:
    ManySpecies()
    {
        for (long number = 1; number <= ManyTaxa::kGenera; ++number)
            db_.run("INSERT INTO GENUS (gen_id, cat_mnem, genus) VALUES (" + sql::integer(number)
                + ", 'FORAM', " + sql::quote(ManyTaxa::genus(number)) + ")");
        ManyTaxa names(7);
        for (long id = 1; id <= kSpecies; ++id)
            insert(names.next(id));
    }

private:
    void insert(const Taxon& taxon)
    {
        const std::string id = sql::integer(taxon.spec_id());
        db_.run("INSERT INTO SPECIES (spec_id, gen_id, species, sub_spec, author, year) VALUES ("
            + id + ", " + sql::integer(taxon.gen_id) + ", " + sql::quote(taxon.species()) + ", "
            + sql::quote(taxon.subspecies()) + ", " + sql::quote(taxon.author()) + ", "
            + sql::integer(taxon.year) + ")");
        if (taxon.spec_id() % kSynonymEvery == 0)
            db_.run("INSERT INTO SYNONYMY (spec_id, pref, sch_id) VALUES (" + id + ", 1, 1)");
    }

    BenchDatabase db_;
};

std::unique_ptr<TaxonList> searched(std::string genus)
{
    char any[] = "%";
    return std::unique_ptr<TaxonList>(
        Taxon::searchTaxa(nullptr, genus.data(), nullptr, any, nullptr, 0, 0, 0));
}

std::set<long> synonyms()
{
    std::set<long> ids;
    Cursor row("SELECT spec_id FROM SYNONYMY");
    while (row.next())
        ids.insert(row.integer(1));
    return ids;
}

struct Name {
    long id;
    std::string genus, species, subspecies;
};

bool goesBefore(const Name& a, const Name& b)
{
    for (const auto part : {&Name::genus, &Name::species, &Name::subspecies}) {
        const int difference = strcasecmp((a.*part).c_str(), (b.*part).c_str());
        if (difference != 0)
            return difference < 0;
    }
    return false;
}

/// Reads the whole dictionary in one statement and keeps what is asked for.
std::vector<Name> plainlySearched(const std::string& beginning)
{
    const std::set<long> left = synonyms();
    std::vector<Name> names;
    Cursor row("SELECT s.spec_id, g.genus, s.species, s.sub_spec, s.author, s.year, s.alphaCode,"
               " g.cat_mnem, g.q1, g.q2, g.q3, g.sub_genus, g.q4, s.q1, s.q2, s.q3, s.q4, s.gen_id"
               " FROM GENUS g, SPECIES s WHERE g.gen_id = s.gen_id");
    while (row.next()) {
        const long id = row.integer(1);
        const std::string genus = row.text(2), species = row.text(3), subspecies = row.text(4);
        if (strncasecmp(genus.c_str(), beginning.c_str(), beginning.size()) == 0
            && !left.contains(id))
            names.push_back({id, genus, species, subspecies});
    }
    std::stable_sort(names.begin(), names.end(), goesBefore);
    return names;
}

/// A search for genera that begin so, against reading all of the dictionary.
void search(benchmark::State& state, const std::string& beginning)
{
    static const ManySpecies dictionary;
    const std::string pattern = beginning + '%';
    measureRatio(
        state, [&] { benchmark::DoNotOptimize(searched(pattern)); },
        [&] { benchmark::DoNotOptimize(plainlySearched(beginning)); });
    const auto list = searched(pattern);
    const auto names = plainlySearched(beginning);
    if (!std::equal(list->begin(), list->end(), names.begin(), names.end(),
            [](const Taxon* taxon, const Name& name) { return taxon->spec_id() == name.id; }))
        state.SkipWithError("the names found differ");
    if (names.empty())
        state.SkipWithError("nothing was found");
    state.counters["found"] = static_cast<double>(names.size());
}

constexpr int kRounds = 20;

BENCHMARK_CAPTURE(search, one_genus, ManyTaxa::genus(1234))
    ->Iterations(kRounds)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(search, one_letter, "B")
    ->Iterations(kRounds)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

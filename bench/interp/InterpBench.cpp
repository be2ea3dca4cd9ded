// bench/interp/InterpBench.cpp
#include "bench/support/BenchDatabase.h"
#include "bench/support/Ratio.h"
#include "bench/well_load/OdbcRows.h"
#include "db/Literals.h"
#include "interp/IGDList.h"
#include "interp/IGDSchemeList.h"
#include "interp/IGDZone.h"
#include "well/Well.h"

#include <memory>
#include <random>
#include <vector>

namespace {

constexpr int kSchemes = 1000;
constexpr int kTerms = 5000; // of the first scheme
constexpr int kZones = 10000;
constexpr int kQuestions = 100000;
constexpr int kChronostratigraphy = 3;
constexpr int kRanks = 8;
constexpr int kRounds = 10;

// The rows, every column read as a text.
long readAll(OdbcRows& rows, int columns)
{
    long count = 0;
    while (rows.next()) {
        ++count;
        for (short column = 1; column <= columns; ++column)
            benchmark::DoNotOptimize(rows.text(column).size());
    }
    return count;
}

/// Schemes, terms and zones, made once, and a bare connection to them.
class Interpretations {
public:
    Interpretations()
    {
        addSchemes();
        addTerms();
        addZones();
        db_.run("COMMIT");
        bare_ = std::make_unique<OdbcDatabase>(db_.connectString());
    }
    const OdbcDatabase& bare() const { return *bare_; }

private:
    void addSchemes()
    {
        for (int id = 1; id <= kSchemes; ++id)
            db_.run("INSERT INTO IGD_SCH (sch_id, igd_type, name) VALUES (" + sql::integer(id)
                + ", 3, 'Scheme " + sql::integer(id * 7919 % kSchemes) + "')");
    }
    // The ranks divide the same span ever more finely.
    void addTerms()
    {
        std::mt19937 random(11);
        for (int id = 1; id <= kTerms; ++id) {
            const int rank = 1 + id % kRanks;
            const double top = static_cast<double>(random() % 400000) / 1000;
            const double base = top + 200.0 / (rank * rank);
            db_.run("INSERT INTO IGD_DICT (igd_id, sch_id, igd_type, hier, name, abr, u_age, l_age,"
                    " red, green, blue) VALUES ("
                + sql::integer(id) + ", 1, 3, " + sql::integer(rank) + ", 'Term "
                + sql::integer(id * 7 % kTerms) + "', 'T" + sql::integer(id % 1000) + "', "
                + sql::number(top) + ", " + sql::number(base) + ", 1, 2, 3)");
        }
    }
    void addZones()
    {
        db_.run("INSERT INTO WELLS (well_code, well_name, type, units) VALUES ('B-1', 'Bench', 'W',"
                " 'M')");
        db_.run("INSERT INTO WELL_IDENT (well_id, well_code) VALUES (1, 'B-1')");
        for (int id = 1; id <= kZones + 1; ++id)
            db_.run("INSERT INTO SAMPLES (well_id, samp_id, base_depth, type) VALUES (1, "
                + sql::integer(id) + ", " + sql::number(id * 0.5) + ", 'CU')");
        for (int id = 1; id <= kZones; ++id) {
            const int top = id * 7919 % kZones + 1;
            db_.run("INSERT INTO IGD (well_id, igd_type, interp_id, top_id, base_id, sch_id,"
                    " upp_inf, top_bnd, base_bnd, hier, upp_zone, low_zone) VALUES (1, 3, 0, "
                + sql::integer(top) + ", " + sql::integer(top + 1) + ", 1, 'Zone', 3, 3, 7, 1, 0)");
        }
    }

    BenchDatabase db_;
    std::unique_ptr<OdbcDatabase> bare_;
};

const Interpretations& interpretations()
{
    static const Interpretations made;
    return made;
}

long plainSchemes(const OdbcDatabase& bare)
{
    long count = 0;
    OdbcRows keys(bare, "SELECT sch_id FROM IGD_SCH ORDER BY name");
    while (keys.next()) {
        const std::string id = sql::integer(keys.integer(1));
        OdbcRows header(
            bare, "SELECT name, igd_type, created, creator FROM IGD_SCH WHERE sch_id=" + id);
        count += readAll(header, 4);
        OdbcRows span(bare, "SELECT MIN(u_age), MAX(l_age) FROM IGD_DICT WHERE sch_id=" + id);
        readAll(span, 2);
    }
    return count;
}

void schemeList(benchmark::State& state)
{
    const OdbcDatabase& bare = interpretations().bare();
    int loaded = 0;
    long read = 0;
    measureRatio(
        state, [&] { loaded = IGDSchemeList().count(); }, [&] { read = plainSchemes(bare); });
    if (loaded != read || loaded != kSchemes)
        state.SkipWithError("not all schemes were read");
}

long plainTerms(const OdbcDatabase& bare)
{
    long count = 0;
    OdbcRows keys(bare, "SELECT igd_id FROM IGD_DICT WHERE sch_id=1 ORDER BY u_age, hier, l_age");
    while (keys.next()) {
        OdbcRows term(bare,
            "SELECT sch_id, igd_type, hier, name, abr, u_age, l_age, red, green, blue, created,"
            " creator FROM IGD_DICT WHERE igd_id="
                + sql::integer(keys.integer(1)));
        count += readAll(term, 12);
    }
    return count;
}

void oneScheme(benchmark::State& state)
{
    const OdbcDatabase& bare = interpretations().bare();
    int loaded = 0;
    long read = 0;
    measureRatio(
        state, [&] { loaded = igd_sch(1, 1).terms.count(); }, [&] { read = plainTerms(bare); });
    if (loaded != read || loaded != kTerms)
        state.SkipWithError("not all terms were read");
}

/// The plainest search that finds the same: all terms of the finest rank in the order of their
/// ages, then those of the next.
const igdDict* plainSearch(
    const std::vector<std::vector<const igdDict*>>& ranks, float top, float base)
{
    for (std::size_t rank = ranks.size(); rank-- > 0;)
        for (const igdDict* term : ranks[rank])
            if (term->u_age <= top && term->l_age >= base)
                return term;
    return nullptr;
}

void termForAges(benchmark::State& state)
{
    interpretations();
    const igd_sch scheme(1, 1);
    std::vector<std::vector<const igdDict*>> ranks;
    for (const igdDictList& level : scheme.levels)
        ranks.emplace_back(level.begin(), level.end());
    std::mt19937 random(5);
    std::vector<std::pair<float, float>> ages(kQuestions);
    for (auto& [top, base] : ages) {
        top = static_cast<float>(random() % 600000) / 1000;
        base = top + static_cast<float>(random() % 50000) / 1000;
    }
    std::vector<const igdDict*> found, expected;
    measureRatio(
        state,
        [&] {
            found.clear();
            for (const auto& [top, base] : ages)
                found.push_back(scheme.findTermForAges(top, base));
        },
        [&] {
            expected.clear();
            for (const auto& [top, base] : ages)
                expected.push_back(plainSearch(ranks, top, base));
        });
    if (found != expected)
        state.SkipWithError("the terms found differ");
}

void zoneList(benchmark::State& state)
{
    const OdbcDatabase& bare = interpretations().bare();
    Well well(1L);
    well.LoadSamples(0);
    int loaded = 0;
    long read = 0;
    measureRatio(
        state,
        [&] {
            const IGDList zones(kChronostratigraphy, 1, kRanks, &well, 'M', 0, 0, nullptr);
            loaded = zones.count();
        },
        [&] {
            OdbcRows rows(bare,
                "SELECT top_id, base_id, sch_id, q_uzone, q_lzone, upp_inf, low_inf, top_bnd,"
                " base_bnd, hier, upp_zone, low_zone ,sep,modified,modifier FROM IGD WHERE"
                " well_id=1 AND igd_type=3 AND hier >=1 AND hier <=8 AND interp_id=0");
            read = readAll(rows, 15);
        });
    if (loaded != read || loaded != kZones)
        state.SkipWithError("not all zones were read");
}

BENCHMARK(schemeList)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(oneScheme)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(termForAges)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(zoneList)->Iterations(kRounds)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

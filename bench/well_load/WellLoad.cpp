// bench/well_load/WellLoad.cpp
// How long a whole well takes to load, beside the same statements read through the engine's own
// interface and through bare ODBC calls; all in one run, taking turns.
//
//     bench_well_load [ROUNDS]
//
// For a profiler: --make FILE makes the database, --growth engine|odbc|objects FILE reads it once.
#include "bench/well_load/BenchFile.h"
#include "bench/well_load/GeneratedWell.h"
#include "bench/well_load/LoadedWell.h"
#include "bench/well_load/Memory.h"
#include "bench/well_load/OdbcRows.h"
#include "bench/well_load/Recorder.h"
#include "bench/well_load/SqliteRows.h"
#include "bench/well_load/Statements.h"
#include "bench/well_load/Stopwatch.h"
#include "well/Well.h"

#include <array>
#include <cinttypes>
#include <cstring>

namespace {

const GeneratedWell kWell{.id = 1};
const GeneratedWell kTwice{.id = 2, .samples = 10000};

/// The three ways of reading, each on a connection of its own.
class Ways {
public:
    explicit Ways(const std::string& file)
        : engine_(file)
        , odbc_(connectStringFor(file))
        , session_(file)
    {
    }

    template <class Values> void engine(long well, Values& values)
    {
        for (const LoadStatement& statement : loadStatements(well)) {
            SqliteRows rows(engine_, statement.sql);
            readAll(rows, statement.columns, values);
        }
    }
    template <class Values> void odbc(long well, Values& values)
    {
        for (const LoadStatement& statement : loadStatements(well)) {
            OdbcRows rows(odbc_, statement.sql);
            readAll(rows, statement.columns, values);
        }
    }

private:
    SqliteDatabase engine_;
    OdbcDatabase odbc_;
    BenchSession session_;
};

/// Whether the ways run the same statements and read the same from them.
bool readTheSame(Ways& ways, Recorder& recorder, const GeneratedWell& size)
{
    HashedValues engine, odbc, objects;
    ways.engine(size.id, engine);
    recorder.take();
    ways.odbc(size.id, odbc);
    const std::string statements = recorder.take();
    Well well;
    loadWhole(well, size.id);
    const bool sameStatements = statements == recorder.take() && !statements.empty();
    hashObjects(well, objects);
    std::printf("%ld samples, %ld details, %ld occurrences: %s statements, hash of all fields\n"
                "  (a) %016" PRIx64 "  (b) %016" PRIx64 "  (c) %016" PRIx64 "\n",
        size.samples, size.details(), size.occurrences(), sameStatements ? "the same" : "OTHER",
        engine.sum(), odbc.sum(), objects.sum());
    return sameStatements && engine.sum() == odbc.sum() && engine.sum() == objects.sum();
}

bool readTheSame(const std::string& file)
{
    Recorder recorder(file + ".statements");
    Ways ways(file);
    return readTheSame(ways, recorder, kWell) && readTheSame(ways, recorder, kTwice);
}

Took loaded(long id)
{
    Well well;
    return timed([&] { loadWhole(well, id); });
}

void showRow(const char* name, const std::vector<Took>& runs, const std::vector<Took>& engine,
    const std::vector<Took>& odbc)
{
    std::printf("%-34s %6.3f %6.3f   %5.2f %5.2f\n", name, leastWall(runs), medianWall(runs),
        medianRatio(runs, engine), medianRatio(runs, odbc));
}

void compareTimes(const std::string& file, int rounds)
{
    Ways ways(file);
    std::vector<Took> engine, odbc, objects, twice, engineTwice;
    TouchedValues values;
    for (int i = 0; i < rounds; ++i) {
        engine.push_back(timed([&] { ways.engine(kWell.id, values); }));
        odbc.push_back(timed([&] { ways.odbc(kWell.id, values); }));
        objects.push_back(loaded(kWell.id));
        twice.push_back(loaded(kTwice.id));
        engineTwice.push_back(timed([&] { ways.engine(kTwice.id, values); }));
    }
    std::printf("\n%-34s %6s %6s   %5s %5s   (%d rounds, touched %" PRIu64 ")\n", "seconds",
        "least", "median", "x (a)", "x (b)", rounds, values.sum());
    showRow("(a) the engine's C interface", engine, engine, odbc);
    showRow("(b) bare ODBC calls", odbc, engine, odbc);
    showRow("(c) loaders into objects", objects, engine, odbc);
    showRow("(c) of twice the rows", twice, engine, odbc);
    showRow("(a) of twice the rows", engineTwice, engine, odbc);
    std::printf("\n");
    showGoal("loading over bare ODBC", medianRatio(objects, odbc), 1.25);
    showGoal("loading over the C interface", medianRatio(objects, engine), 1.8);
    showGoal("twice the rows", medianRatio(twice, objects), 2.1);
}

/// Prints by how much the process grew at its most while it read in one way.
int printGrowth(const char* way, const std::string& file)
{
    Ways ways(file);
    const long before = residentBytes(false);
    TouchedValues values;
    Well well;
    if (std::strcmp(way, "engine") == 0)
        ways.engine(kWell.id, values);
    else if (std::strcmp(way, "odbc") == 0)
        ways.odbc(kWell.id, values);
    else
        loadWhole(well, kWell.id);
    std::printf("%ld\n", residentBytes(true) - before);
    return 0;
}

void compareMemory(const std::string& file)
{
    const auto growth = [&](const std::string& way) {
        return static_cast<double>(numberFromFreshProcess("--growth " + way + " '" + file + "'"));
    };
    const double objects = growth("objects");
    constexpr double kMiB = 1024 * 1024;
    std::printf("\npeak growth in MiB: (a) %.1f, (b) %.1f, (c) %.1f\n", growth("engine") / kMiB,
        growth("odbc") / kMiB, objects / kMiB);
    showGoal("bytes an occurrence, all included",
        objects / static_cast<double>(kWell.occurrences()), 220);
}

} // namespace

int main(int count, char** arguments)
{
    if (count == 4 && std::strcmp(arguments[1], "--growth") == 0)
        return printGrowth(arguments[2], arguments[3]);
    if (count == 3 && std::strcmp(arguments[1], "--make") == 0) {
        generate(std::array{kWell}, arguments[2]);
        return 0;
    }
    const int rounds = count > 1 ? std::max(1, std::atoi(arguments[1])) : 9;
    const BenchFile file(std::array{kWell, kTwice});
    if (!readTheSame(file.path())) {
        std::printf("the three ways do not read the same\n");
        return 1;
    }
    compareTimes(file.path(), rounds);
    compareMemory(file.path());
    return 0;
}

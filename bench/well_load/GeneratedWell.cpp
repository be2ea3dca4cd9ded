// bench/well_load/GeneratedWell.cpp
#include "bench/well_load/GeneratedWell.h"

#include "bench/well_load/SqliteRows.h"
#include "schema/Schema.h"

#include <cstdio>
#include <random>
#include <set>

namespace {

/// Values that look like those of real wells: mostly short, many missing.
class Values {
public:
    long below(long n) { return static_cast<long>(random_() % static_cast<unsigned long>(n)); }
    bool oneIn(long n) { return below(n) == 0; }
    template <std::size_t N> const char* of(const char* const (&texts)[N])
    {
        return texts[below(static_cast<long>(N))];
    }

private:
    std::mt19937 random_{7};
};

constexpr const char* kTypes[] = {"CU", "SC", "CO", "CU", "CU"};
constexpr const char* kAbundances[] = {"R", "F", "C", "A", "VA"};
constexpr const char* kPreservations[] = {"good", "moderate", "poor", nullptr, nullptr, nullptr};
constexpr const char* kColours[] = {"2", "2+", "3-", nullptr, nullptr, nullptr, nullptr};
constexpr const char* kRemarks[] = {"fragment", "broken specimens only, aff. type material",
    "single well preserved specimen at the top of the interval"};
constexpr const char* kNotes[] = {nullptr, nullptr, "rich residue", "washed twice, much pyrite"};

// An analyst works through neighbouring samples, then the other one goes on.
long analysisOf(std::size_t discipline, long sample)
{
    return static_cast<long>(discipline) * 2 + 1 + sample / 10 % 2;
}

long sampleOf(const GeneratedWell& well, long number) { return well.id * 1000000 + number; }

void addUsers(SqliteDatabase& db)
{
    SqliteRows user(db, "INSERT INTO USERDEF (user_id, abr) VALUES (?, ?)");
    long id = 100;
    for (const char* abbreviation : {"AB", "CDE", "FG", "HIJ"})
        user.run(++id, abbreviation);
}

void addAnalyses(SqliteDatabase& db, const GeneratedWell& well)
{
    SqliteRows analysis(db,
        "INSERT INTO ANALY_HDR (well_id, analy_id, disc_id, analyst, analy_no, red, green, blue, "
        "abnsch_id) VALUES (?, ?, ?, ?, ?, 10, 20, 30, 1)");
    for (long id = 1; id <= 4; ++id) {
        const char letter[] = {GeneratedWell::kDisciplines[(id - 1) / 2], '\0'};
        analysis.run(well.id, id, letter, 100 + id, id == 4 ? 2L : 1L);
    }
}

void addSamples(SqliteDatabase& db, const GeneratedWell& well, Values& values)
{
    SqliteRows sample(db,
        "INSERT INTO SAMPLES (samp_id, well_id, top_depth, base_depth, depth, bot_depth, type, "
        "label, grid_x, grid_y, created, modified, creator, modifier) VALUES (?, ?, ?3, ?4, ?3, "
        "?4, ?, ?, ?, ?, '2001-02-03', '2004-05-06', 'AB', 'CDE')");
    for (long id = 1; id <= well.samples; ++id) {
        const double top = 500 + static_cast<double>(id) * 0.5;
        const std::string label = values.oneIn(3) ? "S" + std::to_string(id) : "";
        sample.run(sampleOf(well, id), well.id, top, top + 0.25, values.of(kTypes), label.c_str(),
            values.below(900), 7 + id % 50);
    }
}

void addDetails(SqliteDatabase& db, const GeneratedWell& well, Values& values)
{
    SqliteRows detail(db,
        "INSERT INTO SMPDTL (well_id, samp_id, analy_id, picker, source, barren, modified, "
        "modifier, weight, coarse, medium, fine, notes, proximal, distal) VALUES (?, ?, ?, 'AB', "
        "'SRC', ?, '2004-05-06', 'CDE', ?, ?, 1.0, 0.5, ?, ?, ?)");
    for (long id = 1; id <= well.samples; ++id)
        for (std::size_t d = 0; d < std::size(GeneratedWell::kDisciplines); ++d)
            detail.run(well.id, sampleOf(well, id), analysisOf(d, id), values.oneIn(30) ? "Y" : "N",
                static_cast<double>(values.below(40)) / 4, values.oneIn(2) ? 0.25 : 1.0,
                values.of(kNotes), values.below(5), values.below(5));
}

void addOccurrences(SqliteDatabase& db, const GeneratedWell& well, Values& values)
{
    SqliteRows occurrence(db,
        "INSERT INTO TAXONOCC (well_id, samp_id, spec_id, analy_id, disc_id, status, ident_type, "
        "abund, caved, marker, medium, coarse, fine, spec_type_id, preserv, colour, comments) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (long id = 1; id <= well.samples; ++id)
        for (std::size_t d = 0; d < std::size(GeneratedWell::kDisciplines); ++d) {
            const char letter[] = {GeneratedWell::kDisciplines[d], '\0'};
            std::set<long> taxa;
            while (static_cast<long>(taxa.size()) < well.occurrencesPerDetail)
                taxa.insert(1 + values.below(well.taxa));
            for (const long taxon : taxa)
                occurrence.run(well.id, sampleOf(well, id), taxon, analysisOf(d, id), letter,
                    values.oneIn(20) ? "R" : "I", values.oneIn(12) ? "?" : "P",
                    values.of(kAbundances), values.oneIn(40) ? "C" : nullptr,
                    values.oneIn(50) ? "Y" : nullptr, values.below(120), values.below(10),
                    values.below(30), 0L, values.of(kPreservations), values.of(kColours),
                    values.oneIn(20) ? values.of(kRemarks) : nullptr);
        }
}

} // namespace

void generate(std::span<const GeneratedWell> wells, const std::string& file)
{
    for (const char* ending : {"", "-wal", "-shm"})
        std::remove((file + ending).c_str());
    SqliteDatabase db(file, SqliteDatabase::Create);
    db.run("PRAGMA journal_mode=OFF");
    db.run("PRAGMA synchronous=OFF");
    db.run("BEGIN");
    for (const std::string_view statement : schemaStatements())
        db.run(statement);
    addUsers(db);
    for (const GeneratedWell& well : wells) {
        Values values;
        addAnalyses(db, well);
        addSamples(db, well, values);
        addDetails(db, well, values);
        addOccurrences(db, well, values);
    }
    db.run("COMMIT");
    db.run("PRAGMA journal_mode=WAL"); // as the driver leaves it
}

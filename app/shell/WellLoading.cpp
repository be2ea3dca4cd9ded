// app/shell/WellLoading.cpp
#include "app/shell/WellLoading.h"

#include "app/shell/CollectedReports.h"
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "taxonomy/Disciplines.h"
#include "well/Sample.h"

#include <chrono>

namespace {

// All analysts: they are told apart in memory.
constexpr const char* kAnyAnalyst = "";
constexpr int kOnce = 0;

// The first column of each row; none after a reported failure.
std::vector<std::string> column(const std::string& select)
{
    std::vector<std::string> values;
    Cursor rows(select);
    if (!rows)
        reportDbFailure(select, Fatal::No);
    while (rows && rows.next())
        values.push_back(rows.text(1));
    return values;
}

long detailsOf(const Well& well, char disc)
{
    long count = 0;
    for (const Sample* sample : well.samples)
        for (const Smpdtl* record : sample->details)
            count += record->disc == disc ? 1 : 0;
    return count;
}

long occurrencesOf(const Well& well, char disc)
{
    long count = 0;
    for (const Sample* sample : well.samples)
        count += sample->CountOccurrences(disc, kAnyAnalyst);
    return count;
}

long lithologiesOf(const Well& well)
{
    long count = 0;
    for (const Sample* sample : well.samples)
        count += sample->lithology.count();
    return count;
}

} // namespace

WellLoading::WellLoading(LoadedWell& loaded)
    : loaded_(loaded)
{
    Well& well = loaded_.well;
    steps_.push_back({"samples", [&well] {
                          well.LoadSamples(kOnce);
                          return static_cast<long>(well.samples.count());
                      }});
    addDisciplines();
    addEvents();
    steps_.push_back({"sample lithology", [&well] {
                          well.LoadSampleLithology(kOnce);
                          return lithologiesOf(well);
                      }});
    steps_.push_back({"cores", [&well] {
                          well.LoadCores(kOnce);
                          return static_cast<long>(well.cores.count());
                      }});
}

void WellLoading::addDisciplines()
{
    Well& well = loaded_.well;
    for (const std::string& letter :
        column("SELECT DISTINCT disc_id FROM " + sql::table("ANALY_HDR")
            + " WHERE well_id=" + sql::integer(well.well_id) + " ORDER BY disc_id")) {
        if (letter.empty())
            continue;
        const char disc = letter.front();
        const std::string name = disciplineName(disc);
        // Without its details an occurrence of a sample in the list ends the process.
        steps_.push_back({name + " details", [&well, disc] {
                              well.LoadSampleDetails(disc, kAnyAnalyst);
                              return detailsOf(well, disc);
                          }});
        steps_.push_back({name + " occurrences", [&well, disc] {
                              well.loadFss(disc, kAnyAnalyst, kOnce);
                              return occurrencesOf(well, disc);
                          }});
    }
}

void WellLoading::addEvents()
{
    constexpr int kByDepth = 0, kTopsFirst = 0;
    for (const std::string& number : column("SELECT DISTINCT interp_id FROM " + sql::table("EVENTS")
             + " WHERE well_id=" + sql::integer(loaded_.well.well_id) + " ORDER BY interp_id")) {
        if (number.empty()) // events of no interpretation cannot be asked for
            continue;
        steps_.push_back({"events of interpretation " + number, [this, number] {
                              const auto before = loaded_.well.events.count();
                              loaded_.well.LoadEvents(
                                  std::stol(number), loaded_.dictionary, kByDepth, kTopsFirst);
                              return static_cast<long>(loaded_.well.events.count() - before);
                          }});
    }
}

LoadStep WellLoading::next()
{
    using Clock = std::chrono::steady_clock;
    const Step& step = steps_[next_++];
    LoadStep result;
    result.name = step.name;
    CollectedReports reports;
    const auto start = Clock::now();
    result.count = step.load();
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    result.reports = reports.take();
    return result;
}

std::string disciplineName(char disc)
{
    const Discs disciplines;
    for (const Discs::Entry& entry : disciplines.entries)
        if (entry.letter == disc && !entry.name.empty())
            return std::string(entry.name.view());
    return std::string("discipline ") + disc;
}

std::vector<LoadStep> loadAll(LoadedWell& loaded)
{
    std::vector<LoadStep> steps;
    WellLoading loading(loaded);
    while (!loading.finished())
        steps.push_back(loading.next());
    return steps;
}

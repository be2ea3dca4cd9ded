// app/batch/OccurrencesCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "app/batch/WellArgument.h"
#include "app/import/TaxonName.h"
#include "store/Value.h"
#include "taxonomy/TaxonList.h"
#include "util/TextUtil.h"
#include "well/Sample.h"

#include <iostream>
#include <set>

namespace {

using enum TextTable::Align;

struct Values {
    std::string well;
    std::string discipline;
    std::string analyst; ///< an analyst key; empty: all
    char units = 0;      ///< 0: those of the well
    bool csv = false;
};

std::string countText(long count) { return count == 0 ? "" : std::to_string(count); }

class Listing {
public:
    Listing(Well& well, char disc, char units)
        : disc_(disc)
        , units_(units)
        , table_({{"top" + unitTitle(units), Right}, {"base" + unitTitle(units), Right}, {"type"},
              {"analyst"}, {"taxon"}, {"status"}, {"identified"}, {"caved"}, {"marker"}, {"code"},
              {"medium", Right}, {"coarse", Right}, {"fine", Right}, {"preservation"},
              {"comments"}})
    {
        well.CollectTaxa(disc, taxa_);
        for (Taxon* taxon : taxa_)
            names_.emplace(taxon->spec_id(), shownText(composedName(*taxon, true)));
    }

    void add(const Sample& sample, const std::string& analyst)
    {
        for (const Smpdtl* record : sample.details) {
            if (record->disc != disc_)
                continue;
            analysts_.emplace(record->analyst.view());
            if (record->isBy(analyst))
                for (const Fssabnd* occurrence : record->occurrences)
                    add(sample, *record, *occurrence);
        }
    }

    void write(bool csv) const { csv ? table_.writeCsv(std::cout) : table_.write(std::cout); }

    // None of the discipline's records has it.
    bool isUnknown(const std::string& analyst) const
    {
        return !analyst.empty() && !analysts_.contains(analyst);
    }
    std::string analysts() const
    {
        std::string list;
        for (const std::string& analyst : analysts_)
            list += (list.empty() ? "" : ", ") + analyst;
        return list;
    }

private:
    void add(const Sample& sample, const Smpdtl& record, const Fssabnd& o)
    {
        const auto name = names_.find(o.spec_id);
        table_.add({depthText(sample.GetTop(units_, 0, 0)), depthText(sample.GetBase(units_, 0, 0)),
            sample.GetType(), std::string(record.analyst.view()),
            name == names_.end() ? "" : name->second, o.isReworked() ? "reworked" : "in place",
            o.ident_type == '?' ? "questionable" : "certain", o.isCaved() ? "caved" : "",
            o.marker ? "marker" : "", shownText(o.abund.view()), countText(o.medium),
            countText(o.coarse), countText(o.fine), shownText(o.preserv.view()),
            shownText(o.comments.view())});
    }

    char disc_;
    char units_;
    TextTable table_;
    TaxonList taxa_;
    std::unordered_map<long, std::string> names_;
    std::set<std::string, std::less<>> analysts_;
};

int listOccurrences(const Values& values)
{
    const auto loaded = loadedWellOf(values.well);
    const char disc = loaded ? disciplineOf(values.discipline) : '\0';
    if (disc == '\0')
        return kFailed;
    Well& well = loaded->well;
    Listing listing(well, disc, values.units ? values.units : well.units);
    for (const Sample* sample : well.samples)
        listing.add(*sample, values.analyst);
    if (listing.isUnknown(values.analyst))
        return failed("No analysis here is by " + values.analyst
            + ". There are: " + listing.analysts() + '.');
    listing.write(values.csv);
    return kDone;
}

} // namespace

void addOccurrences(CLI::App& app, BatchOptions* options)
{
    const auto values = std::make_shared<Values>();
    CLI::App* occurrences = addCommand(app, options, "occurrences",
        "List the taxa found in the samples of a well", [=] { return listOccurrences(*values); });
    addWell(occurrences, &values->well);
    addDiscipline(occurrences, &values->discipline);
    occurrences
        ->add_option("--analyst", values->analyst,
            "Only by this analyst; a second analysis is named with its number, such as ABC/2")
        ->type_name("ABR");
    addUnits(occurrences, &values->units);
    occurrences->add_flag("--csv", values->csv, "Write comma separated values");
}

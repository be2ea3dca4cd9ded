// app/window/OccurrenceTable.cpp
#include "app/window/OccurrenceTable.h"

#include "taxonomy/Disciplines.h"
#include "well/Sample.h"
#include "well/Well.h"

#include <algorithm>
#include <unordered_map>

namespace {

using Row = OccurrenceTable::Row;
using Examined = OccurrenceTable::Examined;

struct Placed {
    std::uint32_t column;
    Find find;
};

/// The rows, their finds, and the place of each taxon among the columns.
class Gathering {
public:
    Gathering(const FoundTaxa& found, const FindChoice& choice, bool loaded)
        : choice_(choice)
        , loaded_(loaded)
        , used_(found.ranges.size())
    {
        for (std::uint32_t place = 0; place < found.ranges.size(); ++place)
            places_.emplace(found.ranges[place].taxon->spec_id(), place);
    }

    void add(const Sample& sample)
    {
        Row row{&sample, 0, Examined::No};
        std::vector<Placed> finds;
        for (const Smpdtl* record : sample.details)
            if (record->disc == choice_.disc && record->isBy(choice_.analyst))
                add(*record, row, finds);
        if (row.examined == Examined::No && !choice_.allSamples)
            return;
        if (!finds.empty())
            row.examined = Examined::Yes; // whatever another record says
        rows.push_back(row);
        findsOfRows.push_back(std::move(finds));
    }

    /// Leaves the taxa that were found and gives them the columns from 0 on.
    std::vector<const TaxonRange*> settle(const FoundTaxa& found)
    {
        std::vector<const TaxonRange*> columns;
        std::vector<std::uint32_t> columnOf(used_.size());
        for (std::size_t place = 0; place < used_.size(); ++place) {
            columnOf[place] = static_cast<std::uint32_t>(columns.size());
            if (used_[place])
                columns.push_back(&found.ranges[place]);
        }
        for (std::vector<Placed>& finds : findsOfRows) {
            for (Placed& placed : finds)
                placed.column = columnOf[placed.column];
            std::ranges::stable_sort(finds, {}, &Placed::column);
        }
        return columns;
    }

    std::vector<Row> rows;
    std::vector<std::vector<Placed>> findsOfRows;

private:
    void add(const Smpdtl& record, Row& row, std::vector<Placed>& finds)
    {
        if (row.examined != Examined::Yes)
            row.examined = found(record);
        for (const Fssabnd* occurrence : record.occurrences) {
            const auto place = places_.find(occurrence->spec_id);
            if (place == places_.end())
                continue;
            used_[place->second] = true;
            finds.push_back({place->second, {&record, occurrence}});
        }
    }

    // Without finds.
    Examined found(const Smpdtl& record) const
    {
        if (!loaded_)
            return Examined::NotLoaded;
        return record.barren == 'Y' ? Examined::Barren : Examined::Yes;
    }

    const FindChoice& choice_;
    bool loaded_;
    std::vector<bool> used_;
    std::unordered_map<long, std::uint32_t> places_;
};

} // namespace

FoundTaxa::FoundTaxa(Well& well, char disc)
    : ranges(taxonRanges(well, disc, Suspect::Excluded, taxa))
{
}

OccurrenceTable::OccurrenceTable(const Well& well, const FoundTaxa& found, const FindChoice& choice)
{
    const auto number = static_cast<std::size_t>(discIndex(choice.disc));
    Gathering gathered(found, choice, well.occurrencesLoaded[number] != 0);
    for (const Sample* sample : well.samples)
        if (sample->samp_id != 0)
            gathered.add(*sample);
    columns_ = gathered.settle(found);
    rows_ = std::move(gathered.rows);
    first_.reserve(rows_.size() * columns_.size() + 1);
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        auto next = gathered.findsOfRows[row].begin();
        const auto end = gathered.findsOfRows[row].end();
        for (std::uint32_t column = 0; column < columns_.size(); ++column) {
            first_.push_back(static_cast<std::uint32_t>(finds_.size()));
            rows_[row].taxa += next != end && next->column == column ? 1 : 0;
            for (; next != end && next->column == column; ++next)
                finds_.push_back(next->find);
        }
    }
    first_.push_back(static_cast<std::uint32_t>(finds_.size()));
}

std::set<std::string> analystsOf(const Well& well, char disc)
{
    std::set<std::string> analysts;
    for (const Sample* sample : well.samples)
        for (const Smpdtl* record : sample->details)
            if (record->disc == disc)
                analysts.emplace(record->analyst.view());
    return analysts;
}

std::set<char> disciplinesOf(const Well& well)
{
    std::set<char> disciplines;
    for (const Sample* sample : well.samples)
        for (const Smpdtl* record : sample->details)
            disciplines.insert(record->disc);
    return disciplines;
}

// app/import/DetailZones.cpp
#include "app/import/DetailZones.h"

#include "app/import/AnalysisShapes.h"
#include "app/import/Cells.h"
#include "app/import/SchemeCells.h"
#include "interp/IGDTypes.h"
#include "util/FixedText.h"

#include <algorithm>
#include <cstdint>

namespace {

namespace cell = sample_details;

constexpr long kBiozone = 4; // the type that zones of wells have, whatever their discipline
constexpr long kZoneRank = 3;

bool canBeFound(const std::string& name) { return name.find('%') == std::string::npos; }

} // namespace

bool DetailZones::note(CellReader& cells, const Details& details)
{
    const std::string youngest(utf8Prefix(cells.raw(cell::YoungestZone), 80));
    const std::string oldest(utf8Prefix(cells.raw(cell::OldestZone), 80));
    if (!cells.file().has(cell::YoungestZone) || !cells.file().has(cell::OldestZone)
        || !details.sample->depth)
        return true;
    Look look{
        *details.sample->depth, details.sample, {&cells.file(), cells.line()}, nullptr, nullptr};
    if (!youngest.empty() && !oldest.empty() && canBeFound(youngest) && canBeFound(oldest)) {
        NamedEntry* const known = scheme(cells, details);
        if (!known || !all_.terms.load(*known)) {
            error_ = all_.schemes.error() + all_.terms.error();
            return false;
        }
        look.youngest = term(*known, youngest);
        look.oldest = term(*known, oldest);
    }
    const std::string key = std::to_string(reinterpret_cast<std::uintptr_t>(details.sample->well))
        + details.discipline + details.category + '\n' + details.analyst;
    looks_[key].push_back(look);
    return true;
}

// The scheme that the row names, if it is one of biozones; else one of the set and category. Null:
// the database could not be asked.
NamedEntry* DetailZones::scheme(CellReader& cells, const Details& details)
{
    if (!all_.schemes.load())
        return nullptr;
    // Rows are told of once, here, and not again when they are stored.
    std::string name(utf8Prefix(cells.raw(cell::ZoneScheme), 80));
    const bool isNamed = !name.empty();
    NamedEntry* known = isNamed ? all_.schemes.find(name) : nullptr;
    if (isNamed && known && !isDisciplineBiozone(static_cast<int>(known->kind)))
        cells.report().noteOnce(
            cells.header(cell::ZoneScheme), name, "no scheme of biozones; not taken");
    else if (isNamed)
        return known ? known : all_.schemes.add(name, biozoneType(details.discipline));
    const std::string group =
        details.category.empty() ? std::string(1, details.discipline) : details.category;
    const std::string folder = folderOf(cells.file());
    cells.report().noteOnce("", "",
        "runs of samples in the same zones become biozones where both ends are given, in schemes "
        "called "
            + folder + " and the category");
    name = utf8Prefix(folder + ' ' + group, 80);
    known = all_.schemes.find(name);
    return known ? known : all_.schemes.add(name, biozoneType(details.discipline));
}

TermEntry* DetailZones::term(NamedEntry& scheme, const std::string& name)
{
    TermEntry* known = all_.terms.find(scheme, name, kZoneRank);
    return known ? known : all_.terms.add(scheme, name, kZoneRank);
}

void DetailZones::findRuns()
{
    found_ = true;
    for (auto& [key, looks] : looks_)
        addRuns(looks);
}

void DetailZones::addRuns(Looks& looks)
{
    std::ranges::stable_sort(looks, {}, &Look::depth);
    if (!looks.empty() && looks.front().sample->well->type == 'O')
        std::ranges::reverse(looks); // heights
    for (auto first = looks.begin(); first != looks.end();) {
        const auto end = std::find_if(
            first + 1, looks.end(), [&](const Look& look) { return !look.sameZones(*first); });
        if (first->youngest)
            runs_[{first->place.file, first->place.line}] = {&*first, &*(end - 1)};
        first = end;
    }
}

bool DetailZones::ensure(TermEntry& term)
{
    if (all_.schemes.put(*term.scheme) == Outcome::Failed)
        error_ = all_.schemes.error();
    else if (all_.terms.ensure(term) == Outcome::Failed)
        error_ = all_.terms.error();
    return error_.empty();
}

Outcome DetailZones::store(const RowPlace& place)
{
    if (!found_)
        findRuns();
    const auto found = runs_.find({place.file, place.line});
    if (found == runs_.end())
        return Outcome::Same;
    const auto& [first, last] = found->second;
    TermEntry& youngest = *first->youngest;
    TermEntry& oldest = *first->oldest;
    if (!ensure(youngest) || !ensure(oldest))
        return Outcome::Failed;
    ZoneRecord record{first->sample->well->id, kBiozone, youngest.hier, youngest.scheme->id,
        first->sample->databaseId, last->sample->databaseId, youngest.id, youngest.name, 0, {}};
    if (&oldest != &youngest) {
        record.lowerId = oldest.id;
        record.lowerName = oldest.name;
    }
    const Outcome outcome = all_.zones.put(record);
    if (outcome == Outcome::Failed)
        error_ = all_.zones.error();
    return outcome;
}

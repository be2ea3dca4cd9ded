// interp/igd_sch.cpp
#include "interp/igd_sch.h"

#include "db/Literals.h"
#include "dict/FirstRow.h"
#include "interp/LocaleDate.h"
#include "interp/NameOrder.h"
#include "interp/PlaceIndex.h"
#include "interp/RunAndCommit.h"
#include "interp/TermOrder.h"
#include "taxonomy/TextArgument.h"

#include <algorithm>

namespace {

std::string whereScheme(long sch_id) { return " WHERE sch_id=" + sql::integer(sch_id); }

/// The key of a stored scheme of that name; 0 when there is none.
long storedScheme(const FixedText<80>& name)
{
    long sch_id = 0;
    takeFirstRow(
        "SELECT sch_id FROM " + sql::table("IGD_SCH") + " WHERE name=" + sql::quote(name.view()),
        Fatal::Yes, [&sch_id](const Cursor& row) { sch_id = row.integer(1); });
    return sch_id;
}

bool deleteScheme(const char* table, long sch_id, const char* failure)
{
    return runAndCommit(
        "DELETE FROM " + sql::table(table) + whereScheme(sch_id), failure, FailureText::Alone);
}

} // namespace

/// Where terms go, kept while they are loaded.
struct igd_sch::Places {
    std::array<PlaceIndex<LevelOrder>, kLevels> levels;
    PlaceIndex<AllTermsOrder> terms;
    PlaceIndex<NameOrder<igdDict>> names;
};

igd_sch::igd_sch(int igdType)
    : igd_type(igdType)
    , created(Date::Today())
{
}

igd_sch::igd_sch(long id, int withTerms) { load(id, withTerms); }

igd_sch::igd_sch(const char* schemeName, int igdType, int withTerms)
    : name(schemeName)
    , igd_type(igdType)
    , created(Date::Today())
{
    if (const long id = storedScheme(name))
        load(id, withTerms);
}

igd_sch::~igd_sch() { clearTerms(); }

void igd_sch::clearTerms()
{
    while (nameOrder.pop()) {}
    for (igdDictList& level : levels)
        while (level.pop()) {}
    while (const igdDict* term = terms.pop())
        delete term;
}

void igd_sch::setCreated(const char* text) { created = dateInLocale(orEmpty(text)); }

void igd_sch::load(long id, int withTerms)
{
    termsLoaded = false;
    clearTerms();
    const FirstRow header = takeFirstRow(
        "SELECT name, igd_type, created, creator FROM " + sql::table("IGD_SCH") + whereScheme(id),
        Fatal::Yes, [this](const Cursor& row) {
            name = row.text(1);
            igd_type = static_cast<int>(row.integer(2));
            created = sql::parsedDate(row.text(3).c_str());
            creator = row.text(4);
        });
    if (header == FirstRow::Failed)
        return;
    sch_id = header == FirstRow::Taken ? id : 0;
    nLevels = 0;
    youngestAge = oldestAge = 0;
    if (!withTerms)
        loadAgeSpan();
    else if (sch_id != 0)
        loadTerms();
}

void igd_sch::loadAgeSpan()
{
    Cursor span(
        "SELECT MIN(u_age), MAX(l_age) FROM " + sql::table("IGD_DICT") + whereScheme(sch_id));
    if (span && span.next()) {
        youngestAge = static_cast<float>(span.number(1));
        oldestAge = static_cast<float>(span.number(2));
    }
}

void igd_sch::loadTerms()
{
    if (termsLoaded)
        return;
    youngestAge = 99999;
    oldestAge = 0;
    const std::string sql = "SELECT igd_id FROM " + sql::table("IGD_DICT") + whereScheme(sch_id)
        + " ORDER BY u_age, hier, l_age";
    Cursor keys(sql);
    if (!keys) {
        reportDbFailure(sql, Fatal::Yes);
        return;
    }
    Places places;
    while (keys.next())
        take(new igdDict(keys.integer(1)), places);
    termsLoaded = true;
}

void igd_sch::take(igdDict* term, Places& places)
{
    term->hier = std::max(term->hier, 1);
    nLevels = std::max(nLevels, term->hier);
    const auto level = static_cast<std::size_t>(term->hier - 1);
    if (level < kLevels)
        places.levels[level].put(levels[level], term);
    places.terms.put(terms, term);
    places.names.put(nameOrder, term);
    youngestAge = std::min(youngestAge, term->u_age);
    oldestAge = std::max(oldestAge, term->l_age);
}

int igd_sch::removeFromDB()
{
    return deleteScheme(
               "IGD_DICT", sch_id, "Failed to remove dictionary terms in igd_sch::removeFromDB()")
        && deleteScheme(
            "IGD_SCH", sch_id, "Failed to remove IGD scheme in igd_sch::removeFromDB()");
}

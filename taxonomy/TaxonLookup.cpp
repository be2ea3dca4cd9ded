// taxonomy/TaxonLookup.cpp
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "taxonomy/Taxon.h"
#include "util/TextUtil.h"

#include <span>

namespace {

constexpr long kNotFound = 0;
constexpr long kNoSpecies = -1;
constexpr long kNoGenus = -2;
constexpr long kFailed = -99;

// What stands beside the genus or the species, in the order in which the dictionary's columns are
// read: q1, q2, q3, the subname, q4.
constexpr int kGenusDetails[] = {
    slot::preGenus, slot::postGenus, slot::preSubgenus, slot::subgenus, slot::postSubgenus};
constexpr int kSpeciesDetails[] = {slot::preSpecies, slot::postSpecies, slot::preSubspecies,
    slot::subspecies, slot::postSubspecies};

/// The conditions for the details that the taxon has.
std::string detailConditions(const Taxon& taxon, std::span<const int> details)
{
    std::string sql;
    for (const int number : details) {
        if (!taxon.has(number))
            continue;
        const std::string column(slotRule(number).column);
        const std::string value = sql::quote(taxon.field(number));
        sql += isQualifier(number) ? " AND lower(" + column + ")=" + value
                                   : " AND upper(" + column + ")=upper(" + value + ")";
    }
    return sql;
}

/// Takes the details of the current row, which start at `column`. False when the row has one that
/// the taxon lacks: that makes it another name.
bool acceptDetails(
    Taxon& taxon, std::span<const int> details, const Cursor& row, short column, bool fetchNames)
{
    bool accepted = true;
    for (const int number : details) {
        const std::string value = row.text(column++);
        if (!taxon.has(number))
            accepted = accepted && value.empty();
        else if (isQualifier(number))
            taxon.setField(number, lowerCased(taxon.field(number)));
        else if (fetchNames)
            taxon.setField(number, value);
    }
    return accepted;
}

long reportFailed(const std::string& sql)
{
    reportDbFailureAs("Error in statement: " + sql, Fatal::No);
    return kFailed;
}

std::string genusQuery(const Taxon& taxon)
{
    std::string sql = "SELECT cat_mnem, gen_id, genus, q1, q2, q3, sub_genus, q4 FROM "
        + sql::table("GENUS") + " WHERE ";
    if (taxon.has(slot::category))
        sql += "cat_mnem=" + sql::quote(taxon.category()) + " AND ";
    sql += " upper(genus)=upper(" + sql::quote(taxon.genus()) + ")";
    return sql + detailConditions(taxon, kGenusDetails);
}

/// Reads one row of the genus query; a rejected row leaves its category behind.
bool takeGenus(Taxon& taxon, const Cursor& row, bool fetchNames)
{
    taxon.setField(slot::category, row.text(1));
    taxon.gen_id = row.integer(2);
    const std::string spelling = row.text(3);
    if (fetchNames)
        taxon.setField(slot::genus, spelling);
    if (acceptDetails(taxon, kGenusDetails, row, 4, fetchNames))
        return true;
    taxon.gen_id = 0;
    return false;
}

void lowerQualifiers(Taxon& taxon, std::span<const int> details)
{
    for (const int number : details) {
        if (isQualifier(number))
            taxon.setField(number, lowerCased(taxon.field(number)));
    }
}

std::string speciesQuery(const Taxon& taxon)
{
    return "SELECT spec_id, species, q1, q2, q3, sub_spec, q4, author, year,alphaCode  FROM "
        + sql::table("SPECIES") + " WHERE upper(species)=upper(" + sql::quote(taxon.species())
        + ") AND gen_id=" + sql::integer(taxon.gen_id) + detailConditions(taxon, kSpeciesDetails);
}

/// What the dictionary knows beyond the name, where the taxon does not say it itself.
void takeRest(Taxon& taxon, const Cursor& row, short column)
{
    const std::string author = row.text(column);
    const auto year = static_cast<short>(row.integer(static_cast<short>(column + 1)));
    const std::string alphaCode = row.text(static_cast<short>(column + 2));
    if (!taxon.has(slot::author))
        taxon.setField(slot::author, author);
    if (taxon.year == 0)
        taxon.year = year;
    if (taxon.alphaCode.empty())
        taxon.alphaCode = alphaCode;
}

bool takeSpecies(Taxon& taxon, const Cursor& row, bool fetchNames)
{
    taxon.setSpecId(row.integer(1));
    const std::string spelling = row.text(2);
    if (fetchNames)
        taxon.setField(slot::species, spelling);
    if (acceptDetails(taxon, kSpeciesDetails, row, 3, fetchNames)) {
        takeRest(taxon, row, 8);
        return true;
    }
    taxon.setSpecId(0);
    return false;
}

/// Runs the query and hands its rows to `take` until one is accepted. 1 when one was, 0 when none
/// was, `kFailed` after the report of a failed statement. The cursor is closed either way.
template <typename Take> long firstAccepted(const std::string& sql, Take take)
{
    Cursor row(sql);
    if (!row)
        return reportFailed(sql);
    while (row.next()) {
        if (take(row))
            return 1;
    }
    return kNotFound;
}

/// Reads consecutive columns of the current row into consecutive slots.
void readSlots(Taxon& taxon, const Cursor& row, int first, int last)
{
    for (int number = first; number <= last; ++number)
        taxon.setField(number, row.text(static_cast<short>(number - first + 1)));
}

bool loadSpecies(Taxon& taxon)
{
    const std::string sql =
        "SELECT q1,species,q2,q3,sub_spec,q4,author,year,gen_id,alphaCode  FROM "
        + sql::table("species") + " WHERE spec_id=" + sql::integer(taxon.spec_id());
    return firstAccepted(sql, [&taxon](const Cursor& row) {
        readSlots(taxon, row, slot::preSpecies, slot::author);
        taxon.year = static_cast<short>(row.integer(8));
        taxon.gen_id = row.integer(9);
        taxon.alphaCode = row.text(10);
        return true;
    }) != kFailed;
}

void loadGenus(Taxon& taxon)
{
    const std::string sql = "SELECT cat_mnem, q1,genus,q2,q3,sub_genus,q4 FROM "
        + sql::table("genus") + " WHERE gen_id=" + sql::integer(taxon.gen_id);
    firstAccepted(sql, [&taxon](const Cursor& row) {
        readSlots(taxon, row, slot::category, slot::postSubgenus);
        return true;
    });
}

} // namespace

long Taxon::getAddGenus(int add, int fetchNames)
{
    if (gen_id != 0)
        return gen_id;
    if (!has(slot::genus))
        return kNoGenus;
    const long found = firstAccepted(genusQuery(*this),
        [&](const Cursor& row) { return takeGenus(*this, row, fetchNames != 0); });
    if (found != kNotFound)
        return found == kFailed ? kFailed : gen_id;
    if (add && has(slot::category))
        reportError("Attempt to add genus in getAddGenus");
    return kNotFound;
}

long Taxon::getAddSpecies(int add, int fetchNames)
{
    if (spec_id_ != 0)
        return spec_id_;
    if (!has(slot::species))
        return kNoSpecies;
    if (gen_id == 0)
        return kNoGenus;
    lowerQualifiers(*this, kSpeciesDetails);
    const long found = firstAccepted(speciesQuery(*this),
        [&](const Cursor& row) { return takeSpecies(*this, row, fetchNames != 0); });
    if (found != kNotFound)
        return found == kFailed ? kFailed : spec_id_;
    if (add)
        reportError("Attmpt to add species in getAddSpecies");
    return kNotFound;
}

long Taxon::lookupIds() { return getAddGenus(0, 1) > 0 && getAddSpecies(0, 1) > 0 ? spec_id_ : 0; }

void Taxon::loadById()
{
    if (spec_id_ != 0 && loadSpecies(*this))
        loadGenus(*this);
}

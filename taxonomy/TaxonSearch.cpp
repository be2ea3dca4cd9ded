// taxonomy/TaxonSearch.cpp
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "taxonomy/Identifiers.h"
#include "taxonomy/Taxon.h"
#include "taxonomy/TaxonList.h"
#include "util/TextUtil.h"

namespace {

/// The Oracle server takes the last table as the one to start from.
std::string searchedTables()
{
    constexpr int kOracle = 2;
    return dbKind == kOracle ? sql::table("SPECIES") + " s," + sql::table("GENUS") + " g "
                             : sql::table("GENUS") + " g, " + sql::table("SPECIES") + " s ";
}

/// A pattern that matches everything is no condition; it would shut out rows without a value.
std::string likeCondition(const char* column, char* pattern)
{
    if (!pattern || !isNarrowingFilter(pattern))
        return {};
    return std::string(" AND  upper(") + column + ") like upper(" + sql::quote(pattern) + ")";
}

/// Categories are kept in upper case, so the pattern is brought to it once.
std::string categoryCondition(char* pattern)
{
    if (!pattern || !isNarrowingFilter(pattern))
        return {};
    upperCase(pattern);
    return " AND  upper(g.cat_mnem) like " + sql::quote(pattern);
}

struct CodeRange {
    long from, to;
    bool isSet() const { return from != 0; }
};

/// A bound that is not given is the other one.
CodeRange codeRange(long from, long to) { return {from != 0 ? from : to, to != 0 ? to : from}; }

std::string codeCondition(const CodeRange& codes)
{
    if (!codes.isSet())
        return {};
    return " AND s.spec_id = p.spec_id AND p.sipm_code >=" + sql::integer(codes.from)
        + " AND p.sipm_code <=" + sql::integer(codes.to);
}

enum class Synonym { No, Yes, Unknown };

/// Whether a species is a synonym in any scheme. `Unknown` after the report of a failed statement.
Synonym synonymState(long spec_id)
{
    const std::string sql =
        "SELECT pref FROM " + sql::table("SYNONYMY") + " WHERE spec_id=" + sql::integer(spec_id);
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return Synonym::Unknown;
    }
    return row.next() ? Synonym::Yes : Synonym::No;
}

void gather(TaxonList& found, const std::vector<long>& ids, bool includeSynonyms)
{
    for (const long spec_id : ids) {
        const Synonym state = includeSynonyms ? Synonym::No : synonymState(spec_id);
        if (state == Synonym::Unknown)
            return;
        if (state == Synonym::No)
            found.insertSorted(new Taxon(spec_id), 0);
    }
}

} // namespace

TaxonList* Taxon::searchTaxa(char* category, char* genus, char* subgenus, char* species,
    char* subspecies, int includeSynonyms, long codeFrom, long codeTo)
{
    auto found = std::make_unique<TaxonList>();
    const CodeRange codes = codeRange(codeFrom, codeTo);
    std::string sql = "SELECT s.spec_id FROM " + searchedTables();
    if (codes.isSet())
        sql += "," + sql::table("SIPMCODE") + " p ";
    sql += "WHERE g.gen_id = s.gen_id " + categoryCondition(category)
        + likeCondition("g.genus", genus) + likeCondition("g.sub_genus", subgenus)
        + likeCondition("s.species", species) + likeCondition("s.sub_spec", subspecies)
        + codeCondition(codes);
    Cursor row(sql);
    if (row)
        gather(*found, takeIdentifiers(row), includeSynonyms != 0);
    else
        reportDbFailureAs("Error in: " + sql, Fatal::Yes);
    found->reset();
    return found.release();
}

// interp/LithDictionary.cpp
#include "interp/LithDictionary.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/SchemaInspection.h"

namespace {

/// Dictionaries from before there were accessories say Y for a qualifier.
char termKind(char cmp) { return cmp == 'Y' ? LithDicTerm::kQualifier : cmp; }

} // namespace

LithDictionary::LithDictionary()
{
    const std::string sql = "SELECT descr, abr, cmp, lith_id FROM " + sql::table("LITHDESC")
        + " WHERE lith_id > 999 ORDER BY descr";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::Yes);
        return;
    }
    while (rows.next()) {
        const std::string descr = rows.text(1), abr = rows.text(2);
        const char kind = termKind(rows.letter(3));
        terms.push(new LithDicTerm(rows.integer(4), kind, descr.c_str(), abr.c_str()));
    }
}

LithDicTerm* LithDictionary::findTerm(long lith_id) const
{
    if (revision_ != terms.revision()) {
        firstOf_.clear();
        for (LithDicTerm* term : terms)
            firstOf_.try_emplace(term->lith_id, term);
        revision_ = terms.revision();
    }
    const auto found = firstOf_.find(lith_id);
    return found == firstOf_.end() ? nullptr : found->second;
}

void LithDictionary::setScheme(long id)
{
    if (!nameScheme(id))
        return;
    offerNoMainLithology();
    offerMembers(id);
}

bool LithDictionary::nameScheme(long id)
{
    const std::string sql =
        "SELECT descr FROM " + sql::table("ZRLTHSCH") + " WHERE lthsch_id=" + sql::integer(id);
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return false;
    }
    lthsch_id = 0;
    schemeName = "no active scheme";
    while (rows.next()) {
        lthsch_id = id;
        schemeName = rows.text(1);
    }
    return true;
}

void LithDictionary::offerNoMainLithology()
{
    for (LithDicTerm* term : terms) {
        if (term->kind == LithDicTerm::kMainLithology)
            term->setActive(0);
    }
}

void LithDictionary::offerMembers(long id)
{
    const bool sorted = columnExists("ZRLTHMBR", "SORT_ORDER");
    const std::string sql = std::string("SELECT lith_id ") + (sorted ? ",sort_order" : "")
        + " FROM " + sql::table("ZRLTHMBR") + " WHERE lthsch_id=" + sql::integer(id) + " ORDER BY "
        + (sorted ? "sort_order," : "") + "lith_id";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    while (rows.next()) {
        if (LithDicTerm* term = findTerm(rows.integer(1)))
            term->setActive(1);
    }
}

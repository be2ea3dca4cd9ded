// taxonomy/TaxonList.cpp
#include "taxonomy/TaxonList.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "taxonomy/Identifiers.h"
#include "taxonomy/TaxonOrder.h"

#include <unordered_set>

namespace {

GList::ListNode* lastNode(const TaxonList& list)
{
    TaxonList::Walk walk(list, GList::Order::BackToFront);
    walk.next();
    return walk.node();
}

std::vector<taxonOrder::Entry> entriesOf(const TaxonList& list, int usePreferred)
{
    std::vector<taxonOrder::Entry> entries;
    for (Taxon* taxon : list) {
        Taxon* preferred = usePreferred >= 0 ? taxon->preferred() : nullptr;
        entries.push_back({taxon, preferred ? preferred : taxon, 0});
    }
    return entries;
}

} // namespace

TaxonList::~TaxonList()
{
    for (Taxon* taxon : std::unordered_set<Taxon*>(begin(), end()))
        delete taxon;
}

void TaxonList::push(Taxon* taxon)
{
    const bool follows = index_.isCurrent(*this);
    TypedList::push(taxon);
    if (follows)
        index_.follow(*this, taxonOrder::unset, index_.size(), lastNode(*this));
}

int TaxonList::insertSorted(Taxon* taxon, int rejectDuplicate)
{
    if (sortMode == taxonOrder::unset)
        sortMode = taxonOrder::byGenus;
    if (rejectDuplicate && contains(taxon->spec_id()))
        return -1;
    const std::size_t place = index_.placeFor(*this, sortMode, *taxon);
    GList::ListNode* behind = index_.nodeAt(place);
    insertAt(behind, taxon);
    index_.follow(*this, sortMode, place, behind ? behind->older : lastNode(*this));
    return static_cast<int>(behind ? place + 1 : place);
}

void TaxonList::sortBy(int mode, int usePreferred)
{
    constexpr int kCodeSystem = 1;
    sortMode = mode;
    std::vector<taxonOrder::Entry> entries = entriesOf(*this, usePreferred);
    if (mode == taxonOrder::byCode && entries.size() > 1) {
        for (taxonOrder::Entry& entry : entries)
            entry.code = entry.shown->sipmCode(kCodeSystem);
    }
    const bool settled = taxonOrder::settle(
        entries, [mode](const auto& a, const auto& b) { return isMisordered(mode, a, b); });
    if (!settled)
        reportError("100000 iterations");
    while (!isEmpty())
        pop();
    for (const taxonOrder::Entry& entry : entries)
        push(entry.listed); // the first one takes the cursor
}

void TaxonList::addWellTaxa(long well_id, char disc)
{
    const auto ids = identifiers("SELECT DISTINCT spec_id FROM " + sql::table("TAXONOCC")
        + " WHERE well_id =" + sql::integer(well_id) + " AND disc_id=" + sql::quoteChar(disc));
    if (!ids)
        return;
    for (const long spec_id : *ids) {
        if (!contains(spec_id))
            insertSorted(new Taxon(spec_id), 0);
    }
}

int TaxonList::contains(long spec_id) { return find(spec_id) != nullptr; }

Taxon* TaxonList::find(long spec_id) { return index_.find(*this, spec_id); }

const char* TaxonList::nameOf(long spec_id, int usePreferred, int showAuthor, int abbreviateGenus)
{
    Taxon* taxon = find(spec_id);
    if (!taxon)
        return "(not found)";
    if (usePreferred >= 0 && taxon->preferred())
        taxon = taxon->preferred();
    return taxon->displayName(showAuthor, 0, abbreviateGenus, 1);
}

const char* TaxonList::categoryOf(long spec_id)
{
    static ResultText result;
    const Taxon* taxon = find(spec_id);
    return result.keep(taxon ? taxon->category() : "???");
}

void TaxonList::loadPreferred(long sch_id, int force)
{
    reload(preferredScheme, sch_id, force, &Taxon::clearPreferred, &Taxon::loadPreferred);
}

void TaxonList::loadSecondPreferred(long sch_id, int force)
{
    reload(secondPreferredScheme, sch_id, force, &Taxon::clearSecondPreferred,
        &Taxon::loadSecondPreferred);
}

void TaxonList::reload(
    long& scheme, long sch_id, int force, void (Taxon::*clear)(), void (Taxon::*load)(long))
{
    constexpr long kAnyScheme = 1;
    const bool loaded = scheme != 0 && (sch_id == 0 || sch_id == scheme);
    if (loaded && !force)
        return;
    for (Taxon* taxon : *this) {
        (taxon->*clear)();
        (taxon->*load)(sch_id);
    }
    if (!isEmpty())
        scheme = sch_id != 0 ? sch_id : kAnyScheme;
}

const char* TaxonList::synonymySchemeName(long sch_id)
{
    static FixedText<49> name;
    const std::string sql =
        "SELECT name FROM " + sql::table("SYNSCH") + " WHERE sch_id=" + sql::integer(sch_id);
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return name;
    }
    name = row.next() ? row.text(1) : "";
    return name;
}

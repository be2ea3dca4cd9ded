// taxonomy/TaxonSynonymy.cpp
#include "db/Literals.h"
#include "taxonomy/Identifiers.h"
#include "taxonomy/Taxon.h"
#include "taxonomy/TaxonList.h"

namespace {

std::string inScheme(long sch_id)
{
    return sch_id != 0 ? " AND sch_id=" + sql::integer(sch_id) : "";
}

std::string synonymsQuery(long pref, long sch_id)
{
    return "SELECT spec_id FROM " + sql::table("SYNONYMY") + " WHERE pref=" + sql::integer(pref)
        + inScheme(sch_id);
}

/// The preferred taxon of a species; null when it has none.
std::shared_ptr<Taxon> preferredOf(long spec_id, long sch_id)
{
    const long pref = firstIdentifier("SELECT pref FROM " + sql::table("SYNONYMY")
        + " WHERE spec_id=" + sql::integer(spec_id) + inScheme(sch_id));
    return pref != 0 ? std::make_shared<Taxon>(pref) : nullptr;
}

} // namespace

void Taxon::loadPreferred(long sch_id)
{
    if (spec_id_ != 0 && !preferred_)
        preferred_ = preferredOf(spec_id_, sch_id);
}

void Taxon::loadSecondPreferred(long sch_id)
{
    if (spec_id_ != 0 && !secondPreferred_)
        secondPreferred_ = preferredOf(preferred_ ? preferred_->spec_id() : spec_id_, sch_id);
}

long Taxon::firstSynonym(long sch_id) const
{
    return spec_id_ != 0 ? firstIdentifier(synonymsQuery(spec_id_, sch_id)) : 0;
}

TaxonList* Taxon::synonymsOf(long sch_id, long pref)
{
    if (pref == 0)
        return nullptr;
    const auto ids = identifiers(synonymsQuery(pref, sch_id));
    if (!ids || ids->empty())
        return nullptr;
    auto synonyms = std::make_unique<TaxonList>();
    for (const long id : *ids)
        synonyms->push(new Taxon(id));
    return synonyms.release();
}

// app/import/Dictionary.cpp
#include "app/import/Dictionary.h"

bool Dictionary::load()
{
    if (!categories.load())
        error_ = categories.error();
    else if (!taxa.load())
        error_ = taxa.error();
    return error_.empty();
}

Outcome Dictionary::put(DictionaryTaxon& taxon, const TaxonDetails& details)
{
    Category* category = categories.find(taxon.taxon.category());
    if (category && !category->isStored && categories.put(*category, "", 0) == Outcome::Failed) {
        error_ = categories.error();
        return Outcome::Failed;
    }
    const Outcome outcome = taxa.put(taxon, details);
    if (outcome == Outcome::Failed)
        error_ = taxa.error();
    return outcome;
}

// app/import/Dictionary.h
#pragma once

#include "app/import/Numbered.h"
#include "store/CategoryWriter.h"
#include "store/SynonymyWriter.h"
#include "store/TaxonWriter.h"

#include <string>

/// The names of the database and those that the rows of an import bring, for all loaders that meet
/// taxa.
class Dictionary {
public:
    explicit Dictionary(Writing writing)
        : categories(writing)
        , taxa(writing)
        , synonymy(writing)
    {
    }

    CategoryWriter categories;
    TaxonWriter taxa;
    SynonymyWriter synonymy;
    Numbered<DictionaryTaxon> numbered;

    /// Reads categories and taxa unless that is done. False: `error`.
    bool load();
    const std::string& error() const { return error_; }

    /// Stores an announced taxon, its category first, or what the details change.
    Outcome put(DictionaryTaxon& taxon, const TaxonDetails& details);

private:
    std::string error_;
};

// store/TaxonWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"
#include "taxonomy/Taxon.h"

#include <deque>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

/// A name of the dictionary, from the database or announced. Texts are as people read them; the
/// identifiers are 0 until it is stored.
struct DictionaryTaxon {
    Taxon taxon;
    bool isStored() const { return taxon.spec_id() != 0; }
};

/// What is stored with a name, beside its slots. What is not given is left as it is.
struct TaxonDetails {
    std::string author;
    short year = 0;
    std::string alphaCode;
    std::optional<long> code;       ///< in the code system that names are shown and sorted with
    std::vector<std::string> notes; ///< each added to the notes unless it stands there already
};

/// Brings names in. The whole dictionary is read once and looked up in memory: a file of names
/// would otherwise ask the database several times a row. Names are the same when their slots are,
/// letter case apart, as for the dictionary's own lookups; unlike these a name without species is
/// found too, and authors tell homonyms apart.
class TaxonWriter {
public:
    explicit TaxonWriter(Writing writing);

    /// Reads the dictionary unless that is done. False: `error`; nothing else works then.
    bool load();

    /// The taxon of that category and name: the one of the same author or, like the name, of none;
    /// else, for a name without author, the oldest, and for one with an author the one without.
    /// Null without one. Pointers stay good as long as the writer.
    DictionaryTaxon* find(const Taxon& name) const;
    /// All taxa of that name, whatever their category and author, the oldest first.
    std::vector<DictionaryTaxon*> named(const Taxon& name) const;
    /// The category that has most names of that genus; none when the genus is not there.
    std::optional<std::string> categoryOfGenus(const Taxon& name) const;

    /// Announces a name that is not there: it is found from now on and stored by `put`. A genus
    /// that is there keeps its spelling.
    DictionaryTaxon& add(const Taxon& name);
    /// Stores an announced name, or what the details change of a stored one.
    Outcome put(DictionaryTaxon& entry, const TaxonDetails& details);

    const std::string& error() const { return error_; }

private:
    bool loadGenera();
    bool loadSpecies();
    bool failed(const std::string& error);
    bool isWriting() const { return writing_ == Writing::Write; }

    DictionaryTaxon& enter(const Taxon& taxon);
    bool insert(DictionaryTaxon& entry);
    bool ensureGenus(Taxon& taxon);
    Outcome update(DictionaryTaxon& entry, const TaxonDetails& details);
    Outcome putCode(long specId, const TaxonDetails& details);
    Outcome putNotes(long specId, const TaxonDetails& details);
    Outcome checked(const TableWriter& table, Outcome outcome);

    Writing writing_;
    TableWriter genera_;
    TableWriter species_;
    TableWriter codes_;
    TableWriter notes_;
    IdAllocator genusIds_;
    IdAllocator speciesIds_;
    std::deque<DictionaryTaxon> taxa_;
    std::unordered_map<std::string, std::vector<DictionaryTaxon*>> byName_;
    std::unordered_map<std::string, Taxon> generaByName_; // by category and genus slots
    std::unordered_map<long, Taxon> genusRows_;           // while loading
    bool loaded_ = false;
    std::string error_;
};

// app/import/SynonymyLoader.cpp
#include "app/import/DictionaryCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/TaxonName.h"
#include "app/import/TaxonReport.h"
#include "app/import/Words.h"

#include "util/FixedText.h"

#include <algorithm>
#include <map>

namespace {

constexpr std::size_t kLongestScheme = 49; // as much as is shown of it

/// One preferred name for a recorded one, as it was decided when the row was checked.
struct Pair {
    DictionaryTaxon* name = nullptr;
    DictionaryTaxon* preferred = nullptr;
    std::vector<std::string> adjustments;
    std::string refusal;
};

/// The entries of a name, whatever their category.
struct Candidates {
    Taxon taxon;
    std::vector<DictionaryTaxon*> entries; ///< the oldest first

    DictionaryTaxon* in(const std::string& category, bool orAnywhere) const
    {
        for (DictionaryTaxon* entry : entries)
            if (category == entry->taxon.category())
                return entry;
        return orAnywhere && !entries.empty() ? entries.front() : nullptr;
    }
};

// A name without what only tells its pieces apart: "Planogypsina <sp. 1>", "ruber (pink)".
std::string plainName(std::string text)
{
    std::erase_if(
        text, [](char c) { return std::string_view(" ()<>").find(c) != std::string::npos; });
    return text;
}

bool isSpelled(const Taxon& taxon, const std::string& written)
{
    const std::string wanted = withoutBlanks(written);
    return withoutBlanks(composedName(taxon)) == wanted
        || withoutBlanks(composedName(taxon, true)) == wanted;
}

std::string shown(const DictionaryTaxon& entry)
{
    const std::string category = entry.taxon.category();
    return '"' + composedName(entry.taxon) + '"' + (category.empty() ? "" : " of " + category);
}

/// The scheme that a file is when no column names one: what its name says beside the word
/// synonymy, else its folder.
std::string schemeOfFile(const InputFile& file)
{
    const std::string stem = file.path.stem().string();
    const std::string word(file.shape->name);
    std::string scheme = std::filesystem::path(file.set).filename().string();
    if (!file.namedExactly && stem.size() > word.size())
        scheme = stem.find(word) == 0 ? stem.substr(word.size() + 1)
                                      : stem.substr(0, stem.size() - word.size() - 1);
    return std::string(utf8Prefix(scheme, kLongestScheme));
}

class SynonymyLoader : public RowLoader {
public:
    /// With a scheme of its own, or with schemes by files.
    SynonymyLoader(ImportContext& context, std::string scheme)
        : dictionary_(context.dictionary)
        , scheme_(std::move(scheme))
    {
    }

    bool check(CellReader& cells) override
    {
        if (!dictionary_.load()) {
            error_ = dictionary_.error();
            return false;
        }
        readNames(cells);
        readScheme(cells);
        std::string category = readPairCategory(cells);
        if (cells.report().refused())
            return true;
        const RowPlace place{&cells.file(), cells.line()};
        pair_ = &pairs_.of(place, [&] { return decide(cells, category); });
        if (!pair_->refusal.empty())
            cells.refuse(synonymy::Name, pair_->refusal);
        for (const std::string& text : pair_->adjustments)
            cells.adjust(synonymy::Preferred, text);
        if (!cells.report().refused())
            tellReading(cells, name_, reading_);
        return true;
    }

    Outcome store() override
    {
        const auto& [name, preferred, adjustments, refusal] = *pair_;
        TaxonDetails details;
        if (!isSpelled(name->taxon, name_))
            details.notes.push_back(asPublished(name_));
        const Outcome stored = put(*name, details);
        if (stored == Outcome::Failed || name == preferred
            || put(*preferred, {}) == Outcome::Failed)
            return stored == Outcome::Failed || name == preferred ? stored : Outcome::Failed;
        const Outcome outcome = dictionary_.synonymy.put(
            schemeOfRow_, name->taxon.spec_id(), preferred->taxon.spec_id());
        if (outcome == Outcome::Failed)
            error_ = dictionary_.synonymy.error();
        return outcome;
    }

private:
    Outcome put(DictionaryTaxon& entry, TaxonDetails details)
    {
        details.author = entry.taxon.author();
        details.year = entry.taxon.year;
        const Outcome outcome = dictionary_.put(entry, details);
        if (outcome == Outcome::Failed)
            error_ = dictionary_.error();
        return outcome;
    }

    void readNames(CellReader& cells)
    {
        number_ = cells.raw(synonymy::PreferredId);
        if (cells.text(synonymy::Name, &name_) != Cell::Good)
            cells.refuse(synonymy::Name, "has no name");
        if (cells.text(synonymy::Preferred, &preferred_) != Cell::Good && number_.empty())
            cells.refuse(synonymy::Preferred, "has no name to use");
        reading_ = storedName(name_, partsOfName(name_));
    }

    void readScheme(CellReader& cells)
    {
        if (cells.text(synonymy::Scheme, &schemeOfRow_) == Cell::Good)
            return;
        schemeOfRow_ = scheme_.empty() ? schemeOfFile(cells.file()) : scheme_;
        cells.report().noteOnce("", "", "names to use go into the scheme " + schemeOfRow_);
    }

    std::string readPairCategory(CellReader& cells)
    {
        const Category* category =
            readCategory(cells, synonymy::Category, false, 0, dictionary_.categories);
        return category ? category->mnemonic : "";
    }

    Pair decide(const CellReader& cells, const std::string& category)
    {
        Pair pair;
        Candidates names{reading_.taxon, dictionary_.taxa.named(reading_.taxon)};
        Candidates uses{storedName(preferred_, partsOfName(preferred_)).taxon, {}};
        uses.entries = dictionary_.taxa.named(uses.taxon);
        const DictionaryTaxon* numbered = takeNumber(cells, names, uses, pair);
        if (!numbered && preferred_.empty()) {
            pair.refusal = "has no name to use, and no taxon of this set has the number " + number_;
            return pair;
        }
        const std::string wanted = numbered ? numbered->taxon.category()
            : category.empty()              ? categoryOf(names, uses, pair)
                                            : category;
        // Only what the row does not tell is looked for elsewhere.
        const bool anywhere = category.empty() && !numbered;
        pair.name = names.in(wanted, anywhere);
        if (!pair.name) {
            pair.name = add(names.taxon, wanted);
            // It may be the name to use as well.
            if (!numbered)
                uses.entries = dictionary_.taxa.named(uses.taxon);
        }
        pair.preferred = uses.in(wanted, anywhere);
        if (!pair.preferred) {
            pair.preferred = add(uses.taxon, wanted);
            pair.adjustments.push_back(
                "was not in the dictionary; added as " + shown(*pair.preferred));
        }
        judge(cells, pair);
        return pair;
    }

    // The taxon whose number the row gives: the name to use, unless it is the recorded name and the
    // row has another one to use. Null without a number that is known.
    DictionaryTaxon* takeNumber(
        const CellReader& cells, Candidates& names, Candidates& uses, Pair& pair) const
    {
        DictionaryTaxon* numbered = dictionary_.numbered.find(cells.file().set, number_);
        if (!numbered)
            return nullptr;
        const bool called = preferred_.empty() || isCalled(*numbered);
        if (!called && std::ranges::find(names.entries, numbered) != names.entries.end()) {
            names.entries = {numbered};
            return numbered;
        }
        uses.entries = {numbered};
        if (!called)
            pair.adjustments.push_back(
                "number " + number_ + " is " + shown(*numbered) + ", which is taken");
        return numbered;
    }

    bool isCalled(const DictionaryTaxon& entry) const
    {
        const std::string name = plainName(composedName(entry.taxon));
        return plainName(preferred_) == name
            || plainName(composedName(readName(preferred_).taxon)) == name;
    }

    // The category that both names share, else that of the name to use or of its genus.
    std::string categoryOf(const Candidates& names, const Candidates& uses, Pair& pair) const
    {
        for (const DictionaryTaxon* use : uses.entries)
            for (const DictionaryTaxon* name : names.entries)
                if (std::string_view(use->taxon.category()) == name->taxon.category())
                    return use->taxon.category();
        const auto& some = uses.entries.empty() ? names.entries : uses.entries;
        if (!some.empty())
            return some.front()->taxon.category();
        for (const Taxon* taxon : {&uses.taxon, &names.taxon})
            if (const auto category = dictionary_.taxa.categoryOfGenus(*taxon))
                return *category;
        pair.adjustments.emplace_back(
            "neither name nor genus is in the dictionary; stored without a category");
        return {};
    }

    DictionaryTaxon* add(Taxon taxon, const std::string& category)
    {
        taxon.setField(slot::category, std::string_view(category));
        return &dictionary_.taxa.add(taxon);
    }

    // Under a scheme a name has one name to use.
    void judge(const CellReader& cells, Pair& pair)
    {
        if (pair.name == pair.preferred) {
            pair.adjustments.emplace_back(
                "is the recorded name itself; as recorded it is kept in the notes");
            return;
        }
        const RowPlace place{&cells.file(), cells.line()};
        const Use use{place, pair.preferred};
        const Use& first = uses_.try_emplace({schemeOfRow_, pair.name}, use).first->second;
        if (first.preferred != pair.preferred)
            pair.refusal =
                "another name to use is in " + first.place.seenFrom(cells.file()) + " already";
    }

    struct Use {
        RowPlace place;
        const DictionaryTaxon* preferred;
    };

    Dictionary& dictionary_;
    const std::string scheme_;
    Decisions<Pair> pairs_;
    std::map<std::pair<std::string, const DictionaryTaxon*>, Use> uses_;

    // The row at hand.
    std::string name_;
    std::string preferred_;
    std::string number_;
    std::string schemeOfRow_;
    NameReading reading_;
    const Pair* pair_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeSynonymyLoader(ImportContext& context)
{
    return std::make_unique<SynonymyLoader>(context, "");
}

std::unique_ptr<RowLoader> makeNameVariantsLoader(ImportContext& context)
{
    return std::make_unique<SynonymyLoader>(context, "Name variants");
}

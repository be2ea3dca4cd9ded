// app/import/SynonymyLoader.cpp
#include "app/import/DictionaryCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/TaxonName.h"
#include "app/import/TaxonReport.h"

#include "util/FixedText.h"

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
        TaxonDetails details;
        if (!reading_.exact)
            details.notes.push_back(asPublished(name_));
        if (!put(*pair_->preferred, {}) || !put(*pair_->name, details))
            return Outcome::Failed;
        if (pair_->name == pair_->preferred)
            return Outcome::Same;
        const Outcome outcome = dictionary_.synonymy.put(
            schemeOfRow_, pair_->name->taxon.spec_id(), pair_->preferred->taxon.spec_id());
        if (outcome == Outcome::Failed)
            error_ = dictionary_.synonymy.error();
        return outcome;
    }

private:
    bool put(DictionaryTaxon& entry, TaxonDetails details)
    {
        details.author = entry.taxon.author();
        details.year = entry.taxon.year;
        const bool good = dictionary_.put(entry, details) != Outcome::Failed;
        if (!good)
            error_ = dictionary_.error();
        return good;
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
        const Taxon preferred = storedName(preferred_, partsOfName(preferred_)).taxon;
        Candidates names{reading_.taxon, dictionary_.taxa.named(reading_.taxon)};
        Candidates uses{preferred, dictionary_.taxa.named(preferred)};
        if (DictionaryTaxon* numbered = preferredByNumber(cells, pair))
            uses.entries = {numbered};
        const std::string wanted = category.empty() ? categoryOf(names, uses, pair) : category;
        // Only what the row does not tell is looked for elsewhere.
        const bool anywhere = category.empty() && !isNumbered(cells);
        pair.name = names.in(wanted, anywhere);
        if (!pair.name)
            pair.name = add(names.taxon, wanted);
        pair.preferred = isNumbered(cells) ? uses.entries.front() : uses.in(wanted, anywhere);
        if (!pair.preferred) {
            pair.preferred = add(preferred, wanted);
            pair.adjustments.push_back(
                "was not in the dictionary; added as " + shown(*pair.preferred));
        }
        judge(cells, pair);
        return pair;
    }

    bool isNumbered(const CellReader& cells) const
    {
        return dictionary_.numbered.find(cells.file().set, number_) != nullptr;
    }

    // The name to use by its number in the set, which a row may give beside its text.
    DictionaryTaxon* preferredByNumber(const CellReader& cells, Pair& pair) const
    {
        DictionaryTaxon* known = dictionary_.numbered.find(cells.file().set, number_);
        if (known && !preferred_.empty() && !isCalled(*known))
            pair.adjustments.push_back(
                "number " + number_ + " is " + shown(*known) + ", which is taken");
        return known;
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
        for (const Taxon* taxon : {&uses.taxon, &names.taxon}) {
            const auto categories = dictionary_.taxa.categoriesOfGenus(*taxon);
            if (!categories.empty())
                return categories.front();
        }
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
            pair.adjustments.emplace_back("is the recorded name itself; nothing to store");
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

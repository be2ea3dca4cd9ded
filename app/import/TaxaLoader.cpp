// app/import/TaxaLoader.cpp
#include "app/import/DictionaryCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/TaxonName.h"
#include "app/import/TaxonReport.h"

#include <limits>

namespace {

struct Piece {
    int column;
    std::string NameParts::*part;
};
constexpr Piece kPieces[] = {{taxa::GenusMark, &NameParts::genusMark},
    {taxa::Genus, &NameParts::genus}, {taxa::Subgenus, &NameParts::subgenus},
    {taxa::SpeciesMark, &NameParts::speciesMark}, {taxa::Species, &NameParts::species},
    {taxa::SubspeciesMark, &NameParts::subspeciesMark}, {taxa::Subspecies, &NameParts::subspecies},
    {taxa::Rest, &NameParts::rest}};

class TaxaLoader : public RowLoader {
public:
    explicit TaxaLoader(ImportContext& context)
        : context_(context)
        , dictionary_(context.dictionary)
    {
    }

    std::string columnProblem(const InputFile& file) const override
    {
        const bool named =
            file.has(taxa::Name) || file.has(taxa::Genus) || file.has(taxa::AboveGenus);
        return named ? "" : "has no column name, genus or above_genus";
    }

    bool check(CellReader& cells) override
    {
        if (!dictionary_.load()) {
            error_ = dictionary_.error();
            return false;
        }
        details_ = TaxonDetails();
        const std::optional<NameReading> name = readTaxonName(cells);
        readDetails(cells);
        const std::string category = readTaxonCategory(cells);
        FileId* number = nullptr;
        FileIds& numbers = context_.ids("taxa", cells.file().set);
        if (cells.report().refused() || !takeFileNumber(cells, taxa::Id, numbers, &number))
            return true;
        number_ = number;
        Taxon taxon = name->taxon;
        taxon.setField(slot::category, std::string_view(category));
        find(cells, taxon);
        if (!cells.report().refused())
            tell(cells, *name, taxon);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = dictionary_.put(*entry_, details_);
        if (outcome == Outcome::Failed)
            error_ = dictionary_.error();
        else if (number_)
            number_->databaseId = entry_->taxon.spec_id();
        return outcome;
    }

private:
    // The name as it is to be stored; none when the row has none, which refuses it.
    std::optional<NameReading> readTaxonName(CellReader& cells)
    {
        NameParts parts;
        std::string aboveGenus;
        cells.text(taxa::Name, &written_);
        cells.text(taxa::AboveGenus, &aboveGenus);
        for (const auto& [column, part] : kPieces)
            cells.text(column, &(parts.*part));
        if (parts.genus.empty())
            parts = aboveGenus.empty() ? partsOfName(written_) : partsAboveGenus(aboveGenus);
        if (parts.genus.empty()) {
            cells.report().refuse("", "", "has no name");
            return std::nullopt;
        }
        readAuthor(cells, parts);
        const NameReading name = storedName(written_, parts);
        if (written_.empty())
            written_ = nameOfParts(parts);
        return name;
    }

    void readAuthor(CellReader& cells, NameParts& parts)
    {
        if (cells.text(taxa::Author, &details_.author) == Cell::Good)
            parts.author = details_.author;
        else
            details_.author = parts.author;
        long year = 0;
        if (cells.whole(taxa::Year, &year) == Cell::Good) {
            if (year < 0 || year > std::numeric_limits<short>::max())
                cells.adjust(taxa::Year, "no year; not taken");
            else
                parts.year = static_cast<short>(year);
        }
        details_.year = parts.year;
    }

    void readDetails(CellReader& cells)
    {
        cells.text(taxa::AlphaCode, &details_.alphaCode);
        long code = 0;
        if (cells.whole(taxa::Code, &code) == Cell::Good)
            details_.code = code;
        std::string notes;
        if (cells.text(taxa::Notes, &notes) == Cell::Good)
            details_.notes.push_back(notes);
    }

    // The mnemonic; empty for taxa without a category.
    std::string readTaxonCategory(CellReader& cells)
    {
        char discipline = 0;
        readDiscipline(cells, taxa::Discipline, &discipline);
        const bool isGroup = cells.raw(taxa::Category).empty();
        const int column = isGroup ? taxa::Group : taxa::Category;
        const Category* category =
            readCategory(cells, column, isGroup, discipline, dictionary_.categories);
        if (!category && !cells.report().refused())
            cells.report().noteOnce("", "", "taxa without a category are stored without one");
        return category ? category->mnemonic : "";
    }

    // The dictionary's entry for the row, announced when there is none. A second row for one entry
    // is refused; its number stands for the entry all the same.
    void find(CellReader& cells, const Taxon& taxon)
    {
        const RowPlace place{&cells.file(), cells.line()};
        entry_ = entries_.of(place, [&] {
            DictionaryTaxon* known = dictionary_.taxa.find(taxon);
            return known ? known : &dictionary_.taxa.add(taxon);
        });
        dictionary_.numbered.give(cells.file().set, std::string(cells.raw(taxa::Id)), entry_);
        if (number_)
            number_->databaseId = entry_->taxon.spec_id();
        const RowPlace& first = rows_.try_emplace(entry_, place).first->second;
        if (!(first == place))
            cells.report().refuse("name", written_,
                "the same name in the same category is in " + first.seenFrom(cells.file())
                    + " already");
    }

    void tell(CellReader& cells, const NameReading& name, const Taxon& taxon)
    {
        if (taxon.has(slot::author))
            details_.author = taxon.author();
        details_.year = taxon.year;
        tellReading(cells, written_, name);
        const std::string spelling = composedName(entry_->taxon);
        const bool same = spelling == composedName(taxon);
        if (!same)
            cells.report().adjust("name", written_, "is in the dictionary as \"" + spelling + '"');
        if (!same || !name.exact)
            details_.notes.push_back(asPublished(written_));
    }

    ImportContext& context_;
    Dictionary& dictionary_;
    Decisions<DictionaryTaxon*> entries_;
    std::unordered_map<const DictionaryTaxon*, RowPlace> rows_;

    // The row at hand.
    std::string written_;
    TaxonDetails details_;
    DictionaryTaxon* entry_ = nullptr;
    FileId* number_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeTaxaLoader(ImportContext& context)
{
    return std::make_unique<TaxaLoader>(context);
}

// app/import/CategoriesLoader.cpp
#include "app/import/Cells.h"
#include "app/import/DictionaryCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"

namespace {

class CategoriesLoader : public RowLoader {
public:
    explicit CategoriesLoader(ImportContext& context)
        : dictionary_(context.dictionary)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!dictionary_.load()) {
            error_ = dictionary_.error();
            return false;
        }
        std::string mnemonic;
        name_.clear();
        discipline_ = 0;
        if (cells.key(categories::Mnemonic, &mnemonic) == Cell::Good) {
            mnemonic = inCapitals(cells, categories::Mnemonic, mnemonic);
            refuseRepeated(cells, mnemonic);
        }
        cells.text(categories::Name, &name_);
        readDiscipline(cells, categories::Discipline, &discipline_);
        if (cells.report().refused())
            return true;
        category_ = dictionary_.categories.find(mnemonic);
        if (!category_)
            category_ = dictionary_.categories.add({mnemonic, name_, discipline_, false});
        if (!discipline_ && !category_->discipline)
            cells.adjust(categories::Discipline,
                "no discipline; samples of these taxa belong to none until it is given");
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = dictionary_.categories.put(*category_, name_, discipline_);
        if (outcome == Outcome::Failed)
            error_ = dictionary_.categories.error();
        return outcome;
    }

private:
    void refuseRepeated(CellReader& cells, const std::string& mnemonic)
    {
        const RowPlace* first = rows_.before(mnemonic, {&cells.file(), cells.line()});
        if (first)
            cells.refuse(categories::Mnemonic,
                "this category is in " + first->seenFrom(cells.file()) + " already");
    }

    Dictionary& dictionary_;
    FirstRows rows_;
    Category* category_ = nullptr;
    std::string name_;
    char discipline_ = 0;
};

} // namespace

std::unique_ptr<RowLoader> makeCategoriesLoader(ImportContext& context)
{
    return std::make_unique<CategoriesLoader>(context);
}

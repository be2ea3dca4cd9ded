// app/import/SchemesLoader.cpp
#include "app/import/Cells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"

namespace {

class SchemesLoader : public RowLoader {
public:
    explicit SchemesLoader(ImportContext& context)
        : context_(context)
        , writer_(context.abundances)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!writer_.load()) {
            error_ = writer_.error();
            return false;
        }
        const RowPlace place{&cells.file(), cells.line()};
        std::string name;
        const RowPlace* first = nullptr;
        if (cells.key(schemes::Name, &name) == Cell::Good)
            first = rows_.before(name, place);
        if (first)
            cells.refuse(
                schemes::Name, "this scheme is in " + first->seenFrom(cells.file()) + " already");
        FileIds& numbers = context_.ids("schemes", cells.file().set);
        if (cells.report().refused() || !takeFileNumber(cells, schemes::Id, numbers, &number_))
            return true;
        scheme_ = writer_.find(name);
        if (!scheme_)
            scheme_ = writer_.add(name);
        context_.numberedSchemes.give(
            cells.file().set, std::string(cells.raw(schemes::Id)), scheme_);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(*scheme_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        else if (number_)
            number_->databaseId = scheme_->id;
        return outcome;
    }

private:
    ImportContext& context_;
    AbundanceWriter& writer_;
    FirstRows rows_;
    AbundanceScheme* scheme_ = nullptr;
    FileId* number_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeSchemesLoader(ImportContext& context)
{
    return std::make_unique<SchemesLoader>(context);
}

// app/import/InterpretationSchemesLoader.cpp
#include "app/import/DictionaryCells.h"
#include "app/import/InterpretationShapes.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/SchemeCells.h"
#include "util/TextUtil.h"

namespace {

namespace cell = interpretation_schemes;

class InterpretationSchemesLoader : public RowLoader {
public:
    explicit InterpretationSchemesLoader(ImportContext& context)
        : context_(context)
    {
    }

    bool check(CellReader& cells) override
    {
        SchemeWriter& schemes = context_.interpretation.schemes;
        if (!schemes.load() || !context_.dictionary.load()) {
            error_ = schemes.error() + context_.dictionary.error();
            return false;
        }
        std::string name;
        const bool hasName = cells.key(cell::Name, &name) == Cell::Good;
        const long type = readType(cells);
        const RowPlace place{&cells.file(), cells.line()};
        const RowPlace* first = hasName ? rows_.before(name, place) : nullptr;
        if (first)
            cells.refuse(
                cell::Name, "this scheme is in " + first->seenFrom(cells.file()) + " already");
        FileIds& numbers = context_.ids("interpretation_schemes", cells.file().set);
        FileId* number = nullptr;
        if (cells.report().refused() || !takeFileNumber(cells, cell::Number, numbers, &number))
            return true;
        scheme_ = schemeNamed(cells, cell::Name, name, type, context_);
        if (scheme_)
            context_.interpretation.numberedSchemes.give(
                cells.file().set, std::string(cells.raw(cell::Number)), scheme_);
        return true;
    }

    Outcome store() override
    {
        const bool isNew = !scheme_->isStored;
        const Outcome outcome = context_.interpretation.schemes.put(*scheme_);
        if (outcome == Outcome::Failed)
            error_ = context_.interpretation.schemes.error();
        return isNew ? outcome : Outcome::Same;
    }

private:
    // As stated, else the biozones of the row's discipline.
    long readType(CellReader& cells)
    {
        long type = 0;
        if (cells.whole(cell::Type, &type) == Cell::Good) {
            if (typeText(type).starts_with('*'))
                cells.refuse(cell::Type, "no type of interpretations");
            return type;
        }
        char letter = 0;
        const Category* category =
            context_.dictionary.categories.find(upperCased(cells.raw(cell::Category)));
        if (readDiscipline(cells, cell::Discipline, &letter) != Cell::Good && category)
            letter = category->discipline;
        type = biozoneType(letter);
        if (type == 0)
            cells.refuse(cell::Type,
                "neither igd_type nor the discipline of a category tells what interpretations the "
                "scheme is for");
        return type;
    }

    ImportContext& context_;
    FirstRows rows_;
    NamedEntry* scheme_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeInterpretationSchemesLoader(ImportContext& context)
{
    return std::make_unique<InterpretationSchemesLoader>(context);
}

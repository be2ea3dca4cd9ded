// app/import/LithologiesLoader.cpp
#include "app/import/LithologyCells.h"
#include "app/import/Loader.h"
#include "app/import/RockShapes.h"
#include "app/import/RowPlaces.h"
#include "util/TextUtil.h"

namespace {

namespace cell = lithologies;

class LithologiesLoader : public RowLoader {
public:
    explicit LithologiesLoader(ImportContext& context)
        : context_(context)
        , writer_(context.interpretation.lithologies)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!writer_.load()) {
            error_ = writer_.error();
            return false;
        }
        std::string name;
        std::string abr;
        const bool hasName = cells.key(cell::Name, &name) == Cell::Good;
        const Cell state = cells.text(cell::Abr, &abr);
        abr_ = givenValue(state, textValue(abr));
        readKind(cells);
        const RowPlace place{&cells.file(), cells.line()};
        const RowPlace* first = hasName ? rows_.before(upperCased(name), place) : nullptr;
        if (first)
            cells.refuse(
                cell::Name, "this rock is in " + first->seenFrom(cells.file()) + " already");
        FileIds& codes = context_.ids("lithologies", cells.file().set);
        FileId* number = nullptr;
        if (!cells.report().refused() && takeFileNumber(cells, cell::Code, codes, &number))
            announce(cells, name);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(*entry_, abr_, kind_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    void readKind(CellReader& cells)
    {
        const std::string_view cell = cells.raw(cell::Kind);
        kind_ = lithologyKind(cell);
        if (!cell.empty() && !kind_)
            cells.refuse(cell::Kind, "neither main, accessory, qualifier nor stringer");
    }

    void announce(CellReader& cells, const std::string& name)
    {
        const std::string number(cells.raw(cell::Code));
        entry_ = writer_.find(name);
        if (!entry_)
            entry_ = writer_.add(name, lithologyCode(number));
        context_.interpretation.numberedLithologies.give(cells.file().set, number, entry_);
        if (!number.empty())
            cells.report().noteOnce(cells.header(cell::Code), "",
                "keys above 999 are kept where they are free; other rocks get new ones");
    }

    ImportContext& context_;
    LithologyWriter& writer_;
    FirstRows rows_;
    LithologyEntry* entry_ = nullptr;
    std::optional<Value> abr_;
    char kind_ = 0;
};

} // namespace

std::unique_ptr<RowLoader> makeLithologiesLoader(ImportContext& context)
{
    return std::make_unique<LithologiesLoader>(context);
}

// app/import/CoresLoader.cpp
#include "app/import/AnalysisCells.h"
#include "app/import/DepthShapes.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/WellCells.h"
#include "store/DepthWriters.h"

namespace {

class CoresLoader : public RowLoader {
public:
    explicit CoresLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        record_ = CoreRecord();
        std::string code;
        if (!readWell(cells, cores::WellCode, context_, &code, &well_)) {
            error_ = context_.error();
            return false;
        }
        readDepths(cells);
        if (const auto recovered = readYesNo(cells, cores::Recovered))
            record_.recovered = textValue(*recovered ? "Y" : "N");
        if (cells.key(cores::Number, &record_.number) != Cell::Good || cells.report().refused())
            return true;
        const RowPlace place{&cells.file(), cells.line()};
        if (const RowPlace* first = rows_.before(code + '\n' + record_.number, place))
            cells.refuse(cores::Number,
                "this core of the well is in " + first->seenFrom(cells.file()) + " already");
        return true;
    }

    Outcome store() override
    {
        record_.wellId = well_->id;
        const Outcome outcome = writer_.put(record_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    void readDepths(CellReader& cells)
    {
        if (cells.raw(cores::Top).empty())
            cells.refuse(cores::Top, "has no top");
        if (cells.raw(cores::Base).empty())
            cells.refuse(cores::Base, "has no base");
        if (cells.report().refused())
            return;
        DepthCells depths(cells, cores::Units, well_);
        const bool good = depths.read(cores::Top, &record_.top) == Cell::Good
            && depths.read(cores::Base, &record_.base) == Cell::Good;
        if (!good && !cells.report().refused())
            cells.refuse(cores::Top, "top or base is not known");
        else if (good && record_.base <= record_.top)
            cells.refuse(cores::Base, "the base does not lie below the top");
    }

    ImportContext& context_;
    CoreWriter writer_;
    FirstRows rows_;
    CoreRecord record_;
    const KnownWell* well_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeCoresLoader(ImportContext& context)
{
    return std::make_unique<CoresLoader>(context);
}

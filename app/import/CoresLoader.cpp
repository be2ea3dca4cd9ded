// app/import/CoresLoader.cpp
#include "app/import/AnalysisCells.h"
#include "app/import/DepthShapes.h"
#include "app/import/IntervalCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
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
        DepthInterval interval;
        readInterval(cells, {cores::Top, cores::Base, cores::Units}, well_, &interval);
        record_.top = interval.top;
        record_.base = interval.base;
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

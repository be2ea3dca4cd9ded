// app/import/IntervalsLoader.cpp
#include "app/import/IntervalCells.h"
#include "app/import/Loader.h"
#include "app/import/RockShapes.h"
#include "app/import/RowPlaces.h"

namespace {

/// Tells the rows of the components beside it where their intervals begin; it has no rocks itself.
class IntervalsLoader : public RowLoader {
public:
    explicit IntervalsLoader(ImportContext& context)
        : context_(context)
    {
    }

    bool check(CellReader& cells) override
    {
        std::string code;
        const KnownWell* well = nullptr;
        if (!readWell(cells, intervals::WellCode, context_, &code, &well)) {
            error_ = context_.error();
            return false;
        }
        cells.report().noteOnce(
            "", "", "the rocks of the intervals are stored with the rows of lithology_components");
        DepthInterval interval;
        const IntervalColumns columns{intervals::Top, intervals::Base, intervals::Units};
        if (!readInterval(cells, columns, well, &interval))
            return true;
        const std::string key = code + '\n' + std::to_string(interval.base);
        const RowPlace* first = rows_.before(key, {&cells.file(), cells.line()});
        if (first)
            cells.refuse(intervals::Base,
                "an interval with this base is in " + first->seenFrom(cells.file()) + " already");
        else
            context_.interpretation.rockIntervals.add(cells.file().set, well, interval);
        return true;
    }

    Outcome store() override { return Outcome::Same; }

private:
    ImportContext& context_;
    FirstRows rows_;
};

} // namespace

std::unique_ptr<RowLoader> makeIntervalsLoader(ImportContext& context)
{
    return std::make_unique<IntervalsLoader>(context);
}

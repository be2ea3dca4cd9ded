// app/import/MarkersLoader.cpp
#include "app/import/Loader.h"
#include "app/import/MarkerShapes.h"
#include "app/import/RowPlaces.h"
#include "app/import/WellCells.h"
#include "store/MarkerWriters.h"

namespace {

namespace cell = seismic_markers;

class MarkersLoader : public RowLoader {
public:
    explicit MarkersLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        std::string code;
        if (!readWell(cells, cell::WellCode, context_, &code, &well_)) {
            error_ = context_.error();
            return false;
        }
        if (DepthCells(cells, cell::Units, well_).read(cell::Depth, &depth_) == Cell::Empty)
            cells.refuse(cell::Depth, "has no depth");
        std::string colour;
        const Cell state = cells.text(cell::Colour, &colour);
        colour_ = givenValue(state, textValue(colour));
        if (cells.report().refused())
            return true;
        const std::string key = code + '\n' + std::to_string(depth_);
        if (const RowPlace* first = rows_.before(key, {&cells.file(), cells.line()}))
            cells.refuse(cell::Depth,
                "a marker at this depth is in " + first->seenFrom(cells.file()) + " already");
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(well_->id, depth_, colour_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    ImportContext& context_;
    MarkerWriter writer_;
    FirstRows rows_;
    const KnownWell* well_ = nullptr;
    double depth_ = 0; ///< metres
    std::optional<Value> colour_;
};

} // namespace

std::unique_ptr<RowLoader> makeMarkersLoader(ImportContext& context)
{
    return std::make_unique<MarkersLoader>(context);
}

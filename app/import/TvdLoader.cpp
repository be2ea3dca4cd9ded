// app/import/TvdLoader.cpp
#include "app/import/DepthShapes.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/WellCells.h"
#include "store/DepthWriters.h"

#include <cmath>

namespace {

constexpr double kSamePoint = 0.01; // metres: nearer points are one to the depth model

class TvdLoader : public RowLoader {
public:
    explicit TvdLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        std::string code;
        if (!readWell(cells, tvd_points::WellCode, context_, &code, &well_)) {
            error_ = context_.error();
            return false;
        }
        DepthCells depths(cells, tvd_points::Units, well_);
        const Cell measured = depths.read(tvd_points::Measured, &measured_);
        const Cell vertical = depths.read(tvd_points::Vertical, &vertical_);
        if (measured == Cell::Empty)
            cells.refuse(tvd_points::Measured, "has no measured depth");
        if (vertical == Cell::Empty)
            cells.refuse(tvd_points::Vertical, "has no true vertical depth");
        if (!cells.report().refused())
            judge(cells, code);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(well_->id, measured_, vertical_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    void judge(CellReader& cells, const std::string& code)
    {
        const RowPlace place{&cells.file(), cells.line()};
        const std::string key = code + '\n' + std::to_string(std::llround(measured_ / kSamePoint));
        const RowPlace* first = rows_.before(key, place);
        if (first)
            cells.refuse(tvd_points::Measured,
                "the same depth is in " + first->seenFrom(cells.file()) + " already");
        else if (vertical_ == 0 && measured_ > kSamePoint)
            cells.refuse(tvd_points::Vertical, "0 stands for a depth that is not known");
        else if (vertical_ > measured_ + kSamePoint)
            cells.adjust(tvd_points::Vertical, "stored, but no well is deeper than it is long");
    }

    ImportContext& context_;
    SurveyWriter writer_;
    FirstRows rows_;
    const KnownWell* well_ = nullptr;
    double measured_ = 0;
    double vertical_ = 0;
};

} // namespace

std::unique_ptr<RowLoader> makeTvdLoader(ImportContext& context)
{
    return std::make_unique<TvdLoader>(context);
}

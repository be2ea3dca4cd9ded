// app/import/LayersLoader.cpp
#include "app/import/LayerTops.h"
#include "app/import/LithologyCells.h"
#include "app/import/Loader.h"
#include "app/import/Overlaps.h"
#include "app/import/RockShapes.h"
#include "store/RockWriters.h"

#include <algorithm>

namespace {

namespace cell = rock_layers;

constexpr IntervalColumns kInterval{cell::Top, cell::Base, cell::Units};

class LayersLoader : public RowLoader {
public:
    explicit LayersLoader(ImportContext& context)
        : context_(context)
        , lithologies_(context.interpretation.lithologies)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        std::string code;
        if (!lithologies_.load() || !tops_.read(cells.file(), kInterval, cell::WellCode, context_)
            || !readWell(cells, cell::WellCode, context_, &code, &well_)) {
            error_ = lithologies_.error() + context_.error();
            return false;
        }
        bool hasBase = false;
        if (readOpenInterval(cells, kInterval, well_, &interval_, &hasBase) && !hasBase)
            takeNextTop(cells);
        rock_ = readLithology(cells, cell::Code, cell::Name, context_);
        if (!cells.report().refused())
            judge(cells, code);
        return true;
    }

    Outcome store() override
    {
        if (!rock_->isStored && lithologies_.put(*rock_, std::nullopt) == Outcome::Failed) {
            error_ = lithologies_.error();
            return Outcome::Failed;
        }
        const Outcome outcome = writer_.put(well_->id, interval_.top, interval_.base, rock_->id);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    void takeNextTop(CellReader& cells)
    {
        const auto next = tops_.below(*well_, interval_.top);
        if (!next) {
            cells.refuse(cell::Base, "has no base, and no layer lies below");
            return;
        }
        interval_.base = *next;
        cells.adjust(cell::Base, "has no base; ends at the next top, " + metresText(*next) + " m");
    }

    void judge(CellReader& cells, const std::string& code)
    {
        const RowPlace place{&cells.file(), cells.line()};
        const std::string key =
            code + '\n' + std::to_string(interval_.top) + '\n' + std::to_string(interval_.base);
        if (const RowPlace* first = rows_.before(key, place)) {
            cells.refuse(cell::Top,
                "a rock over these depths is in " + first->seenFrom(cells.file()) + " already");
            return;
        }
        const auto [least, most] = std::minmax(interval_.top, interval_.base);
        if (const RowPlace* other = overlaps_.before(code, least, most, place))
            cells.adjust(cell::Top,
                "stored, but its depths overlap those in " + other->seenFrom(cells.file()));
    }

    ImportContext& context_;
    LithologyWriter& lithologies_;
    RockIntervalWriter writer_;
    LayerTops tops_;
    FirstRows rows_;
    Overlaps overlaps_;

    // The row at hand.
    const KnownWell* well_ = nullptr;
    DepthInterval interval_;
    LithologyEntry* rock_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeLayersLoader(ImportContext& context)
{
    return std::make_unique<LayersLoader>(context);
}

// app/import/ComponentsLoader.cpp
#include "app/import/LithologyCells.h"
#include "app/import/Loader.h"
#include "app/import/RockShapes.h"
#include "app/import/RowPlaces.h"
#include "app/import/WellCells.h"
#include "store/RockWriters.h"

#include <algorithm>
#include <vector>

namespace {

namespace cell = lithology_components;

constexpr double kWhole = 100.01; // percent, rounded shares may add up to a little more

/// The rock with the largest share is that of the interval; the others are accessories, each where
/// it begins when the shares are laid side by side.
class ComponentsLoader : public RowLoader {
public:
    explicit ComponentsLoader(ImportContext& context)
        : context_(context)
        , lithologies_(context.interpretation.lithologies)
        , intervals_(context.writing)
        , accessories_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        std::string code;
        if (!lithologies_.load() || !readWell(cells, cell::WellCode, context_, &code, &well_)) {
            error_ = lithologies_.error() + context_.error();
            return false;
        }
        interval_ = readInterval(cells);
        rock_ = readLithology(cells, cell::Code, cell::Name, context_);
        double percent = 0;
        const Cell state = cells.number(cell::Percent, &percent);
        if (state != Cell::Bad && (state != Cell::Good || percent <= 0))
            cells.refuse(cell::Percent, "no share of the interval");
        if (!cells.report().refused())
            judge(cells, percent);
        return true;
    }

    Outcome store() override
    {
        if (!rock_->isStored && lithologies_.put(*rock_, std::nullopt) == Outcome::Failed) {
            error_ = lithologies_.error();
            return Outcome::Failed;
        }
        const auto main = std::ranges::max_element(*parts_, {}, &Part::percent);
        const Outcome outcome = main->rock == rock_
            ? intervals_.put(well_->id, interval_->top, interval_->base, rock_->id)
            : accessories_.put(well_->id, interval_->top, interval_->base, rock_->id, place());
        if (outcome == Outcome::Failed)
            error_ = intervals_.error() + accessories_.error();
        return outcome;
    }

private:
    struct Part {
        const LithologyEntry* rock;
        double percent;
        RowPlace place;
    };
    using Parts = std::vector<Part>;

    const DepthInterval* readInterval(CellReader& cells)
    {
        if (cells.report().refused())
            return nullptr;
        double base = 0;
        const bool hasBase =
            DepthCells(cells, cell::Units, well_).read(cell::Base, &base) == Cell::Good;
        const DepthInterval* interval = hasBase
            ? context_.interpretation.rockIntervals.find(cells.file().set, well_, base)
            : nullptr;
        if (!interval)
            cells.refuse(cell::Base,
                "no interval with this base among the accepted rows of the intervals file beside "
                "it");
        return interval;
    }

    void judge(CellReader& cells, double percent)
    {
        const RowPlace place{&cells.file(), cells.line()};
        parts_ = &parts(*interval_);
        const auto same = std::ranges::find(*parts_, rock_, &Part::rock);
        if (same == parts_->end())
            parts_->push_back({rock_, percent, place});
        else if (same->place != place)
            cells.refuse(cell::Name,
                "this rock of the interval is in " + same->place.seenFrom(cells.file())
                    + " already");
        if (!cells.report().refused() && sumUpTo(rock_) + percent > kWhole)
            cells.adjust(cell::Percent, "stored, but the shares of the interval exceed 100");
    }

    Parts& parts(const DepthInterval& interval) { return all_[&interval]; }

    double sumUpTo(const LithologyEntry* rock) const
    {
        double sum = 0;
        for (const Part& part : *parts_) {
            if (part.rock == rock)
                break;
            sum += part.percent;
        }
        return sum;
    }
    double place() const { return sumUpTo(rock_); }

    ImportContext& context_;
    LithologyWriter& lithologies_;
    RockIntervalWriter intervals_;
    AccessoryRockWriter accessories_;
    std::map<const DepthInterval*, Parts> all_;

    // The row at hand.
    const KnownWell* well_ = nullptr;
    const DepthInterval* interval_ = nullptr;
    LithologyEntry* rock_ = nullptr;
    Parts* parts_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeComponentsLoader(ImportContext& context)
{
    return std::make_unique<ComponentsLoader>(context);
}

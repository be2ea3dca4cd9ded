// app/import/LevelsLoader.cpp
#include "app/import/Cells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "dict/Abns.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <cmath>
#include <limits>
#include <vector>

namespace {

constexpr long kLargestMin = std::numeric_limits<short>::max(); // the column has 16 bits

/// What was decided about a row when it was checked.
struct LevelDecision {
    AbundanceScheme* scheme = nullptr;
    AbundanceLevel level;
    std::string refusal;
    std::vector<std::string> adjustments;
};

bool isYes(std::string_view cell)
{
    const std::string word = lowerCased(cell);
    return word == "y" || word == "yes" || word == "true" || word == "1";
}

/// "0.01 (1/100)": a bound below one as publications count it, one specimen in so many fields.
std::string boundText(std::string_view cell, double bound)
{
    std::string text(cell);
    if (bound > 0 && bound < 1)
        text += " (1/" + std::to_string(std::lround(1 / bound)) + ')';
    return text;
}

class LevelsLoader : public RowLoader {
public:
    explicit LevelsLoader(ImportContext& context)
        : context_(context)
        , writer_(context.abundances)
    {
    }

    std::string columnProblem(const InputFile& file) const override
    {
        return file.has(levels::SchemeId) || file.has(levels::Scheme)
            ? ""
            : "has no column scheme_id or scheme";
    }

    bool check(CellReader& cells) override
    {
        if (!writer_.load()) {
            error_ = writer_.error();
            return false;
        }
        AbundanceScheme* scheme = findScheme(cells);
        const AbundanceLevel level = readLevel(cells);
        const auto bound = readMin(cells);
        if (cells.report().refused())
            return true;
        const RowPlace place{&cells.file(), cells.line()};
        decision_ =
            &decisions_.of(place, [&] { return decide(cells, scheme, level, bound.value_or(0)); });
        if (!decision_->refusal.empty())
            cells.refuse(levels::Abr, decision_->refusal);
        for (const std::string& text : decision_->adjustments)
            cells.adjust(levels::Min, text);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.putLevel(*decision_->scheme, decision_->level);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    AbundanceScheme* findScheme(CellReader& cells)
    {
        const std::string number(cells.raw(levels::SchemeId));
        AbundanceScheme* scheme = context_.numberedSchemes.find(cells.file().set, number);
        std::string name;
        if (!scheme && cells.text(levels::Scheme, &name) == Cell::Good)
            scheme = writer_.find(name);
        if (!scheme)
            cells.refuse(cells.file().has(levels::SchemeId) ? levels::SchemeId : levels::Scheme,
                "no such scheme in the database or among the accepted rows of schemes files");
        return scheme;
    }

    AbundanceLevel readLevel(CellReader& cells)
    {
        AbundanceLevel level;
        if (cells.whole(levels::EntryNo, &level.entryNo) != Cell::Good)
            level.entryNo = 0;
        cells.text(levels::Name, &level.name);
        if (cells.text(levels::Abr, &level.abr) != Cell::Good)
            cells.refuse(levels::Abr, "has no code");
        cells.whole(levels::Output, &level.output);
        return level;
    }

    std::optional<double> readMin(CellReader& cells)
    {
        double bound = 0;
        if (cells.number(levels::Min, &bound) != Cell::Good)
            return std::nullopt;
        if (bound < 0)
            cells.refuse(levels::Min, "a count is never below 0");
        return bound;
    }

    LevelDecision decide(
        const CellReader& cells, AbundanceScheme* scheme, AbundanceLevel level, double bound)
    {
        LevelDecision decision{scheme, level, {}, {}};
        auto& met = met_[scheme];
        if (level.entryNo == 0)
            decision.level.entryNo = met.empty() ? 1 : met.rbegin()->first + 1;
        setMin(cells, bound, decision);
        judge(cells, met, decision);
        if (!decision.refusal.empty())
            return decision;
        tellHidden(met, decision);
        met[decision.level.entryNo] = {decision.level, {&cells.file(), cells.line()}};
        scheme->levels[decision.level.entryNo] = decision.level;
        return decision;
    }

    // Occurrences are counted in whole numbers, so a bound is the first count that reaches it.
    static void setMin(const CellReader& cells, double bound, LevelDecision& decision)
    {
        const bool exclusive = isYes(cells.raw(levels::MinExclusive));
        const double whole = std::ceil(bound);
        const double first = exclusive && whole == bound ? whole + 1 : whole;
        decision.level.min = first > kLargestMin ? kLargestMin : static_cast<long>(first);
        if (first > kLargestMin)
            decision.adjustments.push_back("more than " + std::to_string(kLargestMin)
                + ", the largest that a level has; stored as that");
        else if (first != bound)
            decision.adjustments.push_back((exclusive ? "more than " : "from ")
                + boundText(cells.raw(levels::Min), bound) + ": the level begins with a count of "
                + std::to_string(decision.level.min));
    }

    struct Met {
        AbundanceLevel level;
        RowPlace place;
    };
    using MetLevels = std::map<long, Met>; // by place on the ladder

    void judge(const CellReader& cells, const MetLevels& met, LevelDecision& decision) const
    {
        const auto& level = decision.level;
        const auto again = met.find(level.entryNo);
        if (again != met.end())
            decision.refusal = "place " + std::to_string(level.entryNo) + " of the scheme is in "
                + again->second.place.seenFrom(cells.file()) + " already";
        for (const auto& [entryNo, other] : met)
            if (decision.refusal.empty() && other.level.abr == level.abr)
                decision.refusal = "the code " + level.abr + " is in "
                    + other.place.seenFrom(cells.file()) + " already";
        const auto& all = decision.scheme->levels;
        if (decision.refusal.empty() && all.size() >= Abns::kMostLevels
            && all.find(level.entryNo) == all.end())
            decision.refusal = "the scheme has twelve levels already, the most that one holds";
    }

    // Two levels that begin with the same count: the lower one is never reached by counting.
    static void tellHidden(const MetLevels& met, LevelDecision& decision)
    {
        const auto above = met.lower_bound(decision.level.entryNo);
        if (above == met.begin())
            return;
        const AbundanceLevel& below = std::prev(above)->second.level;
        if (below.min >= decision.level.min)
            decision.adjustments.push_back("level " + below.abr + " below begins with "
                + std::to_string(below.min) + "; no count gives it, but its code can be recorded");
    }

    ImportContext& context_;
    AbundanceWriter& writer_;
    Decisions<LevelDecision> decisions_;
    std::map<const AbundanceScheme*, MetLevels> met_;
    const LevelDecision* decision_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeLevelsLoader(ImportContext& context)
{
    return std::make_unique<LevelsLoader>(context);
}

// app/import/AbundanceCodesLoader.cpp
#include "app/import/AnalysisShapes.h"
#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "dict/Abns.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <filesystem>
#include <limits>
#include <map>
#include <set>

namespace {

// A code without bounds must not be what a count turns into.
constexpr long kNeverReached = std::numeric_limits<short>::max();

/// The codes of a set and their words make a scheme of that set, one level a row, lowest first.
/// Such files have no bounds: no count is turned into a code but the lowest, and each code stands
/// for its place on the ladder.
class AbundanceCodesLoader : public RowLoader {
public:
    explicit AbundanceCodesLoader(ImportContext& context)
        : context_(context)
        , writer_(context.abundances)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!writer_.load()) {
            error_ = writer_.error();
            return false;
        }
        Level row;
        cells.text(abundance_codes::Code, &row.level.abr);
        cells.text(abundance_codes::Word, &row.level.name);
        row.scheme = scheme(cells);
        const RowPlace place{&cells.file(), cells.line()};
        level_ = &levels_.of(place, [&] { return decided(row, cells.file().set); });
        if (!level_->refusal.empty())
            cells.refuse(abundance_codes::Code, level_->refusal);
        cells.report().noteOnce("", "",
            "the codes have no bounds: each stands for its place on the ladder, lowest first");
        return true;
    }

    Outcome store() override
    {
        const Outcome scheme = writer_.put(*level_->scheme);
        const Outcome outcome =
            scheme == Outcome::Failed ? scheme : writer_.putLevel(*level_->scheme, level_->level);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    struct Level {
        AbundanceScheme* scheme = nullptr;
        AbundanceLevel level;
        std::string refusal;
    };

    static std::string nameOfSet(const InputFile& file)
    {
        const std::string folder = std::filesystem::path(file.set).filename().string();
        return std::string(utf8Prefix(folder, 25));
    }

    AbundanceScheme* scheme(CellReader& cells)
    {
        std::string name;
        if (cells.text(abundance_codes::Scheme, &name) != Cell::Good)
            name = nameOfSet(cells.file());
        AbundanceScheme* known = writer_.find(name);
        return known ? known : writer_.add(name);
    }

    Level decided(Level row, const std::string& setName)
    {
        long& last = places_[row.scheme];
        if (row.level.abr.empty() || row.level.abr.size() > kLongestAbundanceCode)
            row.refusal = "a code has one or two bytes";
        else if (!codes_[row.scheme].insert(row.level.abr).second)
            row.refusal = "this code stands further up already";
        else if (last >= Abns::kMostLevels)
            row.refusal = "the scheme has twelve levels already, the most that one holds";
        if (!row.refusal.empty())
            return row;
        row.level.output = row.level.entryNo = ++last;
        row.level.min = last == 1 ? 0 : kNeverReached;
        row.scheme->levels[last] = row.level;
        auto& set = context_.abundancesOf(setName);
        set.scheme = row.scheme;
        set.words[upperCased(row.level.name)] = row.level.abr;
        return row;
    }

    ImportContext& context_;
    AbundanceWriter& writer_;
    Decisions<Level> levels_;
    std::map<const AbundanceScheme*, long> places_;
    std::map<const AbundanceScheme*, std::set<std::string>> codes_;
    const Level* level_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeAbundanceCodesLoader(ImportContext& context)
{
    return std::make_unique<AbundanceCodesLoader>(context);
}

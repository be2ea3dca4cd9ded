// app/import/CasingLoader.cpp
#include "app/import/Loader.h"
#include "app/import/MarkerShapes.h"
#include "app/import/RowPlaces.h"
#include "app/import/WellCells.h"
#include "app/import/Words.h"
#include "store/MarkerWriters.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

namespace {

constexpr std::size_t kLongestDiameter = 9; // bytes

class CasingLoader : public RowLoader {
public:
    explicit CasingLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        std::string code;
        if (!readWell(cells, casing::WellCode, context_, &code, &well_)) {
            error_ = context_.error();
            return false;
        }
        readDiameter(cells);
        DepthCells depths(cells, casing::Units, well_);
        if (depths.read(casing::Depth, &depth_) == Cell::Empty)
            cells.refuse(casing::Depth, "has no depth");
        if (cells.report().refused())
            return true;
        const std::string key = code + '\n' + std::to_string(depth_) + '\n' + diameter_;
        if (const RowPlace* first = rows_.before(key, {&cells.file(), cells.line()}))
            cells.refuse(casing::Depth,
                "the same casing is in " + first->seenFrom(cells.file()) + " already");
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(well_->id, depth_, diameter_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    // Fractions are kept as they are written: 13 3/8 is a name more than a number.
    void readDiameter(CellReader& cells)
    {
        std::string text;
        cells.text(casing::Diameter, &text);
        diameter_ = withSingleBlanks(text);
        if (diameter_.size() > kLongestDiameter)
            diameter_ = trimmedRight(utf8Prefix(diameter_, kLongestDiameter));
        const std::string kind = upperCased(cells.raw(casing::Kind));
        if (diameter_.empty() && (kind == "OPEN HOLE" || kind == "PILOT HOLE"))
            cells.refuse(casing::Kind, "there is no casing in it");
        else if (diameter_.empty())
            cells.adjust(casing::Diameter, "the diameter is not known; stored without");
        else if (diameter_ != text)
            cells.adjust(casing::Diameter, "stored as \"" + diameter_ + '"');
    }

    ImportContext& context_;
    CasingWriter writer_;
    FirstRows rows_;

    // The row at hand.
    const KnownWell* well_ = nullptr;
    double depth_ = 0; ///< metres
    std::string diameter_;
};

} // namespace

std::unique_ptr<RowLoader> makeCasingLoader(ImportContext& context)
{
    return std::make_unique<CasingLoader>(context);
}

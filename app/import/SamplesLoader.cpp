// app/import/SamplesLoader.cpp
#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/WellCells.h"
#include "db/Units.h"
#include "store/SampleWriter.h"
#include "well/SampleType.h"

#include <cmath>
#include <unordered_map>

namespace {

class SamplesLoader : public RowLoader {
public:
    explicit SamplesLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    std::string columnProblem(const InputFile& file) const override
    {
        const bool hasDepth = file.has(samples::Top) || file.has(samples::Base);
        return hasDepth ? "" : "has no column top_depth or base_depth";
    }

    bool check(CellReader& cells) override
    {
        record_ = SampleRecord();
        if (!readWell(cells, samples::WellCode, context_, &code_, &well_)) {
            error_ = context_.error();
            return false;
        }
        if (well_)
            record_.wellId = well_->id;
        readDepths(cells);
        readTexts(cells);
        readGrid(cells);
        if (cells.report().refused())
            return true;
        if (takeFileNumber(cells, samples::Id, context_.ids("samples", cells.file().set), &fileId_))
            refuseRepeated(cells);
        return true;
    }

    Outcome store() override
    {
        long id = 0;
        const Outcome outcome = writer_.put(record_, &id);
        if (outcome == Outcome::Failed) {
            error_ = writer_.error();
            return outcome;
        }
        seen_[key_].databaseId = id;
        if (fileId_)
            fileId_->databaseId = id;
        return outcome;
    }

private:
    // What a depth without a unit of its own is in.
    char unitsOfRow(CellReader& cells, Cell rowState, char rowUnits) const
    {
        if (rowState == Cell::Good)
            return rowUnits;
        if (rowState == Cell::Bad)
            return 'M'; // the row is refused
        cells.report().noteOnce(
            "", "", "depths without a unit are taken to be in the units of their well");
        return well_ ? well_->units : 'M';
    }

    void readDepths(CellReader& cells)
    {
        char rowUnits = 0;
        const Cell rowState = cells.units(samples::Units, &rowUnits);
        const auto read = [&](int column, std::optional<double>* out) {
            double value = 0;
            char units = 0;
            if (cells.depth(column, &value, &units) != Cell::Good)
                return;
            if (!units)
                units = unitsOfRow(cells, rowState, rowUnits);
            *out = units == 'F' ? value * kMetresPerFoot : value;
        };
        read(samples::Top, &record_.top);
        read(samples::Base, &record_.base);
        judgeDepths(cells);
    }

    void judgeDepths(CellReader& cells)
    {
        const auto& [top, base] = std::tie(record_.top, record_.base);
        const auto isZero = [](const std::optional<double>& depth) {
            return depth && std::abs(*depth) < kAbsentDepth;
        };
        if (!top && !base)
            cells.report().adjust("", "", "has no depth; stored without one");
        else if (isZero(top) || isZero(base))
            cells.adjust(isZero(top) ? samples::Top : samples::Base,
                "stored, but a depth of 0 counts as absent");
        else if (top && base && well_ && (well_->type == 'O' ? *base > *top : *base < *top))
            cells.refuse(samples::Base, "the base lies above the top");
    }

    void readTexts(CellReader& cells)
    {
        if (cells.sampleType(samples::Type, &record_.type) == Cell::Empty)
            cells.adjust(samples::Type,
                "no sample type; stored as " + std::string(kDefaultSampleType) + " (cuttings)");
        cells.text(samples::Label, &record_.label);
    }

    void readGrid(CellReader& cells)
    {
        const auto read = [&](int column, std::optional<Value>* out) {
            long value = 0;
            const Cell state = cells.whole(column, &value);
            *out = givenValue(state, value);
        };
        read(samples::GridX, &record_.gridX);
        read(samples::GridY, &record_.gridY);
    }

    // The number of a repeated row stands for the sample that is stored already.
    void refuseRepeated(CellReader& cells)
    {
        const RowPlace place{&cells.file(), cells.line()};
        key_ = storedText(code_) + '\n' + sampleKey(record_);
        const auto [first, isNew] =
            seen_.try_emplace(key_, Seen{place, 0, static_cast<long>(seen_.size())});
        if (fileId_) {
            fileId_->well = well_;
            fileId_->ordinal = first->second.ordinal;
            fileId_->depth = record_.base ? record_.base : record_.top;
        }
        if (isNew || first->second.place == place)
            return;
        if (fileId_)
            fileId_->databaseId = first->second.databaseId;
        cells.report().refuse("", "",
            "the same well, depths, type and label are in "
                + first->second.place.seenFrom(cells.file()) + " already");
    }

    struct Seen {
        RowPlace place;
        long databaseId;
        long ordinal;
    };

    ImportContext& context_;
    SampleWriter writer_;
    std::unordered_map<std::string, Seen> seen_; // by well code and natural key

    // The row at hand.
    SampleRecord record_;
    std::string code_;
    std::string key_;
    const KnownWell* well_ = nullptr;
    FileId* fileId_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeSamplesLoader(ImportContext& context)
{
    return std::make_unique<SamplesLoader>(context);
}

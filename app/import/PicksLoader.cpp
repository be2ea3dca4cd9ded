// app/import/PicksLoader.cpp
#include "app/import/IntervalCells.h"
#include "app/import/Loader.h"
#include "app/import/MarkerShapes.h"
#include "app/import/RowPlaces.h"
#include "interp/IGDTypes.h"

namespace {

namespace cell = picks;

constexpr long kMostQualities = 7;

class PicksLoader : public RowLoader {
public:
    explicit PicksLoader(ImportContext& context)
        : context_(context)
        , all_(context.interpretation)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        record_ = PickRecord();
        std::string code;
        if (!all_.surfaces.load() || !readWell(cells, cell::WellCode, context_, &code, &well_)) {
            error_ = all_.surfaces.error() + context_.error();
            return false;
        }
        readPlace(cells);
        readSurface(cells);
        readRest(cells);
        if (cells.report().refused())
            return true;
        const std::string where =
            sample_ ? '#' + std::to_string(sample_->ordinal) : std::to_string(depth_);
        const std::string key = code + '\n' + where + '\n' + surface_->name;
        if (const RowPlace* first = rows_.before(key, {&cells.file(), cells.line()}))
            cells.report().refuse(
                "", "", "this pick is in " + first->seenFrom(cells.file()) + " already");
        return true;
    }

    Outcome store() override
    {
        const auto sample =
            sample_ ? std::optional(sample_->databaseId) : all_.samples.at(*well_, depth_);
        if (!sample) {
            error_ = all_.samples.error();
            return Outcome::Failed;
        }
        record_.wellId = well_->id;
        record_.sampleId = *sample;
        record_.surfaceId = surface_->id;
        const Outcome outcome = writer_.put(record_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    void readPlace(CellReader& cells)
    {
        sample_ = nullptr;
        const FileIds& ids = context_.ids("samples", cells.file().set);
        const auto known = ids.find(std::string(cells.raw(cell::Sample)));
        if (known != ids.end() && known->second.well == well_)
            sample_ = &known->second;
        const Cell depth = DepthCells(cells, cell::Units, well_).read(cell::Depth, &depth_);
        if (!sample_ && depth != Cell::Good && depth != Cell::Bad)
            cells.refuse(
                cell::Depth, "neither a sample of the samples files beside it nor a depth");
    }

    void readSurface(CellReader& cells)
    {
        const std::string number(cells.raw(cell::SurfaceNumber));
        std::string name;
        surface_ = all_.numberedSurfaces.find(cells.file().set, number);
        if (!surface_ && cells.text(cell::Surface, &name) == Cell::Good)
            surface_ = all_.surfaces.find(name);
        if (!surface_)
            cells.refuse(cell::Surface,
                "no such surface in the database or among the accepted rows of surfaces files");
    }

    // Qualities of boundaries by number or by name.
    void readRest(CellReader& cells)
    {
        std::string text;
        const Cell comment = cells.text(cell::Comment, &text);
        record_.comment = givenValue(comment, textValue(text));
        const Cell qualifier = cells.text(cell::Qualifier, &text);
        record_.qualifier = givenValue(qualifier, textValue(text));
        const Cell boundary = cells.text(cell::Boundary, &text);
        if (boundary != Cell::Good)
            return;
        const auto number = numberOf(text);
        const long quality = number ? static_cast<long>(*number) : boundaryCode(text.c_str());
        if (quality < 1 || quality > kMostQualities)
            cells.adjust(
                cell::Boundary, "no quality of boundaries (1 to 7, or its name); not taken");
        else
            record_.boundary = Value(quality);
    }

    ImportContext& context_;
    Interpretation& all_;
    PickWriter writer_;
    FirstRows rows_;

    // The row at hand.
    PickRecord record_;
    const KnownWell* well_ = nullptr;
    const FileId* sample_ = nullptr;
    NamedEntry* surface_ = nullptr;
    double depth_ = 0; ///< metres
};

} // namespace

std::unique_ptr<RowLoader> makePicksLoader(ImportContext& context)
{
    return std::make_unique<PicksLoader>(context);
}

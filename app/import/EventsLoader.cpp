// app/import/EventsLoader.cpp
#include "app/import/AnalysisCells.h"
#include "app/import/DictionaryCells.h"
#include "app/import/EventCells.h"
#include "app/import/EventShapes.h"
#include "app/import/IntervalCells.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/WellCells.h"
#include "app/tables/NamedNotes.h"
#include "store/EventWriter.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

namespace cell = events;

struct TextCell {
    int cell;
    EventColumn column;
};
constexpr TextCell kTexts[] = {{cell::Analyst, EventColumn::Analyst},
    {cell::Qualifier, EventColumn::Qualifier}, {cell::Source, EventColumn::Source},
    {cell::Company, EventColumn::Company}};

class EventsLoader : public RowLoader {
public:
    explicit EventsLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        record_ = EventRecord();
        std::string code;
        if (!context_.events.load()) {
            error_ = context_.events.error();
            return false;
        }
        if (!readWell(cells, cell::WellCode, context_, &code, &well_)) {
            error_ = context_.error();
            return false;
        }
        entry_ = readEvent(cells, cell::Number, cell::Name, context_);
        const auto kind = readEventKind(cells, cell::Kind);
        NamedNotes notes;
        if (kind)
            readPlace(cells, kind->kind, &notes);
        readTexts(cells, &notes);
        if (cells.report().refused())
            return true;
        record_.kind = kind->kind;
        const std::string key = code + '\n' + entry_->name + '\n' + kind->kind;
        if (const RowPlace* first = rows_.before(key, {&cells.file(), cells.line()}))
            cells.report().refuse("", "",
                "this event of the well is in " + first->seenFrom(cells.file()) + " already");
        return true;
    }

    Outcome store() override
    {
        record_.wellId = well_->id;
        record_.eventId = entry_->id;
        DepthSamples& samples = context_.interpretation.samples;
        const std::optional<long> sample =
            sample_ ? std::optional(sample_->databaseId) : samples.at(*well_, depth_);
        if (!sample) {
            error_ = samples.error();
            return Outcome::Failed;
        }
        record_.set(EventColumn::Sample, Value(*sample));
        const Outcome outcome = writer_.put(record_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome;
    }

private:
    // By the sample, else by the depth, else between two depths.
    void readPlace(CellReader& cells, char kind, NamedNotes* notes)
    {
        sample_ = nullptr;
        const FileIds& ids = context_.ids("samples", cells.file().set);
        const auto known = ids.find(std::string(cells.raw(cell::Sample)));
        if (known != ids.end() && known->second.well == well_)
            sample_ = &known->second;
        DepthCells depths(cells, cell::Units, well_);
        double top = 0;
        double base = 0;
        const bool hasDepth = depths.read(cell::Depth, &depth_) == Cell::Good;
        const bool hasTop = depths.read(cell::Top, &top) == Cell::Good;
        const bool hasBase = depths.read(cell::Base, &base) == Cell::Good;
        if (hasTop && hasBase) {
            readBracket(std::min(top, base), std::max(top, base), kind, notes);
        } else if (hasTop || hasBase) {
            depth_ = hasTop ? top : base;
        } else if (!hasDepth && !sample_) {
            cells.refuse(cells.file().has(cell::Sample) ? cell::Sample : cell::Depth,
                "neither a sample of the samples files beside it nor a depth");
        }
        if (!sample_)
            cells.report().noteOnce("", "",
                "events are placed at the sample at their depth; where there is none, one of type "
                "LOG is made, OC in an outcrop");
    }

    // The event was met in one of two samples and not in the other: the top of a range in the lower
    // one, its base in the upper one. In an outcrop, measured upwards, it is the other way round.
    void readBracket(double least, double most, char kind, NamedNotes* notes)
    {
        const bool isOutcrop = well_ && well_->type == 'O';
        depth_ = (kind == 'F') != isOutcrop ? most : least;
        notes->add("from", metresText(least));
        notes->add("to", metresText(most));
    }

    void readTexts(CellReader& cells, NamedNotes* notes)
    {
        std::string text;
        for (const auto& [column, target] : kTexts) {
            const Cell state = cells.text(column, &text);
            record_.set(target, givenValue(state, textValue(text)));
        }
        char letter = 0;
        const Cell state = readDiscipline(cells, cell::Discipline, &letter);
        record_.set(EventColumn::Discipline, givenValue(state, textValue(std::string(1, letter))));
        notes->add("age", cells.raw(cell::Age));
        const Cell comments = cells.text(cell::Comments, &notes->text);
        if (comments != Cell::Missing || !notes->fields.empty())
            record_.set(EventColumn::Comments, textValue(notes->compose()));
    }

    ImportContext& context_;
    EventWriter writer_;
    FirstRows rows_;

    // The row at hand.
    EventRecord record_;
    const KnownWell* well_ = nullptr;
    const FileId* sample_ = nullptr;
    EventEntry* entry_ = nullptr;
    double depth_ = 0; ///< metres
};

} // namespace

std::unique_ptr<RowLoader> makeEventsLoader(ImportContext& context)
{
    return std::make_unique<EventsLoader>(context);
}

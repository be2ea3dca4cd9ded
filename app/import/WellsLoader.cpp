// app/import/WellsLoader.cpp
#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "store/WellWriter.h"

#include <cmath>
#include <unordered_map>

namespace {

struct Target {
    int cell;
    WellColumn column;
};
constexpr Target kTexts[] = {{wells::Name, WellColumn::Name},
    {wells::Operator, WellColumn::Operator}, {wells::Country, WellColumn::Country},
    {wells::County, WellColumn::County}, {wells::Ocs, WellColumn::Ocs},
    {wells::Field, WellColumn::Field}, {wells::GeoDatum, WellColumn::GeoDatum}};
constexpr Target kDates[] = {
    {wells::SpudDate, WellColumn::SpudDate}, {wells::CompDate, WellColumn::CompDate}};
constexpr Target kGrid[] = {{wells::GridX, WellColumn::GridX}, {wells::GridY, WellColumn::GridY}};
constexpr Target kDepths[] = {{wells::Td, WellColumn::Td}, {wells::Sl, WellColumn::Sl},
    {wells::Sb, WellColumn::Sb}, {wells::Rte, WellColumn::Rte}, {wells::Kicko, WellColumn::Kicko}};

struct Position {
    int cell;
    WellColumn column;
    double limit; // degrees
};
constexpr Position kPosition[] = {
    {wells::Latitude, WellColumn::Latitude, 90}, {wells::Longitude, WellColumn::Longitude, 180}};

void setUnlessLeft(WellRecord& record, WellColumn column, Cell state, Value value)
{
    if (auto given = givenValue(state, std::move(value)))
        record.set(column, std::move(*given));
}

class WellsLoader : public RowLoader {
public:
    explicit WellsLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        record_ = WellRecord();
        if (cells.key(wells::Code, &record_.code) == Cell::Good && isRepeated(cells))
            return true;
        readTexts(cells);
        readDates(cells);
        readNumbers(cells);
        if (!record_.code.empty() && !context_.storedWell(record_.code, &stored_)) {
            error_ = context_.error();
            return false;
        }
        known_ = {stored_.id, stored_.type(), stored_.units()};
        readLetters(cells);
        if (!cells.report().refused())
            context_.announceWell(record_.code, known_);
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = writer_.put(record_, &known_.id);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        else
            context_.announceWell(record_.code, known_);
        return outcome;
    }

private:
    // Two rows for one well would overwrite each other at every import.
    bool isRepeated(CellReader& cells)
    {
        const RowPlace place{&cells.file(), cells.line()};
        const auto [first, isNew] = seen_.try_emplace(storedText(record_.code), place);
        if (isNew || first->second == place)
            return false;
        cells.refuse(
            wells::Code, "this well is in " + first->second.seenFrom(cells.file()) + " already");
        return true;
    }

    void readTexts(CellReader& cells)
    {
        std::string text;
        for (const auto& [cell, column] : kTexts) {
            const Cell state = cells.text(cell, &text);
            setUnlessLeft(record_, column, state, textValue(text));
        }
        if (cells.text(wells::Description, &text) != Cell::Missing)
            record_.description = textValue(text);
        if (cells.raw(wells::Name).find('%') != std::string_view::npos)
            cells.adjust(wells::Name,
                "stored, but not found by this name: searches take a percent sign for a wildcard");
    }

    void readDates(CellReader& cells)
    {
        Date date;
        for (const auto& [cell, column] : kDates) {
            const Cell state = cells.date(cell, &date);
            setUnlessLeft(record_, column, state, date);
        }
    }

    void readNumbers(CellReader& cells)
    {
        long whole = 0;
        for (const auto& [cell, column] : kGrid) {
            const Cell state = cells.whole(cell, &whole);
            setUnlessLeft(record_, column, state, whole);
        }
        for (const Position& position : kPosition)
            readPosition(cells, position);
        double depth = 0;
        char units = 0;
        for (const auto& [cell, column] : kDepths) {
            const Cell state = cells.depth(cell, &depth, &units);
            setUnlessLeft(record_, column, state, Value());
            if (state == Cell::Good)
                record_.setDepth(column, depth, units);
        }
    }

    void readPosition(CellReader& cells, const Position& position)
    {
        double degrees = 0;
        const Cell state = cells.number(position.cell, &degrees);
        if (state == Cell::Good && std::abs(degrees) > position.limit)
            cells.adjust(position.cell, "no such position on earth; not taken");
        else
            setUnlessLeft(record_, position.column, state, degrees);
    }

    // Type and units, which the rows of other files ask for. Empty cells leave them alone: a well
    // always has both.
    void readLetters(CellReader& cells)
    {
        if (cells.wellType(wells::Type, &known_.type) == Cell::Good)
            record_.set(WellColumn::Type, std::string(1, known_.type));
        const Cell units = cells.units(wells::Units, &known_.units);
        if (units == Cell::Good)
            record_.set(WellColumn::Units, std::string(1, known_.units));
        else if (units == Cell::Empty && !stored_.inWells)
            cells.adjust(wells::Units, "no units given; metres are taken");
    }

    ImportContext& context_;
    WellWriter writer_;
    WellRecord record_;
    StoredWell stored_;
    KnownWell known_;
    std::unordered_map<std::string, RowPlace> seen_;
};

} // namespace

std::unique_ptr<RowLoader> makeWellsLoader(ImportContext& context)
{
    return std::make_unique<WellsLoader>(context);
}

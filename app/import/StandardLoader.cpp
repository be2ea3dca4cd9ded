// app/import/StandardLoader.cpp
#include "app/import/EventCells.h"
#include "app/import/EventShapes.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "store/StandardWriter.h"
#include "util/FixedText.h"

#include <algorithm>
#include <filesystem>
#include <map>

namespace {

namespace cell = composite_standard;

/// What all rows of a standard say together.
class Scale {
public:
    void add(const EventEntry& event, char kind, double position)
    {
        least_ = isEmpty_ ? position : std::min(least_, position);
        most_ = isEmpty_ ? position : std::max(most_, position);
        isEmpty_ = false;
        auto& ends = ranges_[&event];
        (kind == 'F' ? ends.first : ends.second) = position;
    }

    // A range ends above where it begins, so the pairs tell which way the scale rises.
    bool risesUpwards() const
    {
        long votes = 0;
        for (const auto& [event, ends] : ranges_)
            if (ends.first && ends.second)
                votes += (*ends.first > *ends.second) - (*ends.first < *ends.second);
        return votes > 0;
    }

    double top() const { return risesUpwards() ? most_ : least_; }
    double base() const { return risesUpwards() ? least_ : most_; }

private:
    bool isEmpty_ = true;
    double least_ = 0;
    double most_ = 0;
    std::map<const EventEntry*, std::pair<std::optional<double>, std::optional<double>>> ranges_;
};

class StandardLoader : public RowLoader {
public:
    explicit StandardLoader(ImportContext& context)
        : context_(context)
        , writer_(context.writing)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!context_.events.load()) {
            error_ = context_.events.error();
            return false;
        }
        record_ = StandardRecord();
        readStandard(cells);
        entry_ = readEvent(cells, cell::Number, cell::Name, context_);
        const auto kind = readEventKind(cells, cell::Kind);
        if (cells.number(cell::Position, &position_) == Cell::Empty)
            cells.refuse(cell::Position, "has no position");
        if (cells.report().refused())
            return true;
        kind_ = kind->kind;
        const std::string key = record_.name + '\n' + entry_->name + '\n' + kind_;
        if (const RowPlace* first = rows_.before(key, {&cells.file(), cells.line()}))
            cells.report().refuse("", "",
                "this event of the standard is in " + first->seenFrom(cells.file()) + " already");
        else if (context_.phase == ImportPhase::Checking)
            scales_[record_.name].add(*entry_, kind_, position_);
        return true;
    }

    Outcome store() override
    {
        const Scale& scale = scales_[record_.name];
        record_.top = scale.top();
        record_.base = scale.base();
        long id = 0;
        const Outcome standard = writer_.put(record_, &id);
        const Outcome outcome = standard == Outcome::Failed
            ? standard
            : writer_.putEvent(id, entry_->id, kind_, position_);
        if (outcome == Outcome::Failed)
            error_ = writer_.error();
        return outcome == Outcome::Same && standard != outcome ? Outcome::Changed : outcome;
    }

private:
    void readStandard(CellReader& cells)
    {
        if (cells.text(cell::Standard, &record_.name) != Cell::Good) {
            const std::string folder = std::filesystem::path(cells.file().set).filename().string();
            record_.name = utf8Prefix(folder, 80);
            cells.report().noteOnce(
                "", "", "a standard without a name takes that of the folder: " + record_.name);
        }
        std::string units;
        if (cells.text(cell::Units, &units) == Cell::Good)
            record_.units = units;
    }

    ImportContext& context_;
    StandardWriter writer_;
    FirstRows rows_;
    std::map<std::string, Scale> scales_;

    // The row at hand.
    StandardRecord record_;
    EventEntry* entry_ = nullptr;
    char kind_ = 0;
    double position_ = 0;
};

} // namespace

std::unique_ptr<RowLoader> makeStandardLoader(ImportContext& context)
{
    return std::make_unique<StandardLoader>(context);
}

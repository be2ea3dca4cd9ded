// app/import/EventDictionaryLoader.cpp
#include "app/import/Cells.h"
#include "app/import/EventKind.h"
#include "app/import/EventShapes.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "app/import/RowPlaces.h"
#include "app/import/TaxonName.h"
#include "util/FixedText.h"

#include <set>

namespace {

namespace cell = event_dictionary;

constexpr std::size_t kNameCapacity = 100; // bytes

/// First and last occurrence of a taxon are two rows of a file and one entry here, which is paired;
/// the common range is an entry of its own. Two rows for one kind of one name are two events that
/// only their numbers tell apart, so the number goes into the name.
class EventDictionaryLoader : public RowLoader {
public:
    explicit EventDictionaryLoader(ImportContext& context)
        : context_(context)
        , entries_(context.events)
    {
    }

    bool check(CellReader& cells) override
    {
        if (!load())
            return false;
        std::string name;
        if (cells.text(cell::Name, &name) != Cell::Good)
            cells.refuse(cell::Name, "has no name");
        const EventKind kind = readKind(cells);
        const char type = readType(cells);
        taxon_ = readTaxon(cells);
        if (cells.report().refused())
            return true;
        const RowPlace place{&cells.file(), cells.line()};
        row_ = &rows_.of(place, [&] { return decide(cells, name, kind, type); });
        if (!row_->entry)
            cells.refuse(cell::Name, "the same event stands further up already");
        else if (row_->renamed)
            cells.adjust(cell::Name,
                "another event of this name stands further up; stored as \"" + row_->entry->name
                    + '"');
        return true;
    }

    Outcome store() override
    {
        const Outcome outcome = entries_.put(*row_->entry, taxon_ ? taxon_->taxon.spec_id() : 0);
        if (outcome == Outcome::Failed)
            error_ = entries_.error();
        return outcome;
    }

private:
    struct Entry {
        EventEntry* entry = nullptr; // null: a repeated row
        bool renamed = false;
    };

    bool load()
    {
        if (!context_.dictionary.load())
            error_ = context_.dictionary.error();
        else if (!entries_.load())
            error_ = entries_.error();
        return error_.empty();
    }

    static EventKind readKind(CellReader& cells)
    {
        const std::string written(cells.raw(cell::Kind));
        if (written.empty())
            return {};
        const auto kind = eventKindOf(written);
        if (!kind)
            cells.refuse(cell::Kind, "no kind of event that is known (FO, LO, FCO, LCO, ...)");
        return kind.value_or(EventKind());
    }

    static char readType(CellReader& cells)
    {
        const std::string_view type = cells.raw(cell::Type);
        if (type.empty())
            cells.report().noteOnce(
                "", "", "events without a type are stored as paired: each has a top and a base");
        else if (type.size() > 1)
            cells.adjust(cell::Type, "a type has one letter; not taken");
        return type.size() == 1 ? type[0] : 'R';
    }

    // The taxon whose range it is; events of no taxon are events, too.
    const DictionaryTaxon* readTaxon(CellReader& cells)
    {
        std::string name;
        const bool given = cells.text(cell::Taxon, &name) == Cell::Good
            || (!cells.file().has(cell::Taxon) && cells.text(cell::Name, &name) == Cell::Good);
        if (!given)
            return nullptr;
        const auto known =
            context_.dictionary.taxa.named(storedName(name, partsOfName(name)).taxon);
        if (known.empty())
            cells.report().noteOnce(
                "", "", "names that are not in the dictionary are stored as events of no taxon");
        else if (known.size() > 1)
            cells.report().noteOnce(
                "", "", "of names that several categories have, the oldest entry is taken");
        return known.empty() ? nullptr : known.front();
    }

    Entry decide(const CellReader& cells, const std::string& name, const EventKind& kind, char type)
    {
        Entry row;
        const std::string number(cells.raw(cell::Number));
        std::string full = kind.common ? withTail(name, " (common)") : name;
        row.renamed = !met_.insert({full, kind.kind}).second;
        if (row.renamed && number.empty())
            return row;
        if (row.renamed)
            full = withTail(full, " (" + number + ')');
        row.entry = entries_.find(full);
        if (!row.entry)
            row.entry = entries_.add(full, type);
        context_.numberedEvents.give(cells.file().set, number, row.entry);
        return row;
    }

    static std::string withTail(const std::string& name, const std::string& tail)
    {
        return std::string(utf8Prefix(name, kNameCapacity - tail.size())) + tail;
    }

    ImportContext& context_;
    EventDictionaryWriter& entries_;
    Decisions<Entry> rows_;
    std::set<std::pair<std::string, char>> met_;
    const Entry* row_ = nullptr;
    const DictionaryTaxon* taxon_ = nullptr;
};

} // namespace

std::unique_ptr<RowLoader> makeEventDictionaryLoader(ImportContext& context)
{
    return std::make_unique<EventDictionaryLoader>(context);
}

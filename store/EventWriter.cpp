// store/EventWriter.cpp
#include "store/EventWriter.h"

#include "db/CurrentUser.h"
#include "db/Literals.h"
#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kEntryKey[] = {{"ev_id", Type::Integer}};
constexpr Column kEntry[] = {{"name", Type::Text}, {"spec_id", Type::Integer},
    {"ev_type", Type::Text}, {"generate", Type::Text}, {"creator", Type::Text},
    {"created", Type::Date}};
constexpr std::size_t kSpecId = 1;

constexpr Column kEventKey[] = {{"well_id", Type::Integer}, {"interp_id", Type::Integer},
    {"ev_id", Type::Integer}, {"ev_type", Type::Text}};
constexpr Column kEvent[] = {{"samp_id", Type::Integer}, {"disc_id", Type::Text},
    {"analyst", Type::Text}, {"qualifier", Type::Text}, {"comments", Type::Text},
    {"source", Type::Text}, {"company", Type::Text}, {"modified", Type::Date}};
static_assert(std::size(kEvent) == static_cast<std::size_t>(EventColumn::Count));
constexpr long kDefaultInterpretation = 0;

Value letter(char c) { return textValue(std::string(1, c)); }

} // namespace

EventDictionaryWriter::EventDictionaryWriter(Writing writing)
    : writing_(writing)
    , table_("EVENTDIC", kEntryKey, kEntry)
    , ids_("ev_id", "EVENTDIC")
{
}

Outcome EventDictionaryWriter::failed(const std::string& error)
{
    error_ = error;
    return Outcome::Failed;
}

bool EventDictionaryWriter::load()
{
    if (loaded_)
        return true;
    Statement select(
        "SELECT ev_id,name,ev_type FROM " + sql::table("EVENTDIC") + " ORDER BY ev_id");
    const auto take = [this](const std::vector<Value>& values) {
        const std::string name = textOf(values[1]);
        const std::string type = textOf(values[2]);
        entries_.try_emplace(
            name, EventEntry{integerOf(values[0]), name, type.empty() ? ' ' : type[0], true});
    };
    loaded_ = readAll(select, {Type::Integer, Type::Text, Type::Text}, take);
    if (!loaded_)
        error_ = select.sql() + ": " + select.error();
    return loaded_;
}

EventEntry* EventDictionaryWriter::find(const std::string& name)
{
    const auto found = entries_.find(shownText(storedText(name)));
    return found == entries_.end() ? nullptr : &found->second;
}

EventEntry* EventDictionaryWriter::add(const std::string& name, char type)
{
    const std::string known = shownText(storedText(name));
    return &entries_.try_emplace(known, EventEntry{0, known, type, false}).first->second;
}

Outcome EventDictionaryWriter::put(EventEntry& entry, long specId)
{
    Row row(std::size(kEntry));
    if (specId != 0)
        row[kSpecId] = Value(specId);
    const bool isKnown = entry.isStored;
    if (!isKnown) {
        const std::optional<long> id = ids_.next();
        if (!id)
            return failed(ids_.error());
        entry.id = *id;
        entry.isStored = true;
        row = {textValue(entry.name), Value(specId), letter(entry.type), letter('N'),
            textValue(currentUserAbr.view()), dateValue(Date::Today())};
    }
    const Outcome outcome = putRow(table_, writing_, {Value(entry.id)}, row);
    if (outcome == Outcome::Failed)
        return failed(table_.error());
    // Checking, the database does not have what was announced.
    return isKnown && outcome == Outcome::New ? Outcome::Same : outcome;
}

EventWriter::EventWriter(Writing writing)
    : writing_(writing)
    , table_("EVENTS", kEventKey, kEvent)
{
}

Outcome EventWriter::put(const EventRecord& record)
{
    EventRecord written;
    written.set(EventColumn::Modified, dateValue(Date::Today()));
    return putRow(table_, writing_,
        {Value(record.wellId), Value(kDefaultInterpretation), Value(record.eventId),
            letter(record.kind)},
        record.columns, {written.columns, written.columns});
}

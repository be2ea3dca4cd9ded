// store/TaxonWriter.cpp
#include "store/TaxonWriter.h"

#include "db/Literals.h"
#include "store/Rows.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <map>

namespace {

using Type = ColumnType;

// The columns of both tables are slots of the name; that table knows which.
template <int First, int Last> constexpr auto slotColumns()
{
    std::array<Column, static_cast<std::size_t>(Last - First + 1)> columns{};
    for (int number = First; number <= Last; ++number)
        columns[static_cast<std::size_t>(number - First)] = {
            slotRule(number).column.data(), Type::Text};
    return columns;
}

constexpr Column kGenusKey[] = {{"gen_id", Type::Integer}};
constexpr auto kGenus = slotColumns<slot::category, slot::postSubgenus>();

constexpr Column kSpeciesKey[] = {{"spec_id", Type::Integer}};
constexpr auto kSpeciesSlots = slotColumns<slot::preSpecies, slot::author>();
constexpr Column kFurther[] = {
    {"gen_id", Type::Integer}, {"year", Type::Integer}, {"alphaCode", Type::Text}};
constexpr std::size_t kGenId = kSpeciesSlots.size();
constexpr std::size_t kYear = kGenId + 1;
constexpr std::size_t kAlphaCode = kGenId + 2;
constexpr std::size_t kAuthor = slot::author - slot::preSpecies;
constexpr auto kSpecies = [] {
    std::array<Column, kSpeciesSlots.size() + std::size(kFurther)> columns{};
    std::ranges::copy(kSpeciesSlots, columns.begin());
    std::ranges::copy(kFurther, columns.begin() + kGenId);
    return columns;
}();

constexpr Column kCodeKey[] = {{"spec_id", Type::Integer}, {"ccode", Type::Integer}};
constexpr Column kCode[] = {{"sipm_code", Type::Integer}};
constexpr long kShownCodeSystem = 1;

constexpr Column kNotes[] = {{"notes", Type::Text}};
constexpr std::size_t kNotesCapacity = 240; // bytes

// What two spellings of a slot have in common. Whether a comma parts author and year is a matter of
// style.
std::string slotKey(const Taxon& taxon, int number)
{
    std::string key = upperCased(storedText(taxon.field(number)));
    if (number == slot::author && key.ends_with(','))
        key.pop_back();
    return key + '\n';
}

std::string keyOfSlots(const Taxon& taxon, int first, int last)
{
    std::string key;
    for (int number = first; number <= last; ++number)
        key += slotKey(taxon, number);
    return key;
}

std::string nameKey(const Taxon& taxon)
{
    return keyOfSlots(taxon, slot::preGenus, slot::postSubspecies);
}

std::string genusKey(const Taxon& taxon)
{
    return keyOfSlots(taxon, slot::category, slot::postSubgenus);
}

bool sameSlot(const Taxon& a, const Taxon& b, int number)
{
    return slotKey(a, number) == slotKey(b, number);
}

void setSlots(Row& row, const Taxon& taxon, int first, int last)
{
    for (int number = first; number <= last; ++number)
        row[static_cast<std::size_t>(number - first)] = textValue(taxon.field(number));
}

Outcome sum(Outcome a, Outcome b)
{
    if (a == Outcome::Failed || b == Outcome::Failed)
        return Outcome::Failed;
    if (a == Outcome::New)
        return a;
    return a == Outcome::Changed || b != Outcome::Same ? Outcome::Changed : Outcome::Same;
}

// Notes that others wrote stay; one without room is left out.
void addNote(std::string& notes, const std::string& note)
{
    const std::string added = shownText(storedText(note));
    const std::string between = "; ";
    const bool there =
        (between + notes + between).find(between + added + between) != std::string::npos;
    const std::string longer = notes + (notes.empty() ? "" : between) + added;
    if (!added.empty() && !there && longer.size() <= kNotesCapacity)
        notes = longer;
}

template <typename Columns>
std::string selection(const char* key, const Columns& columns, const char* table)
{
    std::string sql = std::string("SELECT ") + key;
    for (const Column& column : columns)
        sql.append(",").append(column.name);
    return sql + " FROM " + sql::table(table) + " ORDER BY " + key;
}

template <typename Columns> std::vector<Type> typesOf(const Columns& columns)
{
    std::vector<Type> types{Type::Integer};
    for (const Column& column : columns)
        types.push_back(column.type);
    return types;
}

} // namespace

TaxonWriter::TaxonWriter(Writing writing)
    : writing_(writing)
    , genera_("GENUS", kGenusKey, kGenus)
    , species_("SPECIES", kSpeciesKey, kSpecies)
    , codes_("SIPMCODE", kCodeKey, kCode)
    , notes_("TXNOTES", kSpeciesKey, kNotes)
    , genusIds_("gen_id", "GENUS")
    , speciesIds_("spec_id", "SPECIES")
{
}

bool TaxonWriter::failed(const std::string& error)
{
    error_ = error;
    return false;
}

Outcome TaxonWriter::checked(const TableWriter& table, Outcome outcome)
{
    if (outcome == Outcome::Failed)
        failed(table.error());
    return outcome;
}

bool TaxonWriter::load()
{
    loaded_ = loaded_ || (loadGenera() && loadSpecies());
    genusRows_.clear();
    return loaded_;
}

bool TaxonWriter::loadGenera()
{
    Statement select(selection("gen_id", kGenus, "GENUS"));
    const bool good = readAll(select, typesOf(kGenus), [this](const std::vector<Value>& values) {
        Taxon& genus = genusRows_[integerOf(values[0])];
        genus.gen_id = integerOf(values[0]);
        for (int number = slot::category; number <= slot::postSubgenus; ++number)
            genus.setField(
                number, std::string_view(textOf(values[static_cast<std::size_t>(number) + 1])));
        generaByName_.try_emplace(genusKey(genus), genus);
    });
    return good || failed(select.sql() + ": " + select.error());
}

bool TaxonWriter::loadSpecies()
{
    Statement select(selection("spec_id", kSpecies, "SPECIES"));
    const bool good = readAll(select, typesOf(kSpecies), [this](const std::vector<Value>& values) {
        Taxon taxon = genusRows_[integerOf(values[kGenId + 1])];
        taxon.setSpecId(integerOf(values[0]));
        for (int number = slot::preSpecies; number <= slot::author; ++number) {
            const auto column = static_cast<std::size_t>(number - slot::preSpecies) + 1;
            taxon.setField(number, std::string_view(textOf(values[column])));
        }
        taxon.year = static_cast<short>(integerOf(values[kYear + 1]));
        taxon.alphaCode = textOf(values[kAlphaCode + 1]);
        enter(taxon);
    });
    return good || failed(select.sql() + ": " + select.error());
}

DictionaryTaxon& TaxonWriter::enter(const Taxon& taxon)
{
    DictionaryTaxon& entry = taxa_.emplace_back(DictionaryTaxon{taxon});
    byName_[nameKey(taxon)].push_back(&entry);
    return entry;
}

std::vector<DictionaryTaxon*> TaxonWriter::named(const Taxon& name) const
{
    const auto known = byName_.find(nameKey(name));
    return known == byName_.end() ? std::vector<DictionaryTaxon*>() : known->second;
}

DictionaryTaxon* TaxonWriter::find(const Taxon& name) const
{
    DictionaryTaxon* otherwise = nullptr;
    for (DictionaryTaxon* entry : named(name)) {
        if (!sameSlot(entry->taxon, name, slot::category))
            continue;
        if (sameSlot(entry->taxon, name, slot::author))
            return entry;
        if (!otherwise && (!name.has(slot::author) || !entry->taxon.has(slot::author)))
            otherwise = entry;
    }
    return otherwise;
}

std::optional<std::string> TaxonWriter::categoryOfGenus(const Taxon& name) const
{
    std::map<std::string, int> names;
    for (const DictionaryTaxon& entry : taxa_)
        if (sameSlot(entry.taxon, name, slot::genus))
            ++names[entry.taxon.category()];
    const auto most =
        std::ranges::max_element(names, {}, [](const auto& count) { return count.second; });
    return most == names.end() ? std::nullopt : std::optional(most->first);
}

DictionaryTaxon& TaxonWriter::add(const Taxon& name)
{
    const Taxon& genus = generaByName_.try_emplace(genusKey(name), name).first->second;
    Taxon taxon = name;
    for (int number = slot::category; number <= slot::postSubgenus; ++number)
        taxon.setField(number, genus.field(number));
    taxon.setSpecId(0);
    taxon.gen_id = 0;
    return enter(taxon);
}

bool TaxonWriter::ensureGenus(Taxon& taxon)
{
    Taxon& genus = generaByName_[genusKey(taxon)];
    if (genus.gen_id == 0) {
        const std::optional<long> id = genusIds_.next();
        if (!id)
            return failed(genusIds_.error());
        Row row(kGenus.size());
        setSlots(row, taxon, slot::category, slot::postSubgenus);
        if (isWriting() && !genera_.insert({Value(*id)}, row))
            return failed(genera_.error());
        genus.gen_id = *id;
    }
    taxon.gen_id = genus.gen_id;
    return true;
}

bool TaxonWriter::insert(DictionaryTaxon& entry)
{
    if (!ensureGenus(entry.taxon))
        return false;
    const std::optional<long> id = speciesIds_.next();
    if (!id)
        return failed(speciesIds_.error());
    Row row(kSpecies.size());
    setSlots(row, entry.taxon, slot::preSpecies, slot::author);
    row[kGenId] = entry.taxon.gen_id;
    row[kYear] = entry.taxon.year == 0 ? Value() : Value(static_cast<long>(entry.taxon.year));
    row[kAlphaCode] = textValue(entry.taxon.alphaCode);
    if (isWriting() && !species_.insert({Value(*id)}, row))
        return failed(species_.error());
    entry.taxon.setSpecId(*id);
    return true;
}

Outcome TaxonWriter::update(DictionaryTaxon& entry, const TaxonDetails& details)
{
    Row stored(kSpecies.size()), given(kSpecies.size());
    stored[kAuthor] = textValue(entry.taxon.author());
    stored[kYear] = Value(static_cast<long>(entry.taxon.year));
    stored[kAlphaCode] = textValue(entry.taxon.alphaCode);
    if (!details.author.empty())
        given[kAuthor] = textValue(details.author);
    if (details.year != 0)
        given[kYear] = Value(static_cast<long>(details.year));
    if (!details.alphaCode.empty())
        given[kAlphaCode] = textValue(details.alphaCode);
    const Row changes = species_.differences(stored, given);
    if (isEmpty(changes))
        return Outcome::Same;
    if (isWriting() && !species_.update({Value(entry.taxon.spec_id())}, changes))
        return checked(species_, Outcome::Failed);
    if (changes[kAuthor])
        entry.taxon.setField(slot::author, std::string_view(details.author));
    if (changes[kYear])
        entry.taxon.year = details.year;
    if (changes[kAlphaCode])
        entry.taxon.alphaCode = details.alphaCode;
    return Outcome::Changed;
}

Outcome TaxonWriter::put(DictionaryTaxon& entry, const TaxonDetails& details)
{
    Outcome outcome = Outcome::Same;
    if (!entry.isStored()) {
        entry.taxon.year = details.year;
        entry.taxon.alphaCode = details.alphaCode;
        outcome = insert(entry) ? Outcome::New : Outcome::Failed;
    } else {
        outcome = update(entry, details);
    }
    if (outcome == Outcome::Failed)
        return outcome;
    const long specId = entry.taxon.spec_id();
    return sum(sum(outcome, putCode(specId, details)), putNotes(specId, details));
}

Outcome TaxonWriter::putCode(long specId, const TaxonDetails& details)
{
    if (!details.code)
        return Outcome::Same;
    return checked(codes_,
        putRow(codes_, writing_, {Value(specId), Value(kShownCodeSystem)}, {Value(*details.code)}));
}

Outcome TaxonWriter::putNotes(long specId, const TaxonDetails& details)
{
    if (details.notes.empty())
        return Outcome::Same;
    Row stored;
    const std::vector<Value> key{Value(specId)};
    const TableWriter::Found found = notes_.find(key, &stored);
    if (found == TableWriter::Found::Failed)
        return checked(notes_, Outcome::Failed);
    std::string text = found == TableWriter::Found::Yes ? textOf(*stored[0]) : std::string();
    for (const std::string& note : details.notes)
        addNote(text, note);
    return checked(notes_, putRow(notes_, writing_, key, {textValue(text)}));
}

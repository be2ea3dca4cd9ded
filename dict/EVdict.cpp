// dict/EVdict.cpp
#include "dict/EVdict.h"

#include "db/Literals.h"
#include "db/Lookups.h"
#include "dict/FirstRow.h"
#include "taxonomy/Taxon.h"
#include "taxonomy/TextArgument.h"

#include <string>

namespace {

std::string select(const char* columns)
{
    return std::string("SELECT ") + columns + " FROM " + sql::table("EVENTDIC") + " WHERE ";
}

std::string whereEntry(long ev_id) { return " WHERE ev_id=" + sql::integer(ev_id); }

std::string whereTaxonAndType(const EVdict& entry)
{
    return "spec_id=" + sql::integer(entry.spec_id)
        + " AND ev_type=" + sql::quoteChar(entry.ev_type);
}

std::string deleteFrom(const char* table, long ev_id)
{
    return "DELETE FROM " + sql::table(table) + whereEntry(ev_id);
}

void takeMaker(EVdict& entry, const Cursor& row, short first)
{
    entry.creator = row.text(first);
    const auto created = static_cast<short>(first + 1); // columns are read in order
    entry.created = sql::parsedDate(row.text(created).c_str());
}

std::string taxonName(Taxon& taxon) { return taxon.displayName(0, 0, 0, 1); }

void copyOut(char* out, const std::string& text)
{
    out[text.copy(out, EVdict::kTextRoom - 1)] = '\0';
}

} // namespace

EVdict::~EVdict() = default;

EVdict::EVdict(long ev_id)
    : ev_id_(ev_id)
{
    takeFirstRow(select("spec_id, ev_type, generate, name, creator, created")
            + "ev_id=" + sql::integer(ev_id),
        Fatal::Yes, [this](const Cursor& row) {
            spec_id = row.integer(1);
            ev_type = row.letter(2);
            generate = row.letter(3);
            name_ = row.text(4);
            takeMaker(*this, row, 5);
        });
}

EVdict::EVdict(const char* name)
    : name_(name)
{
    readByName();
}

EVdict::EVdict(const char* name, Taxon* taxon, char type, char flag)
    : ev_type(type)
    , name_(name)
{
    takeTaxon(taxon);
    if (readByName() == FirstRow::Failed)
        return;
    if (ev_id_ == 0)
        reportError("Event dictionary with id=0");
    setGenerate(flag);
}

EVdict::EVdict(const char* oldName, const char* newName, Taxon* taxon, char type, char flag)
    : name_(oldName)
{
    takeTaxon(taxon);
    readByName();
    name_ = newName;
    if (ev_id_ == 0)
        return;
    if (rewrite(taxon, type))
        setGenerate(flag);
}

EVdict::EVdict(long specId, char type, char flag)
    : spec_id(specId)
    , ev_type(type)
    , generate(flag)
{
    Taxon taxon(specId);
    const FirstRow generated = readAsGenerated();
    if (generated != FirstRow::None)
        return;
    name_ = taxonName(taxon);
    const FirstRow named = readAsNamed();
    if (named == FirstRow::Taken)
        setGenerate(flag);
    else if (named == FirstRow::None)
        reportError("Attempt to add event");
}

void EVdict::takeTaxon(Taxon* taxon)
{
    taxon_ = taxon;
    if (taxon)
        spec_id = taxon->spec_id();
}

FirstRow EVdict::readByName()
{
    ev_id_ = 0;
    std::string sql = select("ev_id, spec_id, creator, created, ev_type, generate")
        + "name=" + sql::quote(name_.view());
    if (ev_type != ' ')
        sql += " AND ev_type=" + sql::quoteChar(ev_type);
    return takeFirstRow(sql, Fatal::Yes, [this](const Cursor& row) {
        ev_id_ = row.integer(1);
        spec_id = row.integer(2);
        takeMaker(*this, row, 3);
        ev_type = row.letter(5);
        generate = row.letter(6);
    });
}

FirstRow EVdict::readAsGenerated()
{
    const std::string sql = select("ev_id, name, creator, created, generate")
        + whereTaxonAndType(*this) + " AND generate=" + sql::quoteChar(generate);
    return takeFirstRow(sql, Fatal::Yes, [this](const Cursor& row) {
        ev_id_ = row.integer(1);
        name_ = row.text(2);
        takeMaker(*this, row, 3);
        generate = row.letter(5);
    });
}

FirstRow EVdict::readAsNamed()
{
    const std::string sql = select("ev_id, creator, created") + whereTaxonAndType(*this)
        + " AND name=" + sql::quote(name_.view());
    return takeFirstRow(sql, Fatal::Yes, [this](const Cursor& row) {
        ev_id_ = row.integer(1);
        takeMaker(*this, row, 2);
    });
}

bool EVdict::rewrite(const Taxon* taxon, char type)
{
    std::string sql = "UPDATE " + sql::table("EVENTDIC") + " SET name=" + sql::quote(name_.view());
    if (type != ev_type) {
        sql += ",ev_type=" + sql::quoteChar(type);
        ev_type = type;
    }
    if (taxon && taxon->spec_id() != spec_id) {
        sql += ",spec_id=" + sql::integer(taxon->spec_id());
        spec_id = taxon->spec_id();
    }
    return runOrReport(sql + whereEntry(ev_id_), Fatal::Yes);
}

void EVdict::findByName()
{
    readByName();
    ++changes_;
}

int EVdict::setGenerate(char flag)
{
    if (flag == generate)
        return 0;
    if (flag == 'Y') {
        const std::string another = select("generate") + "spec_id=" + sql::integer(spec_id)
            + " AND ev_type='R' AND name <>" + sql::quote(name_.view()) + " AND generate='Y'";
        if (takeFirstRow(another, Fatal::Yes, [](const Cursor&) {}) != FirstRow::None)
            return 1;
    }
    generate = flag;
    runOrReport("UPDATE " + sql::table("EVENTDIC") + " SET generate=" + sql::quoteChar(flag)
            + whereEntry(ev_id_),
        Fatal::Yes);
    return 0;
}

void EVdict::rename(const char* newName)
{
    const FixedText<100> taken(newName);
    if (!runOrReport("UPDATE " + sql::table("EVENTDIC") + " SET name=" + sql::quote(taken.view())
                + whereEntry(ev_id_),
            Fatal::Yes))
        return;
    name_ = taken;
    ++changes_;
}

void EVdict::deleteEvent()
{
    if (runOrReport(deleteFrom("EVENTDIC", ev_id_), Fatal::Yes))
        runOrReport(deleteFrom("EVENTS", ev_id_), Fatal::Yes);
}

std::string EVdict::nameOfTaxon()
{
    if (spec_id == 0)
        return "(No taxon)";
    if (!taxon_) {
        ownTaxon_ = std::make_unique<Taxon>(spec_id);
        taxon_ = ownTaxon_.get();
    }
    return taxonName(*taxon_);
}

void EVdict::taxonText(char* out) { copyOut(out, nameOfTaxon()); }

void EVdict::describe(char* out)
{
    copyOut(out,
        name_.str() + ":   " + nameOfTaxon() + "  " + (ev_type == 'R' ? "(paired)" : "(single)"));
}

const char* EVdict::categoryText()
{
    if (category_.empty())
        category_ = spec_id != 0 ? speciesCategory(spec_id) : "EV";
    return category_;
}

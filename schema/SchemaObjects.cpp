// schema/SchemaObjects.cpp
#include "schema/SchemaObjects.h"

#include "schema/Schema.h"

#include <algorithm>

namespace {

constexpr const char* kBlanks = " \t\n";
constexpr std::string_view kKinds[] = {"TABLE", "INDEX", "VIEW", "TRIGGER"};
constexpr std::string_view kConstraints[] = {"PRIMARY", "UNIQUE", "CHECK", "FOREIGN", "CONSTRAINT"};

/// Takes the first word off the front.
std::string_view takeWord(std::string_view* text)
{
    text->remove_prefix(std::min(text->find_first_not_of(kBlanks), text->size()));
    const std::size_t end = std::min(text->find_first_of(" \t\n(,)"), text->size());
    const std::string_view word = text->substr(0, end);
    text->remove_prefix(end);
    return word;
}

std::string withoutComments(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, 2) == "--")
            i = std::min(text.find('\n', i), text.size() - 1);
        plain += text[i];
    }
    return plain;
}

std::string withoutQuotes(std::string_view name)
{
    return std::string(name.starts_with('"') ? name.substr(1, name.size() - 2) : name);
}

// What begins each part between commas, save those in parentheses of their own.
std::vector<std::string> columnsOf(std::string_view body)
{
    const std::string text = withoutComments(body);
    std::vector<std::string> columns;
    int depth = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        depth += text[i] == '(' ? 1 : text[i] == ')' ? -1 : 0;
        if (depth != 1 || (text[i] != '(' && text[i] != ','))
            continue;
        std::string_view rest = std::string_view(text).substr(i + 1);
        const std::string_view word = takeWord(&rest);
        if (std::ranges::find(kConstraints, word) == std::end(kConstraints))
            columns.push_back(withoutQuotes(word));
    }
    return columns;
}

std::vector<SchemaObject> readObjects()
{
    std::vector<SchemaObject> objects;
    for (const std::string_view statement : schemaStatements()) {
        std::string_view rest = statement;
        if (takeWord(&rest) != "CREATE")
            continue;
        const auto kind = std::ranges::find(kKinds, takeWord(&rest));
        if (kind == std::end(kKinds))
            continue;
        const std::string name(takeWord(&rest));
        objects.push_back({*kind, name,
            *kind == "TABLE" ? columnsOf(rest) : std::vector<std::string>(), statement});
    }
    return objects;
}

constexpr Relation kRelations[] = {
    {"PREF_USER", "user_id", "USERDEF", "user_id"},
    {"WELL_IDENT", "well_code", "WELLS", "well_code"},
    {"WELLTVD", "well_id", "WELL_IDENT", "well_id"},
    {"CORES", "well_id", "WELL_IDENT", "well_id"},
    {"CORESHIFT", "well_id", "WELL_IDENT", "well_id"},
    {"SAMPLES", "well_id", "WELL_IDENT", "well_id"},
    {"ZRSLITH", "well_id", "WELL_IDENT", "well_id"},
    {"ZRSLITH", "samp_id", "SAMPLES", "samp_id"},
    {"ZRSLITH", "lith_id", "LITHDESC", "lith_id"},
    {"ZRSSR", "well_id", "WELL_IDENT", "well_id"},
    {"ZRSSR", "samp_id", "SAMPLES", "samp_id"},
    {"ANALY_HDR", "well_id", "WELL_IDENT", "well_id"},
    {"ANALY_HDR", "disc_id", "DISCS", "disc_id"},
    {"ANALY_HDR", "analyst", "USERDEF", "user_id"},
    {"ANALY_HDR", "abnsch_id", "ABNSCHME", "scheme_id"},
    {"SMPDTL", "well_id", "WELL_IDENT", "well_id"},
    {"SMPDTL", "samp_id", "SAMPLES", "samp_id"},
    {"SMPDTL", "well_id, analy_id", "ANALY_HDR", "well_id, analy_id"},
    {"TAXONOCC", "well_id", "WELL_IDENT", "well_id"},
    {"TAXONOCC", "samp_id", "SAMPLES", "samp_id"},
    {"TAXONOCC", "spec_id", "SPECIES", "spec_id"},
    {"TAXONOCC", "well_id, analy_id", "ANALY_HDR", "well_id, analy_id"},
    {"BCMMNTS", "usamp_id", "SAMPLES", "samp_id"},
    {"BCMMNTS", "disc_id", "DISCS", "disc_id"},
    {"GENUS", "cat_mnem", "CATEGORY", "cat_mnem"},
    {"SPECIES", "gen_id", "GENUS", "gen_id"},
    {"SYNONYMY", "spec_id", "SPECIES", "spec_id"},
    {"SYNONYMY", "pref", "SPECIES", "spec_id"},
    {"SYNONYMY", "sch_id", "SYNSCH", "sch_id"},
    {"SIPMCODE", "spec_id", "SPECIES", "spec_id"},
    {"SIPMCODE", "ccode", "SIPMDICT", "ccode"},
    {"TXREFS", "spec_id", "SPECIES", "spec_id"},
    {"TXNOTES", "spec_id", "SPECIES", "spec_id"},
    {"CATEGORY", "disc_id", "DISCS", "disc_id"},
    {"IGD_DICT", "sch_id", "IGD_SCH", "sch_id"},
    {"ZRLTHMBR", "lthsch_id", "ZRLTHSCH", "lthsch_id"},
    {"ZRLTHMBR", "lith_id", "LITHDESC", "lith_id"},
    {"ENVSCHMBR", "envsch_id", "ENV_SCH", "envsch_id"},
    {"SURFACE", "sch_id", "IGD_SCH", "sch_id"},
    {"EVENTDIC", "spec_id", "SPECIES", "spec_id"},
    {"CMPSTDEV", "std_id", "CMPSTD", "std_id"},
    {"CMPSTDEV", "ev_id", "EVENTDIC", "ev_id"},
    {"ABNSCHMBR", "scheme_id", "ABNSCHME", "scheme_id"},
    {"IGD", "well_id", "WELL_IDENT", "well_id"},
    {"IGD", "top_id", "SAMPLES", "samp_id"},
    {"IGD", "base_id", "SAMPLES", "samp_id"},
    {"IGD", "sch_id", "IGD_SCH", "sch_id"},
    {"IGD", "upp_zone", "IGD_DICT", "igd_id"},
    {"IGD", "low_zone", "IGD_DICT", "igd_id"},
    {"ZRILITH", "well_id", "WELL_IDENT", "well_id"},
    {"ZRILITH", "lith_id", "LITHDESC", "lith_id"},
    {"ZRQLITH", "well_id", "WELL_IDENT", "well_id"},
    {"ZRQLITH", "lith_id", "LITHDESC", "lith_id"},
    {"ZRLITHO", "top_id", "SAMPLES", "samp_id"},
    {"ZRLITHO", "base_id", "SAMPLES", "samp_id"},
    {"IGD_ENV", "well_id", "WELL_IDENT", "well_id"},
    {"IGD_ENV", "top_id", "SAMPLES", "samp_id"},
    {"IGD_ENV", "base_id", "SAMPLES", "samp_id"},
    {"IGD_ENV", "envsch_id", "ENV_SCH", "envsch_id"},
    {"CASING", "well_id", "WELL_IDENT", "well_id"},
    {"WELLSMARK", "well_id", "WELL_IDENT", "well_id"},
    {"SQPICK", "well_id", "WELL_IDENT", "well_id"},
    {"SQPICK", "samp_id", "SAMPLES", "samp_id"},
    {"SQPICK", "surface_id", "SURFACE", "surface_id"},
    {"INTCMMNTS", "well_id", "WELL_IDENT", "well_id"},
    {"EVENTS", "ev_id", "EVENTDIC", "ev_id"},
    {"EVENTS", "well_id", "WELL_IDENT", "well_id"},
    {"EVENTS", "samp_id", "SAMPLES", "samp_id"},
    {"EVENTS", "disc_id", "DISCS", "disc_id"},
};

} // namespace

std::span<const SchemaObject> schemaObjects()
{
    static const std::vector<SchemaObject> objects = readObjects();
    return objects;
}

std::span<const Relation> relations() { return kRelations; }

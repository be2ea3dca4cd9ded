// app/tables/TableFiles.cpp
#include "app/tables/TableFile.h"

#include "util/TextUtil.h"

#include <algorithm>

namespace {

using Kind = FieldKind;
using Scope = TableScope;

// How the columns below are written. The name in the file is that of the column in small letters;
// where it is not, it stands in front.
constexpr TableField text(const char* name) { return {name, Kind::Text, name}; }
constexpr TableField whole(const char* name) { return {name, Kind::Whole, name}; }
constexpr TableField number(const char* name) { return {name, Kind::Number, name}; }
constexpr TableField date(const char* name) { return {name, Kind::Date, name}; }
constexpr TableField own(const char* name) { return {name, Kind::Own, name}; }
constexpr TableField to(std::string_view table, const char* name)
{
    return {name, Kind::Reference, name, table};
}
constexpr TableField key(TableField field)
{
    field.isKey = true;
    return field;
}
constexpr TableField twin(TableField field, const char* other)
{
    field.twin = other;
    return field;
}
constexpr TableField column(TableField field, const char* other)
{
    field.column = other;
    return field;
}
// Depths say their unit, as other files of those names have them in that of the well.
constexpr TableField metres(std::string_view name, const char* other)
{
    return {name, Kind::Number, other};
}
constexpr TableField well() { return {"well_code", Kind::Reference, "well_id", "WELL_IDENT"}; }
constexpr TableField keyWell() { return key(well()); }
constexpr TableField sample(const char* name = "samp_id") { return to("SAMPLES", name); }
constexpr TableField taxon() { return to("SPECIES", "spec_id"); }
constexpr TableField analysis() { return to("ANALY_HDR", "analy_id"); }
constexpr TableField rock() { return to("LITHDESC", "lith_id"); }

// --- Users and their settings ---

constexpr TableField kUsers[] = {own("user_id"), key(text("abr"))};
constexpr TableField kPreferences[] = {
    key(to("USERDEF", "user_id")), key(text("pref_key")), text("pref_value")};
constexpr ShownField kPreferencesShown[] = {{"abr", 0}};

// --- Taxonomy ---

constexpr TableField kDisciplines[] = {
    key(text("disc_id")), text("disc_name"), text("disc_abr"), text("disc_adj")};
constexpr TableField kCategories[] = {key(text("cat_mnem")), text("cat_name"), text("disc_id")};
constexpr TableField kGroups[] = {key(text("name"))};
constexpr TableField kGroupSets[] = {own("grpset_id"), key(text("name"))};
constexpr TableField kGenera[] = {own("gen_id"), key(text("cat_mnem")), key(text("q1")),
    key(text("genus")), key(text("q2")), key(text("q3")), key(text("sub_genus")), key(text("q4"))};
constexpr TableField kSpecies[] = {own("spec_id"), key(to("GENUS", "gen_id")), key(text("q1")),
    key(text("species")), key(text("q2")), key(text("q3")), key(text("sub_spec")), key(text("q4")),
    key(text("author")), whole("year"), column(text("alphacode"), "alphaCode")};
constexpr TableField kSynonymSchemes[] = {own("sch_id"), key(text("name"))};
constexpr TableField kSynonyms[] = {
    key(taxon()), key(to("SYNSCH", "sch_id")), to("SPECIES", "pref")};
constexpr ShownField kSynonymsShown[] = {{"taxon", 0}, {"preferred_taxon", 2}};
constexpr TableField kCodeSystems[] = {key(whole("ccode")), twin(text("text"), "txt")};
constexpr TableField kCodes[] = {key(taxon()), key(whole("ccode")), whole("sipm_code")};
constexpr TableField kTaxonReferences[] = {key(taxon()), text("references")};
constexpr TableField kTaxonNotes[] = {key(taxon()), text("notes")};
constexpr ShownField kTaxonShown[] = {{"taxon", 0}};

// --- Dictionaries ---

constexpr TableField kSchemes[] = {
    own("sch_id"), key(text("name")), key(whole("igd_type")), date("created"), text("creator")};
constexpr TableField kTerms[] = {own("igd_id"), key(to("IGD_SCH", "sch_id")),
    key(whole("igd_type")), key(whole("hier")), key(text("name")), text("abr"), number("u_age"),
    number("l_age"), whole("red"), whole("green"), whole("blue"), date("created"), text("creator")};
constexpr ShownField kTermsShown[] = {{"scheme", 1}};
constexpr TableField kSurfaces[] = {own("surface_id"), key(to("IGD_SCH", "sch_id")),
    key(text("name")), number("age"), whole("type")};
constexpr ShownField kSurfacesShown[] = {{"scheme", 1}};
constexpr TableField kRocks[] = {twin(own("lith_id"), "lithcode"),
    key(twin(text("descr"), "lithdescr")), twin(text("abr"), "lithabr"), text("cmp")};
constexpr TableField kRockSchemes[] = {own("lthsch_id"), key(text("descr"))};
constexpr TableField kRockMembers[] = {
    key(to("ZRLTHSCH", "lthsch_id")), key(rock()), whole("sort_order")};
constexpr ShownField kRockMembersShown[] = {{"lithology", 1}};
constexpr TableField kEnvironments[] = {own("envsch_id"), key(text("name"))};
constexpr TableField kEnvironmentTerms[] = {key(to("ENV_SCH", "envsch_id")), key(whole("term_no")),
    text("term"), whole("red"), whole("green"), whole("blue")};
constexpr ShownField kEnvironmentTermsShown[] = {{"scheme", 0}};
constexpr TableField kEventEntries[] = {own("ev_id"), key(taxon()), key(text("ev_type")),
    key(text("name")), text("generate"), text("creator"), date("created")};
constexpr ShownField kEventEntriesShown[] = {{"taxon", 1}};
constexpr TableField kStandards[] = {own("std_id"), key(text("name")), text("creator"),
    date("created"), number("topcsu"), number("basecsu"), text("units")};
constexpr TableField kStandardEvents[] = {
    key(to("CMPSTD", "std_id")), key(to("EVENTDIC", "ev_id")), key(text("ev_type")), number("csu")};
constexpr ShownField kStandardEventsShown[] = {{"event", 1}};
constexpr TableField kLadders[] = {own("scheme_id"), key(text("name"))};
constexpr TableField kLadderLevels[] = {key(to("ABNSCHME", "scheme_id")), key(whole("entry_no")),
    text("entry_name"), text("abr"), whole("min"), whole("output_val")};
constexpr ShownField kLadderLevelsShown[] = {{"scheme", 0}};

// --- Wells ---

constexpr TableField kWells[] = {key(text("well_code")), text("well_name"), text("operator"),
    text("country"), text("county"), text("ocs"), text("field"), whole("grid_x"), whole("grid_y"),
    number("lat_dec"), number("long_dec"), column(text("geodatum"), "geoDatum"), date("spud_date"),
    date("comp_date"), number("td"), number("sl"), number("sb"), number("rte"), number("kicko"),
    whole("datum"), text("type"), text("units")};
constexpr TableField kWellNumbers[] = {own("well_id"), key(text("well_code")), text("descrip")};
constexpr TableField kMaster[] = {key(text("well_code")), text("well_name"), text("operator"),
    text("country"), text("county"), text("ocs"), text("field"), whole("grid_x"), whole("grid_y"),
    date("spud_date"), date("comp_date"), number("lat_dec"), number("long_dec"), number("td"),
    number("sl"), number("sb"), number("rte"), number("kicko"), whole("datum"), text("type"),
    text("units"), text("geodatum")};
constexpr TableField kSurvey[] = {
    well(), metres("ddepth_m", "ddepth"), metres("tvdepth_m", "tvdepth")};
constexpr TableField kCores[] = {well(), metres("top_depth_m", "top_depth"),
    metres("base_depth_m", "base_depth"), text("corenum"), text("recovered")};
constexpr TableField kCoreShifts[] = {
    well(), metres("depth_m", "depth"), metres("shift_m", "shift")};

// --- Samples and their analyses ---

constexpr TableField kSamples[] = {own("samp_id"), keyWell(),
    key(twin(metres("top_depth_m", "top_depth"), "depth")),
    key(twin(metres("base_depth_m", "base_depth"), "bot_depth")), key(text("type")),
    key(text("label")), whole("grid_x"), whole("grid_y"), date("created"), date("modified"),
    text("creator"), text("modifier")};
constexpr TableField kSampleRocks[] = {
    keyWell(), key(sample()), key(rock()), twin(whole("percent"), "percnt")};
constexpr ShownField kSampleRocksShown[] = {{"sample_depth_m", 1}, {"lithology", 2}};
constexpr TableField kAgeRatios[] = {keyWell(), key(sample()), key(whole("interp_id")),
    number("ratio"), number("age"), number("age_below"), number("ageplus"), number("ageminus")};
constexpr ShownField kSampleShown[] = {{"sample_depth_m", 1}};
constexpr TableField kAnalyses[] = {keyWell(), own("analy_id"), key(text("disc_id")),
    key(to("USERDEF", "analyst")), key(whole("analy_no")), whole("red"), whole("green"),
    whole("blue"), to("ABNSCHME", "abnsch_id")};
constexpr ShownField kAnalysesShown[] = {{"analyst_abr", 3}, {"abundance_scheme", 8}};
constexpr TableField kDetails[] = {well(), key(sample()), key(analysis()), text("disc_id"),
    text("analyst"), text("picker"), text("source"), text("barren"), date("modified"),
    text("modifier"), number("weight"), number("coarse"), number("medium"), number("fine"),
    text("notes"), whole("proximal"), whole("distal")};
constexpr TableField kOccurrences[] = {well(), sample(), taxon(), analysis(), text("disc_id"),
    text("status"), text("ident_type"), text("abund"), text("caved"), text("marker"),
    whole("medium"), whole("coarse"), whole("fine"), whole("spec_type_id"), text("preserv"),
    text("colour"), text("comments")};
constexpr ShownField kOccurrencesShown[] = {{"sample_depth_m", 1}, {"taxon", 2}};
constexpr TableField kSampleComments[] = {
    sample("usamp_id"), whole("interp_id"), text("disc_id"), text("analyst"), text("comments")};
constexpr ShownField kSampleCommentsShown[] = {{"sample_depth_m", 0}};

// --- Interpretations ---

constexpr TableField kZones[] = {well(), whole("igd_type"), whole("interp_id"), whole("hier"),
    sample("top_id"), sample("base_id"), to("IGD_SCH", "sch_id"), to("IGD_DICT", "upp_zone"),
    to("IGD_DICT", "low_zone"), text("upp_inf"), text("low_inf"), text("sep"), text("q_uzone"),
    text("q_lzone"), whole("top_bnd"), whole("base_bnd"), text("top_analy"), text("base_analy"),
    date("modified"), text("modifier")};
constexpr ShownField kZonesShown[] = {{"top_sample_depth_m", 4}, {"base_sample_depth_m", 5},
    {"scheme", 6}, {"upper_term", 7}, {"lower_term", 8}};
constexpr TableField kRockIntervals[] = {
    well(), metres("top_depth_m", "top_depth"), metres("base_depth_m", "base_depth"), rock()};
constexpr ShownField kRockIntervalsShown[] = {{"lithology", 3}};
constexpr TableField kRockQualifiers[] = {well(), metres("top_depth_m", "top_depth"),
    metres("base_depth_m", "base_depth"), rock(), text("type"), text("alignment"),
    number("plotpos"), text("txt")};
constexpr TableField kRockCodes[] = {sample("top_id"), sample("base_id"), whole("lithcode")};
constexpr ShownField kRockCodesShown[] = {{"top_sample_depth_m", 0}, {"base_sample_depth_m", 1}};
constexpr TableField kEnvironmentIntervals[] = {well(), whole("interp_id"), sample("top_id"),
    sample("base_id"), whole("up"), whole("ud"), whole("lp"), whole("ld"), whole("qual"),
    to("ENV_SCH", "envsch_id"), date("modified"), text("modifier")};
constexpr ShownField kEnvironmentIntervalsShown[] = {
    {"top_sample_depth_m", 2}, {"base_sample_depth_m", 3}, {"scheme", 9}};
constexpr TableField kCasing[] = {well(), metres("depth_m", "depth"), text("diam")};
constexpr TableField kMarkers[] = {well(), metres("depth_m", "depth"), text("colour")};
constexpr TableField kPicks[] = {well(), whole("interp_id"), sample(), to("SURFACE", "surface_id"),
    text("inf"), whole("bnd"), text("qualifier")};
constexpr ShownField kPicksShown[] = {{"sample_depth_m", 2}, {"surface", 3}};
constexpr TableField kIntervalComments[] = {well(), whole("interp_id"),
    metres("top_depth_m", "top_depth"), metres("base_depth_m", "base_depth"), text("comments")};
constexpr TableField kEvents[] = {well(), to("EVENTDIC", "ev_id"), whole("interp_id"),
    text("ev_type"), sample(), text("disc_id"), text("analyst"), text("qualifier"),
    text("comments"), text("source"), text("company"), date("modified")};
constexpr ShownField kEventsShown[] = {{"event", 1}, {"sample_depth_m", 4}};

constexpr auto None = KeyUse::None;
constexpr auto Natural = KeyUse::Natural;
constexpr auto Unique = KeyUse::Unique;

constexpr TableFile kTables[] = {
    {"USERDEF", Scope::Dictionary, Natural, kUsers, {}, "abr"},
    {"PREF_USER", Scope::Dictionary, Unique, kPreferences, kPreferencesShown},
    {"DISCS", Scope::Dictionary, Unique, kDisciplines},
    {"CATEGORY", Scope::Dictionary, Unique, kCategories},
    {"txgroup", Scope::Dictionary, Unique, kGroups},
    {"groupset", Scope::Dictionary, Natural, kGroupSets},
    {"GENUS", Scope::Dictionary, Natural, kGenera, {}, "genus"},
    {"SPECIES", Scope::Dictionary, Natural, kSpecies, {}, "species"},
    {"SYNSCH", Scope::Dictionary, Natural, kSynonymSchemes},
    {"SYNONYMY", Scope::Dictionary, Unique, kSynonyms, kSynonymsShown},
    {"SIPMDICT", Scope::Dictionary, Unique, kCodeSystems},
    {"SIPMCODE", Scope::Dictionary, Unique, kCodes, kTaxonShown},
    {"TXREFS", Scope::Dictionary, Unique, kTaxonReferences, kTaxonShown},
    {"TXNOTES", Scope::Dictionary, Unique, kTaxonNotes, kTaxonShown},
    {"IGD_SCH", Scope::Dictionary, Natural, kSchemes, {}, "name"},
    {"IGD_DICT", Scope::Dictionary, Natural, kTerms, kTermsShown, "name"},
    {"SURFACE", Scope::Dictionary, Natural, kSurfaces, kSurfacesShown, "name"},
    {"LITHDESC", Scope::Dictionary, Natural, kRocks, {}, "descr", false, true},
    {"ZRLTHSCH", Scope::Dictionary, Natural, kRockSchemes},
    {"ZRLTHMBR", Scope::Dictionary, Unique, kRockMembers, kRockMembersShown},
    {"ENV_SCH", Scope::Dictionary, Natural, kEnvironments, {}, "name"},
    {"ENVSCHMBR", Scope::Dictionary, Unique, kEnvironmentTerms, kEnvironmentTermsShown},
    {"EVENTDIC", Scope::Dictionary, Natural, kEventEntries, kEventEntriesShown, "name"},
    {"CMPSTD", Scope::Dictionary, Natural, kStandards},
    {"CMPSTDEV", Scope::Dictionary, Unique, kStandardEvents, kStandardEventsShown},
    {"ABNSCHME", Scope::Dictionary, Natural, kLadders, {}, "name"},
    {"ABNSCHMBR", Scope::Dictionary, Unique, kLadderLevels, kLadderLevelsShown},
    {"WELLS", Scope::WellCode, Unique, kWells},
    {"WELL_IDENT", Scope::Well, Natural, kWellNumbers},
    {.name = "WELLS_MASTER",
        .scope = Scope::WellCode,
        .keyUse = Unique,
        .fields = kMaster,
        .mayLackColumns = true},
    {"WELLTVD", Scope::Well, None, kSurvey},
    {"CORES", Scope::Well, None, kCores},
    {"CORESHIFT", Scope::Well, None, kCoreShifts},
    {"SAMPLES", Scope::Well, Natural, kSamples, {}, "base_depth_m"},
    {"ZRSLITH", Scope::Well, Unique, kSampleRocks, kSampleRocksShown},
    {"ZRSSR", Scope::Well, Unique, kAgeRatios, kSampleShown},
    {"ANALY_HDR", Scope::Well, Natural, kAnalyses, kAnalysesShown, {}, true},
    {"SMPDTL", Scope::Well, Unique, kDetails, kSampleShown},
    {"TAXONOCC", Scope::Well, None, kOccurrences, kOccurrencesShown, {}, false, false, true},
    {"BCMMNTS", Scope::Sample, None, kSampleComments, kSampleCommentsShown},
    {"IGD", Scope::Well, None, kZones, kZonesShown},
    {"ZRILITH", Scope::Well, None, kRockIntervals, kRockIntervalsShown},
    {"ZRQLITH", Scope::Well, None, kRockQualifiers, kRockIntervalsShown},
    {"ZRLITHO", Scope::Sample, None, kRockCodes, kRockCodesShown},
    {"IGD_ENV", Scope::Well, None, kEnvironmentIntervals, kEnvironmentIntervalsShown},
    {"CASING", Scope::Well, None, kCasing},
    {"WELLSMARK", Scope::Well, None, kMarkers},
    {"SQPICK", Scope::Well, None, kPicks, kPicksShown},
    {"INTCMMNTS", Scope::Well, None, kIntervalComments},
    {"EVENTS", Scope::Well, None, kEvents, kEventsShown},
};

int placeOf(const TableFile& table, bool (*is)(const TableField&))
{
    const auto found = std::ranges::find_if(table.fields, is);
    return found == table.fields.end() ? -1 : static_cast<int>(found - table.fields.begin());
}

} // namespace

std::span<const TableFile> tableFiles() { return kTables; }

const TableFile* tableFile(std::string_view name)
{
    const auto found = std::ranges::find(kTables, name, &TableFile::name);
    return found == std::end(kTables) ? nullptr : found;
}

std::string TableFile::stem() const { return lowerCased(name); }

int TableFile::own() const
{
    return placeOf(*this, [](const TableField& field) { return field.kind == Kind::Own; });
}

int TableFile::well() const
{
    return placeOf(*this, [](const TableField& field) { return field.target == "WELL_IDENT"; });
}

std::string headerOf(const TableFile& table)
{
    std::string header;
    const auto append = [&](std::string_view name) {
        header.append(header.empty() ? "" : ",").append(name);
    };
    for (const TableField& field : table.fields)
        append(field.name);
    if (table.splitsComments)
        for (const std::string_view name : kSplitNames)
            append(name);
    for (const ShownField& shown : table.shown)
        append(shown.name);
    return header;
}

bool standsForWell(std::string_view code)
{
    return !code.empty() && code != "0" && code.front() != '#' && code.front() != '?';
}

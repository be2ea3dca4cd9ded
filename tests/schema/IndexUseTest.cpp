// tests/schema/IndexUseTest.cpp
#include "tests/support/SchemaDatabase.h"

#include <gtest/gtest.h>

#include <regex>

// How the engine reaches the rows that the statements of the system ask for. A whole table is read
// only where all of it is wanted, and nothing large is sorted.

namespace {

/// One step of the engine's plan in short: the table, where the statement has a short name for it,
/// then the index without its table's name or "key", with the columns it is entered by. "all by"
/// is a whole index; "sort" is rows put aside and ordered.
std::string shortStep(std::string step)
{
    const std::pair<const char*, const char*> kForms[] = {
        {"USE TEMP B-TREE FOR (RIGHT PART OF )?ORDER BY", "sort"},
        {"MULTI-INDEX OR|INDEX [0-9]+", ""},
        {"sqlite_autoindex_[A-Za-z_]+_[0-9]+", "key"},
        {"USING (INTEGER )?PRIMARY KEY( [(]rowid=[?][)])?", "key"},
        {"USING (COVERING )?INDEX ([A-Za-z_]+_(?=BY_|by_))?|^SEARCH ([A-Za-z_]{2,} )?|=?[?]", ""},
        {"^SCAN ([A-Za-z_]+) ", "$1 all by "},
        {" AND ", ","},
        {" [(]", "("},
    };
    for (const auto& [from, to] : kForms)
        step = std::regex_replace(step, std::regex(from), to);
    return step;
}

/// `statement` is whole or what follows "SELECT * FROM".
std::string planOf(OdbcConnection& database, const std::string& statement)
{
    const bool whole = statement.starts_with("SELECT ");
    const std::string sql = whole ? statement : "SELECT * FROM " + statement;
    std::string plan;
    for (const auto& row : database.run("EXPLAIN QUERY PLAN " + sql)) {
        const std::string step = shortStep(row.back());
        plan += (plan.empty() || step.empty() ? "" : "; ") + step;
    }
    return plan;
}

struct IndexCase {
    const char* statement;
    const char* plan;
};

const IndexCase kCases[] = {
    {"SELECT max(samp_id) as conval FROM SAMPLES", "SAMPLES"},
    {"PREF_USER WHERE pref_key='TOPPFX' AND user_id=1", "key(user_id,pref_key)"},
    {"WELLS WHERE well_code='A'", "key(well_code)"},
    {"WELLS WHERE well_name='A'", "BY_NAME(well_name)"},
    {"well_ident WHERE well_id=7", "key"},
    {"well_ident WHERE well_code='A'", "BY_CODE(well_code)"},
    {"WELLS_MASTER WHERE well_code='A'", "key(well_code)"},
    {"WELLTVD WHERE well_id=7 ORDER BY ddepth", "BY_DEPTH(well_id)"},
    {"CORES WHERE well_id=7 ORDER BY top_depth", "BY_TOP(well_id)"},
    {"CORESHIFT WHERE well_id=7 ORDER BY depth", "BY_DEPTH(well_id)"},
    {"SAMPLES WHERE well_id=7 ORDER BY samp_id", "BY_WELL(well_id)"},
    {"SMPDTL WHERE samp_id=9 AND disc_id='M' AND analyst='A'", "BY_KEY(samp_id,disc_id,analyst)"},
    {"SMPDTL s,ANALY_HDR h WHERE s.well_id=7 AND s.analy_id=h.analy_id AND s.well_id=h.well_id AND "
     "h.analyst=3",
        "h BY_ANALYST(analyst,well_id); s BY_ANALYSIS(well_id,analy_id)"},
    {"TAXONOCC t,ANALY_HDR h,USERDEF u WHERE t.well_id=7 AND t.well_id=h.well_id AND h.disc_id='M' "
     "AND h.analy_id=t.analy_id AND u.abr='ABC' AND u.user_id=h.analyst ORDER BY samp_id, spec_id",
        "t BY_SAMPLE(well_id); h key(well_id,analy_id); u key"},
    {"SELECT DISTINCT spec_id FROM TAXONOCC WHERE well_id =7 AND disc_id='M'",
        "BY_DISCIPLINE(well_id,disc_id)"},
    {"BCMMNTS WHERE usamp_id=9 AND disc_id='M' AND analyst='A'",
        "BY_SAMPLE(usamp_id,disc_id,analyst)"},
    {"ZRSLITH WHERE well_id=7 AND samp_id=9 ORDER BY lith_id", "key(well_id,samp_id)"},
    {"ZRSSR WHERE well_id=7 AND samp_id=9 AND interp_id=0", "key(well_id,samp_id,interp_id)"},
    {"GENUS WHERE cat_mnem='FORAM' AND UCASE(genus)=UCASE('alphina')", "BY_UPPER_NAME(<expr>)"},
    {"GENUS WHERE UCASE(genus) like UCASE('Alph*')", "BY_NAME(genus>,genus<)"},
    {"GENUS WHERE UCASE(sub_genus) like UCASE('Alph*')", "BY_SUBGENUS(sub_genus>,sub_genus<)"},
    {"GENUS WHERE UCASE(cat_mnem) like 'FOR*'", "BY_CATEGORY(cat_mnem>,cat_mnem<)"},
    {"SPECIES WHERE UCASE(species)=UCASE('betana') AND gen_id=7", "BY_GENUS(gen_id,<expr>)"},
    {"SPECIES WHERE UCASE(species) like UCASE('bet*')", "BY_NAME(species>,species<)"},
    {"SPECIES WHERE UCASE(sub_spec) like UCASE('gam*')", "BY_SUBSPECIES(sub_spec>,sub_spec<)"},
    {"SIPMCODE WHERE sipm_code >=100 AND sipm_code <=200", "BY_CODE(sipm_code>,sipm_code<)"},
    {"SIPMCODE WHERE spec_id=7 AND ccode=1", "key(spec_id,ccode)"},
    {"SYNONYMY WHERE spec_id=7 AND sch_id=3", "key(spec_id,sch_id)"},
    {"SYNONYMY WHERE pref=7 AND sch_id=3", "BY_PREFERRED(pref,sch_id)"},
    {"SIPMDICT WHERE text='A'", "BY_TEXT(text)"},
    {"SIPMDICT WHERE txt='A'", "BY_TXT(txt)"},
    {"TXREFS WHERE spec_id=7", "key"},
    {"category ORDER BY cat_mnem", "category all by key"},
    {"txgroup ORDER BY name", "txgroup all by key"},
    {"groupset ORDER BY name", "groupset all by by_name"},
    {"IGD_SCH ORDER BY name", "IGD_SCH all by BY_NAME"},
    {"IGD_DICT WHERE sch_id=7 ORDER BY u_age, hier, l_age", "BY_AGE(sch_id)"},
    {"IGD_DICT WHERE sch_id=7 AND abr='A'", "BY_ABBREVIATION(sch_id,abr)"},
    {"LITHDESC WHERE lith_id > 999 ORDER BY descr", "key(lith_id>); sort"},
    {"LITHDESC WHERE lithcode=1001", "key(lithcode)"},
    {"ZRLTHMBR WHERE lthsch_id=7 ORDER BY sort_order,lith_id", "BY_ORDER(lthsch_id)"},
    {"ZRLTHMBR WHERE lthsch_id=7 ORDER BY lith_id", "key(lthsch_id)"},
    {"ENV_SCH ORDER BY name", "ENV_SCH all by BY_NAME"},
    {"ENVSCHMBR WHERE envsch_id=7 ORDER BY term_no", "key(envsch_id)"},
    {"EVENTDIC WHERE name='A' AND ev_type='R'", "BY_NAME(name)"},
    {"EVENTDIC WHERE spec_id=7 AND ev_type='R' AND name <>'A'", "BY_TAXON(spec_id,ev_type)"},
    {"CMPSTD WHERE name='A' AND std_id <>7", "BY_NAME(name)"},
    {"CMPSTDEV WHERE std_id=7 ORDER BY csu DESC", "BY_POSITION(std_id)"},
    {"CMPSTDEV WHERE std_id=7 AND ev_id=3 AND ev_type='R'", "key(std_id,ev_id,ev_type)"},
    {"ABNSCHME WHERE name='A'", "BY_NAME(name)"},
    {"ABNSCHMBR WHERE scheme_id=7 ORDER BY entry_no", "key(scheme_id)"},
    {"IGD WHERE well_id=7 AND igd_type=3 AND interp_id=0 AND hier=1",
        "BY_WELL(well_id,igd_type,interp_id,hier)"},
    {"ZRILITH WHERE well_id =7 AND top_depth BETWEEN 1 AND 2",
        "BY_TOP(well_id,top_depth>,top_depth<)"},
    {"ZRQLITH WHERE well_id=7 ORDER BY top_depth, plotpos", "BY_TOP(well_id)"},
    {"ZRLITHO WHERE top_id=1 OR base_id=2", "BY_TOP(top_id); BY_BASE(base_id)"},
    {"IGD_ENV WHERE well_id=7 AND interp_id is NULL", "BY_WELL(well_id,interp_id)"},
    {"CASING WHERE well_id=7", "BY_WELL(well_id)"},
    {"WELLSMARK WHERE well_id=7", "BY_WELL(well_id)"},
    {"SQPICK WHERE well_id=7 AND interp_id=0", "BY_WELL(well_id,interp_id)"},
    {"INTCMMNTS WHERE well_id=7 AND interp_id=0", "BY_WELL(well_id,interp_id)"},
    {"EVENTS WHERE well_id = 7 AND interp_id=0", "BY_WELL(well_id,interp_id)"},
    {"EVENTS WHERE ev_id=7", "BY_ENTRY(ev_id)"},
};

TEST(IndexUse, StatementsReachTheirRowsByAnIndex)
{
    SchemaDatabase database;
    for (const auto& [statement, plan] : kCases)
        EXPECT_EQ(planOf(database, statement), plan) << statement;
}

// Its LIKE regards letter case, so patterns read the dictionary as a whole there.
TEST(IndexUse, NamesAreLookedUpByIndexInTheOtherDialect)
{
    SchemaDatabase database("Oracle");
    EXPECT_EQ(
        planOf(database, "GENUS WHERE upper(genus)=upper('alphina')"), "BY_UPPER_NAME(<expr>)");
    EXPECT_EQ(planOf(database, "SPECIES WHERE upper(species)=upper('betana') AND gen_id=7"),
        "BY_GENUS(gen_id,<expr>)");
}

} // namespace

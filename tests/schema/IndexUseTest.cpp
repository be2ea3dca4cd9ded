// tests/schema/IndexUseTest.cpp
#include "tests/schema/OdbcDatabase.h"

#include <gtest/gtest.h>

#include <regex>
#include <span>

// How the engine reaches the rows of the statements that the system sends. A whole table is read
// only where all of it is wanted, and nothing large is sorted.

namespace {

/// One step of the engine's plan in short: the table by its name in the statement, then the index
/// or "key" with the columns it is entered by, "all" for a whole table and "all by" for a whole
/// index; "sort" and "distinct" for rows put aside and ordered.
std::string shortStep(std::string step)
{
    const std::pair<const char*, const char*> kForms[] = {
        {"USE TEMP B-TREE FOR (RIGHT PART OF )?ORDER BY", "sort"},
        {"USE TEMP B-TREE FOR DISTINCT", "distinct"},
        {"MULTI-INDEX OR|INDEX [0-9]+", ""},
        {"(sqlite_autoindex_[A-Za-z_]+_[0-9]+)", "key"},
        {"USING INTEGER PRIMARY KEY [(]rowid=[?][)]", "key"},
        {"USING PRIMARY KEY", "key"},
        {"USING (COVERING )?INDEX ", ""},
        {"^SEARCH ", ""},
        {"^SCAN ([A-Za-z_]+)$", "$1 all"},
        {"^SCAN ([A-Za-z_]+) ", "$1 all by "},
        {"=[?]", ""},
        {"([<>])[?]", "$1"},
        {" AND ", ","},
        {" [(]", "("},
    };
    for (const auto& [from, to] : kForms)
        step = std::regex_replace(step, std::regex(from), to);
    return step;
}

std::string planOf(OdbcDatabase& database, const std::string& statement)
{
    std::string plan;
    for (const std::string& row : database.rows("EXPLAIN QUERY PLAN " + statement)) {
        const std::string step = shortStep(row.substr(row.rfind('|') + 1));
        if (!step.empty())
            plan += (plan.empty() ? "" : "; ") + step;
    }
    return plan;
}

struct IndexCase {
    const char* statement;
    const char* plan;
};

const IndexCase kWells[] = {
    {"SELECT max(samp_id) as conval FROM SAMPLES", "SAMPLES"},
    {"SELECT max(ev_id) as conval FROM EVENTDIC", "EVENTDIC"},
    {"SELECT pref_value FROM PREF_USER WHERE pref_key='TOPPFX' AND user_id=1",
        "PREF_USER key(user_id,pref_key)"},
    {"SELECT v.well_code, v.descrip FROM WELLS w, well_ident v WHERE v.well_id=7"
     " AND v.well_code=w.well_code",
        "v key; w key(well_code)"},
    {"SELECT v.well_id, v.descrip FROM WELLS w, WELL_IDENT v WHERE v.well_code='A'"
     " AND v.well_code=w.well_code",
        "w key(well_code); v WELL_IDENT_BY_CODE(well_code)"},
    {"SELECT v.well_id, v.well_code, v.descrip FROM WELLS w, well_ident v  WHERE w.well_name='A'"
     " AND w.well_code=v.well_code ",
        "w WELLS_BY_NAME(well_name); v WELL_IDENT_BY_CODE(well_code)"},
    {"UPDATE wells SET ocs=NULL,county='C' WHERE well_code='A'", "wells key(well_code)"},
    {"SELECT WELL_NAME,TD FROM WELLS_MASTER WHERE well_code='A'", "WELLS_MASTER key(well_code)"},
    {"SELECT ddepth, tvdepth FROM WELLTVD WHERE well_id=7 ORDER BY ddepth ",
        "WELLTVD WELLTVD_BY_DEPTH(well_id)"},
    {"SELECT top_depth, base_depth, corenum, recovered  FROM CORES WHERE well_id=7"
     " ORDER BY top_depth",
        "CORES CORES_BY_TOP(well_id)"},
    {"SELECT depth, shift  FROM CORESHIFT WHERE well_id=7 ORDER BY depth",
        "CORESHIFT CORESHIFT_BY_DEPTH(well_id)"},
};

const IndexCase kSamples[] = {
    {"SELECT samp_id, top_depth, base_depth, type, grid_x, grid_y, created, modified, creator,"
     " modifier,label FROM SAMPLES WHERE well_id=7 ORDER BY samp_id",
        "SAMPLES SAMPLES_BY_WELL(well_id)"},
    {"SELECT s.label FROM SAMPLES s  WHERE s.samp_id=9", "s key"},
    {"UPDATE SAMPLES SET depth=1,bot_depth=2, type='CU',grid_x=0,grid_y=0,label=NULL"
     " WHERE samp_id=9",
        "SAMPLES key"},
    {"SELECT picker, source, barren FROM SMPDTL WHERE samp_id=9 AND disc_id='M' AND analyst='ABC'",
        "SMPDTL SMPDTL_BY_KEY(samp_id,disc_id,analyst)"},
    {"SELECT distinct(analyst) FROM SMPDTL WHERE samp_id=9 AND disc_id='M'",
        "SMPDTL SMPDTL_BY_KEY(samp_id,disc_id)"},
    {"SELECT s.samp_id,u.abr,h.analy_no,s.picker FROM SMPDTL s,ANALY_HDR h,USERDEF u"
     " WHERE s.well_id=7 AND h.disc_id='M' AND h.analyst=u.user_id AND s.analy_id=h.analy_id"
     " AND s.well_id=h.well_id",
        "s SMPDTL_BY_ANALYSIS(well_id); h key(well_id,analy_id); u key"},
    {"SELECT s.samp_id,u.abr,h.analy_no,s.picker FROM SMPDTL s,ANALY_HDR h,USERDEF u"
     " WHERE s.well_id=7 AND h.disc_id='M' AND h.analyst='3' AND h.analyst=u.user_id"
     " AND s.analy_id=h.analy_id AND s.well_id=h.well_id",
        "u key; h ANALY_HDR_BY_ANALYST(analyst,well_id); s SMPDTL_BY_ANALYSIS(well_id,analy_id)"},
    {"SELECT samp_id,u.abr,h.analy_no,spec_id,status,ident_type,abund,caved,marker,medium,coarse,"
     "fine,spec_type_id,preserv,colour,t.comments FROM TAXONOCC t,ANALY_HDR h,USERDEF u"
     " WHERE t.well_id=7 AND t.well_id=h.well_id AND h.disc_id='M' AND h.analy_id=t.analy_id"
     "  AND u.user_id=h.analyst ORDER BY samp_id, spec_id",
        "t TAXONOCC_BY_SAMPLE(well_id); h key(well_id,analy_id); u key"},
    {"SELECT samp_id,u.abr,h.analy_no,spec_id FROM TAXONOCC t,ANALY_HDR h,USERDEF u"
     " WHERE t.well_id=7 AND t.well_id=h.well_id AND h.disc_id='M' AND h.analy_id=t.analy_id"
     "  AND u.abr='ABC' AND u.user_id=h.analyst ORDER BY samp_id, spec_id",
        "t TAXONOCC_BY_SAMPLE(well_id); h key(well_id,analy_id); u key"},
    {"SELECT DISTINCT spec_id FROM TAXONOCC WHERE well_id =7 AND disc_id='M'",
        "TAXONOCC TAXONOCC_BY_DISCIPLINE(well_id,disc_id)"},
    {"SELECT comments FROM BCMMNTS WHERE usamp_id=9 AND (interp_id is null OR interp_id=0)"
     " AND disc_id='M' AND analyst='ABC'",
        "BCMMNTS BCMMNTS_BY_SAMPLE(usamp_id,disc_id,analyst)"},
    {"SELECT s.samp_id, l.lithdescr, l.lithabr, s.lith_id, s.percent FROM ZRSLITH s, LITHDESC l"
     " WHERE well_id =7 AND s.lith_id=l.lithcode",
        "s key(well_id); l key(lithcode)"},
    {"SELECT l.descr, l.abr, s.lith_id, s.percnt FROM ZRSLITH s, LITHDESC l WHERE s.well_id=7"
     " AND s.samp_id=9 AND s.lith_id=l.lith_id ORDER BY s.lith_id",
        "s key(well_id,samp_id); l key(lith_id)"},
    {"DELETE FROM ZRSSR WHERE well_id=7 AND samp_id=9 AND (interp_id=0 OR interp_id is null)",
        "ZRSSR key(well_id,samp_id)"},
};

const IndexCase kTaxonomy[] = {
    {"SELECT cat_mnem, gen_id, genus, q1, q2, q3, sub_genus, q4 FROM GENUS WHERE cat_mnem='FORAM'"
     " AND  UCASE(genus)=UCASE('alphina') AND LCASE(q1)='cf.'",
        "GENUS GENUS_BY_UPPER_NAME(<expr>)"},
    {"SELECT spec_id, species, q1, q2, q3, sub_spec, q4, author, year,alphaCode  FROM SPECIES"
     " WHERE UCASE(species)=UCASE('betana') AND gen_id=7 AND UCASE(sub_spec)=UCASE('gamma')",
        "SPECIES SPECIES_BY_GENUS(gen_id,<expr>)"},
    {"SELECT s.spec_id FROM GENUS g, SPECIES s WHERE g.gen_id = s.gen_id"
     "  AND  UCASE(g.genus) like UCASE('Alph*')",
        "g GENUS_BY_NAME(genus>,genus<); s SPECIES_BY_GENUS(gen_id)"},
    {"SELECT s.spec_id FROM GENUS g, SPECIES s WHERE g.gen_id = s.gen_id"
     "  AND  UCASE(g.sub_genus) like UCASE('Alph*')",
        "g GENUS_BY_SUBGENUS(sub_genus>,sub_genus<); s SPECIES_BY_GENUS(gen_id)"},
    {"SELECT s.spec_id FROM GENUS g, SPECIES s WHERE g.gen_id = s.gen_id"
     "  AND  UCASE(g.cat_mnem) like 'FOR*'",
        "g GENUS_BY_CATEGORY(cat_mnem>,cat_mnem<); s SPECIES_BY_GENUS(gen_id)"},
    {"SELECT s.spec_id FROM GENUS g, SPECIES s WHERE g.gen_id = s.gen_id"
     "  AND  UCASE(s.species) like UCASE('bet*')",
        "s SPECIES_BY_NAME(species>,species<); g key"},
    {"SELECT s.spec_id FROM GENUS g, SPECIES s WHERE g.gen_id = s.gen_id"
     "  AND  UCASE(s.sub_spec) like UCASE('gam*')",
        "s SPECIES_BY_SUBSPECIES(sub_spec>,sub_spec<); g key"},
    {"SELECT s.spec_id FROM GENUS g, SPECIES s,SIPMCODE p WHERE g.gen_id = s.gen_id "
     " AND s.spec_id = p.spec_id AND p.sipm_code >=100 AND p.sipm_code <=200",
        "p SIPMCODE_BY_CODE(sipm_code>,sipm_code<); s key; g key"},
    {"SELECT s.spec_id FROM GENUS g, SPECIES s WHERE g.gen_id = s.gen_id ",
        "s all by SPECIES_BY_GENUS; g key"},
    {"SELECT pref FROM SYNONYMY WHERE spec_id=7 AND sch_id=3", "SYNONYMY key(spec_id,sch_id)"},
    {"SELECT spec_id FROM SYNONYMY WHERE pref=7 AND sch_id=3",
        "SYNONYMY SYNONYMY_BY_PREFERRED(pref,sch_id)"},
    {"SELECT sipm_code FROM sipmcode WHERE spec_id=7 AND ccode=1", "sipmcode key(spec_id,ccode)"},
    {"SELECT ccode FROM SIPMDICT WHERE text='A'", "SIPMDICT SIPMDICT_BY_TEXT(text)"},
    {"SELECT ccode FROM SIPMDICT WHERE txt='A'", "SIPMDICT SIPMDICT_BY_TXT(txt)"},
    {"SELECT references FROM TXREFS WHERE spec_id=7", "TXREFS key"},
    {"SELECT disc_id, disc_name, disc_abr, disc_adj FROM DISCS", "DISCS all"},
    {"SELECT cat_mnem, cat_name FROM category ORDER BY cat_mnem", "category all by key"},
    {"SELECT name FROM txgroup ORDER BY name", "txgroup all by key"},
    {"SELECT name FROM groupset ORDER BY name", "groupset all by groupset_by_name"},
};

const IndexCase kDictionaries[] = {
    {"SELECT sch_id FROM IGD_SCH ORDER BY name", "IGD_SCH all by IGD_SCH_BY_NAME"},
    {"SELECT sch_id FROM IGD_SCH WHERE igd_type=3 AND name='A'", "IGD_SCH IGD_SCH_BY_NAME(name)"},
    {"SELECT MIN(u_age), MAX(l_age) FROM IGD_DICT WHERE sch_id=7",
        "IGD_DICT IGD_DICT_BY_AGE(sch_id)"},
    {"SELECT igd_id FROM IGD_DICT WHERE sch_id=7 ORDER BY u_age, hier, l_age",
        "IGD_DICT IGD_DICT_BY_AGE(sch_id)"},
    {"SELECT igd_id, name, hier FROM IGD_DICT WHERE sch_id=7 AND abr='A'",
        "IGD_DICT IGD_DICT_BY_ABBREVIATION(sch_id,abr)"},
    {"SELECT descr, abr, cmp, lith_id FROM LITHDESC WHERE lith_id > 999 ORDER BY descr",
        "LITHDESC key(lith_id>); sort"},
    {"SELECT lith_id ,sort_order FROM ZRLTHMBR WHERE lthsch_id=7 ORDER BY sort_order,lith_id",
        "ZRLTHMBR ZRLTHMBR_BY_ORDER(lthsch_id)"},
    {"SELECT lith_id  FROM ZRLTHMBR WHERE lthsch_id=7 ORDER BY lith_id", "ZRLTHMBR key(lthsch_id)"},
    {"SELECT envsch_id FROM ENV_SCH ORDER BY name", "ENV_SCH all by ENV_SCH_BY_NAME"},
    {"SELECT term_no, term, red, green, blue FROM ENVSCHMBR WHERE envsch_id=7 ORDER BY term_no",
        "ENVSCHMBR key(envsch_id)"},
    {"SELECT ev_id, spec_id, creator, created, ev_type, generate FROM EVENTDIC WHERE name='A'"
     " AND ev_type='R'",
        "EVENTDIC EVENTDIC_BY_NAME(name)"},
    {"SELECT generate FROM EVENTDIC WHERE spec_id=7 AND ev_type='R' AND name <>'A'"
     " AND generate='Y'",
        "EVENTDIC EVENTDIC_BY_TAXON(spec_id,ev_type)"},
    {"SELECT std_id FROM CMPSTD WHERE name='A' AND std_id <>7", "CMPSTD CMPSTD_BY_NAME(name)"},
    {"SELECT ev_id, ev_type, csu FROM CMPSTDEV WHERE std_id=7 ORDER BY csu DESC",
        "CMPSTDEV CMPSTDEV_BY_POSITION(std_id)"},
    {"SELECT scheme_id FROM ABNSCHME WHERE name='A'", "ABNSCHME ABNSCHME_BY_NAME(name)"},
    {"SELECT entry_name, abr, min, output_val FROM ABNSCHMBR WHERE scheme_id=7 ORDER BY entry_no",
        "ABNSCHMBR key(scheme_id)"},
};

const IndexCase kInterpretation[] = {
    {"SELECT top_id, base_id FROM IGD WHERE well_id=7 AND igd_type=3 AND hier >=1 AND hier <=8"
     " AND interp_id=0",
        "IGD IGD_BY_WELL(well_id,igd_type,interp_id,hier>,hier<)"},
    {"SELECT i.top_id, d.u_age FROM IGD i, IGD_DICT d WHERE i.igd_type=3 AND i.upp_zone=d.igd_id"
     " AND d.u_age>=9.9 AND d.l_age<=20.1 AND i.well_id =7 ORDER BY d.u_age",
        "i IGD_BY_WELL(well_id,igd_type); d key; sort"},
    {"SELECT S.top_depth, S.base_depth, L.descr, L.abr, S.lith_id FROM ZRILITH S,LITHDESC L"
     " WHERE S.well_id=7 AND L.lith_id = S.lith_id ORDER BY S.top_depth",
        "S ZRILITH_BY_TOP(well_id); L key(lith_id)"},
    {"DELETE FROM ZRILITH WHERE well_id =7 AND top_depth BETWEEN 1 AND 2"
     " AND base_depth BETWEEN 3 AND 4",
        "ZRILITH ZRILITH_BY_TOP(well_id,top_depth>,top_depth<)"},
    {"SELECT top_depth, base_depth, type, alignment, plotpos, lith_id, txt FROM ZRQLITH"
     " WHERE well_id=7 ORDER BY top_depth, plotpos",
        "ZRQLITH ZRQLITH_BY_TOP(well_id)"},
    {"DELETE FROM ZRLITHO WHERE top_id=1 OR base_id=2",
        "ZRLITHO ZRLITHO_BY_TOP(top_id); ZRLITHO ZRLITHO_BY_BASE(base_id)"},
    {"SELECT top_id, base_id, up FROM IGD_ENV WHERE well_id=7 AND (interp_id is NULL"
     " OR interp_id=0)",
        "IGD_ENV IGD_ENV_BY_WELL(well_id)"},
    {"SELECT depth, diam FROM CASING WHERE well_id=7", "CASING CASING_BY_WELL(well_id)"},
    {"SELECT depth, colour FROM WELLSMARK WHERE well_id=7", "WELLSMARK WELLSMARK_BY_WELL(well_id)"},
    {"SELECT samp_id, surface_id, inf, bnd, qualifier FROM SQPICK WHERE well_id=7"
     " AND interp_id=0",
        "SQPICK SQPICK_BY_WELL(well_id,interp_id)"},
    {"SELECT top_depth, base_depth, comments FROM INTCMMNTS WHERE well_id=7 AND interp_id=0",
        "INTCMMNTS INTCMMNTS_BY_WELL(well_id,interp_id)"},
    {"SELECT ev_id, ev_type, samp_id ,disc_id,analyst,qualifier,comments,source,company,modified"
     " FROM EVENTS WHERE well_id = 7 AND interp_id=0",
        "EVENTS EVENTS_BY_WELL(well_id,interp_id)"},
    {"DELETE FROM EVENTS WHERE ev_id=7", "EVENTS EVENTS_BY_ENTRY(ev_id)"},
};

TEST(IndexUse, StatementsReachTheirRowsByAnIndex)
{
    OdbcDatabase database;
    ASSERT_EQ(database.failure(), "");
    const std::span<const IndexCase> kAll[] = {
        kWells, kSamples, kTaxonomy, kDictionaries, kInterpretation};
    for (const std::span<const IndexCase> cases : kAll)
        for (const IndexCase& c : cases)
            EXPECT_EQ(planOf(database, c.statement), c.plan) << c.statement;
}

// The other dialect looks names up the same way. Its LIKE regards letter case, so patterns read the
// dictionary as a whole there.
TEST(IndexUse, NamesAreLookedUpByIndexInTheOtherDialect)
{
    OdbcDatabase database("Dialect=Oracle");
    ASSERT_EQ(database.failure(), "");
    EXPECT_EQ(planOf(database, "SELECT gen_id FROM GENUS WHERE  upper(genus)=upper('alphina')"),
        "GENUS GENUS_BY_UPPER_NAME(<expr>)");
    EXPECT_EQ(planOf(database,
                  "SELECT spec_id FROM SPECIES WHERE upper(species)=upper('betana') AND gen_id=7"),
        "SPECIES SPECIES_BY_GENUS(gen_id,<expr>)");
}

} // namespace

// tests/interp/LithologyTest.cpp
#include "interp/IntLithZone.h"
#include "interp/LithDictionary.h"
#include "interp/LithQualifier.h"
#include "tests/interp/InterpTest.h"

namespace {

std::string textOf(const IGDBase& at)
{
    const std::string common = joined(at.getTop(0), at.getBase(0), at.label());
    if (const auto* zone = dynamic_cast<const IntLithZone*>(&at))
        return common + joined(zone->abr.view(), zone->lith_id);
    const auto& q = dynamic_cast<const LithQualifier&>(at);
    return common + joined(q.abr.view(), q.lith_id, q.qualType(), int(q.alignment()), q.plotpos());
}

TEST_F(InterpTest, LithologyComesAndGoesInEitherUnitAndDirection)
{
    // The second finds what the first saved, without the texts.
    const std::string sand = "Sandstone|SST|1000|", lime = "Limestone|LST|1001|",
                      ore = "Pyrite|PYR|1002|A|82|2.7|", text = "| |1002|Z|76|1|",
                      unknown = "||4|S|0|1|";
    for (const auto& [wellType, unit, zones, qualifiers] :
        {std::tuple{'W', 'F', "328.084|492.126|" + sand + "492.126|656.496|" + lime,
             "328.084|393.701|" + ore + "426.509|426.509|see core" + text + "459.318|492.126|stored"
                 + unknown},
            {'O', 'M', "-150|-200.1|" + lime + "-100|-150|" + sand,
                "-140|-150|" + unknown + "-130|-130|" + text + "-100|-120|" + ore}}) {
        well.type = wellType;
        for (const auto& [type, expected] : {std::pair{12, zones}, {13, qualifiers}}) {
            IGDList list(type, 0, 0, &well, unit, 0, 0, nullptr);
            std::string records;
            for (const IGDBase* at : list)
                records += textOf(*at);
            EXPECT_EQ(expected, records);
            list.setChanged(1);
            list.save(0, wellType == 'O');
        }
        const std::string depths = "SELECT round(top_depth, 4), round(base_depth, 4), lith_id";
        EXPECT_EQ((Statements{"100|150|1000", "150|200.1|1001"}),
            db.rows(depths + " FROM ZRILITH WHERE well_id=7 ORDER BY 1"));
        EXPECT_EQ(
            (Statements{"100|120|1002|A|2.700000047683716", "130|130|1002|Z|1", "140|150|4|S|1"}),
            db.rows(depths + ", type, plotpos FROM ZRQLITH ORDER BY 1"));
    }
}

TEST_F(InterpTest, LithologyStatementsNameDepthsAndPlacesAsTheyAreHeld)
{
    LithQualifier qualifier(1.5f, 2, 'Q', 2.7f, 1003, "", "");
    const IntLithZone zone(100, 150, 1000);
    db.run("DELETE FROM ZRQLITH");
    IGDList list(13, 0, 0, &well, 'F', 0, 0, nullptr);
    auto* copy = new LithQualifier(1, 10, 'S', 1, 7, "", "kept");
    const StatementLog log;
    EXPECT_TRUE(zone.insertRecord(8, 0) && zone.deleteRecord(8, 1));
    EXPECT_TRUE(qualifier.insertRecord(8, 1) && qualifier.deleteRecord(8, 0));
    EXPECT_EQ("L|2.7|", joined(qualifier.setAlignment('\0'), qualifier.setPlotpos(3.5f)));
    copy->copyFrom(qualifier);
    list.insert(copy);
    list.setChanged(0);
    list.save(0, 0); // has not changed
    list.save('M', 1);
    const std::string interval = table("ZRILITH"), beside = table("ZRQLITH"),
                      into = "INSERT INTO " + beside
        + " (well_id, top_depth, base_depth, lith_id, type, alignment, plotpos) VALUES(";
    EXPECT_EQ((Statements{"INSERT INTO " + interval
                      + " (well_id, top_depth, base_depth, lith_id) VALUES(8, 100, 150, 1000)",
                  "DELETE FROM " + interval
                      + " WHERE well_id =8 AND top_depth BETWEEN -100.01000213623047 AND"
                        " -99.98999786376953 AND base_depth BETWEEN -150.00999450683594 AND"
                        " -149.99000549316406",
                  into + "8, -1.5, -2, 1003, 'Q', 'L', 2)",
                  "DELETE FROM " + beside
                      + " WHERE well_id =8 AND top_depth BETWEEN 1.4900000095367432 AND"
                        " 1.5099999904632568 AND lith_id=1003 AND plotpos=2",
                  "DELETE FROM " + beside + " WHERE well_id=7",
                  into + "7, -1.5, -10, 1003,'Q',NULL,3.5)"}),
        log.statements());
    IntLithZone other(1, 2, 3, "Rock", "R");
    other.copyFrom(zone);
    EXPECT_EQ("100|150|||1000|1.5|10||kept|1003|Q|0|3.5|", textOf(other) + textOf(*copy));
}

TEST_F(InterpTest, LithologySchemesSelectAmongTheMainLithologies)
{
    db.run("INSERT INTO ZRLTHSCH VALUES (1, 'first')");
    db.run("INSERT INTO ZRLTHMBR VALUES (1, 1001, 1), (1, 4444, 2), (5, 1000, 1)");
    LithDictionary dictionary;
    const auto choose = [&](long id, const std::string& columns, const std::string& order) {
        const StatementLog log;
        dictionary.setScheme(id);
        EXPECT_EQ("SELECT lith_id " + columns + " FROM " + table("ZRLTHMBR")
                + " WHERE lthsch_id=" + std::to_string(id) + " ORDER BY " + order + "lith_id",
            log.statements().back());
        std::string text = joined(dictionary.lthsch_id, dictionary.schemeName, dictionary.count());
        for (const LithDicTerm* term : dictionary.terms)
            text += term->abr.str() + term->kind + (term->active ? "+" : "-");
        return text;
    };
    dictionary.findTerm(1003)->setActive(0);
    EXPECT_EQ("1|first|4|CALQ-LSTN+PYRA+SSTN-", choose(1, ",sort_order", "sort_order,"));
    EXPECT_EQ("0|no active scheme|4|CALQ-LSTN-PYRA+SSTN+", choose(5, ",sort_order", "sort_order,"));
    db.run("DROP INDEX ZRLTHMBR_BY_ORDER");
    db.run("ALTER TABLE ZRLTHMBR DROP COLUMN sort_order");
    EXPECT_EQ("0|no active scheme|4|CALQ-LSTN-PYRA+SSTN-", choose(9, "", ""));
}

} // namespace

// tests/interp/LithologyTest.cpp
#include "interp/IntLithZone.h"
#include "interp/LithDictionary.h"
#include "interp/LithQualifier.h"
#include "interp/LithZone.h"
#include "tests/interp/InterpTest.h"

namespace {

struct LithList : IGDList {
    LithList(int type, Well& of, char unit)
        : IGDList(type, 0, 0, &of, unit, 0, 0, nullptr)
    {
    }
    std::string text() const
    {
        std::string records;
        for (const IGDBase* at : *this) {
            records += joined(at->getTop(0), at->getBase(0), at->label());
            if (const auto* zone = dynamic_cast<const IntLithZone*>(at))
                records += joined(zone->abr.view(), zone->lith_id);
            else if (const auto* q = dynamic_cast<const LithQualifier*>(at))
                records += joined(
                    q->abr.view(), q->lith_id, q->qualType(), int(q->alignment()), q->plotpos());
        }
        return joined(title(), changed(), isComplete()) + records;
    }
};

class LithologyTest : public InterpTest {
protected:
    /// What is stored of the well; depths as far as single precision tells them.
    Statements stored(int type)
    {
        const std::string columns = "SELECT round(top_depth, 4), round(base_depth, 4), lith_id";
        const std::string order = " WHERE well_id=7 ORDER BY top_depth";
        return db.rows(type == 12 ? columns + " FROM ZRILITH" + order
                                  : columns + ", type, alignment, plotpos FROM ZRQLITH" + order);
    }
};

TEST_F(LithologyTest, ListsComeAndGoInEitherUnitAndDirection)
{
    const std::string sand = "Sandstone|SST|1000|", lime = "Limestone|LST|1001|",
                      accessory = "Pyrite|PYR|1002|A|82|2.7|", text = "see core| |1002|Z|76|1|",
                      unknown = "stored||4444|S|0|1|";
    for (const auto& [wellType, unit, zones, qualifiers] :
        {std::tuple{'W', 'M', "100|150|" + sand + "150|200.1|" + lime,
             "100|120|" + accessory + "130|130|" + text + "140|150|" + unknown},
            {'W', 'F', "328.084|492.126|" + sand + "492.126|656.496|" + lime,
                "328.084|393.701|" + accessory + "426.509|426.509|" + text + "459.318|492.126|"
                    + unknown},
            {'O', 'F', "-492.126|-656.496|" + lime + "-328.084|-492.126|" + sand,
                "-459.318|-492.126|" + unknown + "-426.509|-426.509|" + text + "-328.084|-393.701|"
                    + accessory}}) {
        well.type = wellType;
        LithList lithology(12, well, unit), beside(13, well, unit);
        EXPECT_EQ("Interval Lithology|0|1|" + zones, lithology.text());
        EXPECT_EQ("Lithology Qualifier|0|1|" + qualifiers, beside.text());
        for (IGDList* list : {static_cast<IGDList*>(&lithology), static_cast<IGDList*>(&beside)}) {
            list->setChanged(1);
            list->save(0, wellType == 'O');
            EXPECT_EQ(0, list->changed());
        }
        db.run("UPDATE ZRQLITH SET txt = CASE type WHEN 'Z' THEN 'see core' ELSE 'stored' END");
        EXPECT_EQ((Statements{"100|150|1000", "150|200.1|1001"}), stored(12));
        // Places across the column are kept as they were read, in single precision.
        EXPECT_EQ((Statements{"100|120|1002|A|R|2.700000047683716", "130|130|1002|Z|L|1",
                      "140|150|4444|S|NULL|1"}),
            stored(13));
    }
    EXPECT_EQ("1", db.value("SELECT count(*) FROM ZRILITH WHERE well_id=8"));
}

TEST_F(LithologyTest, OnlyAChangedListOrAnotherUnitIsSaved)
{
    for (const auto& [rule, unit, changed, expected] :
        {std::tuple{"unchanged", '\0', 0, "100|150|1000"}, {"its own unit", 'M', 0, "100|150|1000"},
            {"changed", '\0', 1, "100|150|1000"},
            {"read as another unit", 'F', 0, "30.48|45.72|1000"}}) {
        LithList list(12, well, 'M');
        list.setChanged(changed);
        const StatementLog log;
        list.save(unit, 0);
        EXPECT_EQ(changed || unit == 'F', !log.statements().empty()) << rule;
        EXPECT_EQ(expected, stored(12)[0]) << rule;
    }
}

TEST_F(LithologyTest, StatementsNameDepthsAndPlacesAsTheyAreHeld)
{
    LithQualifier qualifier(1.5f, 2, 'Q', 2.7f, 1003, "", "");
    const IntLithZone zone(100, 150, 1000);
    const StatementLog log;
    EXPECT_TRUE(zone.insertRecord(8, 0) && zone.deleteRecord(8, 1));
    EXPECT_TRUE(qualifier.insertRecord(8, 1));
    qualifier.setAlignment('\0');
    EXPECT_TRUE(qualifier.insertRecord(8, 0) && qualifier.deleteRecord(8, 0));
    LithList list(13, well, 'F');
    while (const IGDBase* record = list.pop())
        delete record;
    auto* copy = new LithQualifier(1, 10, 'S', 1, 7, "", "kept");
    copy->copyFrom(qualifier);
    list.insert(copy);
    list.save('M', 1);
    const std::string interval = table("ZRILITH"), beside = table("ZRQLITH"),
                      into = "INSERT INTO " + beside
        + " (well_id, top_depth, base_depth, lith_id, type, alignment, plotpos) VALUES(";
    const Statements expected{"INSERT INTO " + interval
            + " (well_id, top_depth, base_depth, lith_id) VALUES(8, 100, 150, 1000)",
        "DELETE FROM " + interval
            + " WHERE well_id =8 AND top_depth BETWEEN -100.01000213623047 AND -99.98999786376953"
              " AND base_depth BETWEEN -150.00999450683594 AND -149.99000549316406",
        into + "8, -1.5, -2, 1003, 'Q', 'L', 2)", into + "8, 1.5, 2, 1003, 'Q', NULL, 2)",
        "DELETE FROM " + beside
            + " WHERE well_id =8 AND top_depth BETWEEN 1.4900000095367432 AND 1.5099999904632568"
              " AND lith_id=1003 AND plotpos=2",
        "DELETE FROM " + beside + " WHERE well_id=7",
        into + "7, -1.5, -10, 1003,'Q',NULL,2.700000047683716)"};
    Statements writes;
    for (const std::string& sql : log.statements()) {
        if (!sql.starts_with("SELECT"))
            writes.push_back(sql);
    }
    EXPECT_EQ(expected, writes);
    EXPECT_EQ("kept", copy->abr.str());
    IntLithZone other(1, 2, 3, "Rock", "R");
    other.copyFrom(zone);
    EXPECT_EQ("100|150|1000|||Q|2.7|LogRock|",
        joined(other.getTop(0), other.getBase(0), other.lith_id, other.label(), other.abr.view(),
            copy->setQualType('A'), copy->setPlotpos(1), LithZone(1, "LogRock").label()));
    EXPECT_TRUE(IntLithZone(99.985f, 150, 1000).deleteRecord(7, 0)); // too far off
    EXPECT_EQ("100|150|1000", stored(12)[0]);
    EXPECT_TRUE(IntLithZone(99.995f, 150.005f, 7).deleteRecord(7, 0));
    EXPECT_EQ("150|200.1|1001", stored(12)[0]) << "whatever its rock";
}

TEST_F(LithologyTest, SchemesSelectAmongTheMainLithologies)
{
    db.run("INSERT INTO ZRLTHSCH VALUES (1, 'first')");
    db.run("INSERT INTO ZRLTHMBR VALUES (1, 1001, 1), (1, 4444, 2), (5, 1000, 1)");
    LithDictionary dictionary;
    const auto text = [&dictionary] {
        std::string terms = joined(dictionary.lthsch_id, dictionary.schemeName.view());
        for (const LithDicTerm* term : dictionary.terms)
            terms += term->abr.str() + term->kind + (term->active ? "+" : "-");
        return terms;
    };
    EXPECT_EQ("0||CALQ+LSTN+PYRA+SSTN+", text());
    dictionary.findTerm(1003)->setActive(0);
    for (const auto& [sorted, id, expected] : {std::tuple{true, 1, "1|first|CALQ-LSTN+PYRA+SSTN-"},
             {true, 5, "0|no active scheme|CALQ-LSTN-PYRA+SSTN+"},
             {false, 9, "0|no active scheme|CALQ-LSTN-PYRA+SSTN-"}}) {
        if (!sorted) {
            db.run("DROP INDEX ZRLTHMBR_BY_ORDER");
            db.run("ALTER TABLE ZRLTHMBR DROP COLUMN sort_order");
        }
        const StatementLog log;
        dictionary.setScheme(id);
        EXPECT_EQ(expected, text());
        EXPECT_EQ(std::string("SELECT lith_id ") + (sorted ? ",sort_order" : "") + " FROM "
                + table("ZRLTHMBR") + " WHERE lthsch_id=" + std::to_string(id) + " ORDER BY "
                + (sorted ? "sort_order," : "") + "lith_id",
            log.statements().back());
    }
    const DriverFault fault(2, "SQLExecDirect");
    dictionary.setScheme(1);
    EXPECT_EQ("1|first|CALQ-LSTN-PYRA+SSTN-", text()) << "the members could not be read";
    EXPECT_EQ(2u, boxes.texts().size());
    EXPECT_EQ("4|1|", joined(dictionary.count(), dictionary.findTerm(999) == nullptr));
}

} // namespace

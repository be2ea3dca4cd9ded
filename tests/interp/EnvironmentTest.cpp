// tests/interp/EnvironmentTest.cpp
#include "interp/Environment.h"
#include "db/CurrentUser.h"
#include "db/ItemList.h"
#include "interp/EnvSchemeList.h"
#include "tests/interp/InterpTest.h"
#include "tests/support/Restore.h"

namespace {

std::string textOf(const Environment& e)
{
    return joined(e.top_id, e.base_id, e.getTop(0), e.getBase(0), e.up, e.ud, e.lp, e.ld, e.label(),
        e.qual, e.qualText.view(), e.envsch_id, e.modified.isoText(), e.modifier);
}

TEST_F(InterpTest, EnvironmentsTakeTheirNamesFromTheScheme)
{
    const std::string select = "SELECT top_id, base_id, up, ud, lp, ld,modified,modifier,qual,"
                               " envsch_id FROM "
        + table("IGD_ENV") + " WHERE well_id=7 AND ";
    for (const auto& [type, unit, interp_id, envsch_id, asked, expected] :
        {std::tuple{'W', 'M', 0, 1, "(interp_id is NULL OR interp_id=0) AND envsch_id =1",
             "1|2|100|150|2|3|2|3|(Shelf, Åpen) - (Shelf, Åpen)|1|Coast|1|1998-03-05|AB|"},
            {'O', 'F', 0, 77, "(interp_id is NULL OR interp_id=0) AND envsch_id =77",
                "2|9|-492.126|0|1|1|1|1|(Coast, Coast) - (Coast, Coast)|0||77|||"},
            {'W', 'M', 6, 0, "interp_id=6",
                "1|3|100|210|3|3|3|3|(Åpen, Åpen) - (Åpen, Åpen)|8|"
                "ERROR term: 8 is not in Palaeoenvironment scheme|1|||"}}) {
        well.type = type;
        const StatementLog log;
        const IGDList list(5, 0, 0, &well, unit, envsch_id, interp_id, nullptr);
        ASSERT_EQ("1|Environment|0|", joined(list.count(), list.title(), list.changed()));
        EXPECT_EQ(expected, textOf(dynamic_cast<const Environment&>(*list.at(0))));
        EXPECT_EQ(select + asked, log.statements()[7]) << "behind the schemes";
    }
}

TEST_F(InterpTest, EnvironmentsAreCleanedAndCollected)
{
    db.run("UPDATE IGD_ENV SET envsch_id = 0 WHERE up = 2");
    IGDList list(5, 0, 0, &well, 'M', 0, 0, nullptr);
    ItemList samples, schemes;
    list.collectReferences(well, samples, schemes);
    EXPECT_EQ("3|E|E|", joined(samples.count, schemes.find(0)->text, schemes.find(77)->text));
    list.removeMissingSamples(&well);
    EXPECT_EQ((Statements{"Warning: interval(s) with missing sample(s) were removed, for well "
                          ":Seven\nPalaeoenvironment: Coast\nCheck and fix data using IGD"}),
        boxes.texts());
    const Restore<FixedText<5>> user(currentUserAbr, "ME");
    const Environment made(1.0f, 2.0f, 1, 2, 3, 4, 5, 6);
    Environment copy(8L, 9L, 0, 0, 0, 0, 0, 0);
    copy.copyFrom(made);
    EXPECT_EQ(
        "-1|-1|1|2|1|2|3|4|(, ) - (, )|5||6|" + Date::Today().isoText() + "|ME|", textOf(copy));
}

TEST_F(InterpTest, EnvironmentSchemesKeepTwentyTerms)
{
    for (int i = 25; i >= 1; --i)
        db.run("INSERT INTO ENVSCHMBR (envsch_id, term_no, term) VALUES (2, "
            + std::to_string(10 * i) + ", 't" + std::to_string(i) + "')");
    const EnvSchemeList list;
    std::string order;
    for (const env_scheme* at : list)
        order += joined(at->envsch_id);
    EXPECT_EQ("2|3|1|2|0|", order + joined(list.findScheme(0)->envsch_id, list.findScheme(7)));
    const env_scheme& large = *list.findScheme(2);
    env_scheme marine = *list.findScheme(1);
    EXPECT_EQ("20|20|0|", joined(large.nTerms(), large.termNumber("T20"), large.termNumber("t21")));
    const std::string error = " is not in Palaeoenvironment scheme|";
    EXPECT_EQ("ERROR term: 21" + error + "ERROR term: 0" + error,
        joined(large.termName(20)) + joined(large.termName(-1)));
    const auto shown = [](const env_scheme& scheme, int index) {
        return joined(scheme.termName(index), int(scheme.termColour(index).red));
    };
    EXPECT_EQ("|9|ERROR term: 5" + error + "255|", shown(marine, 3) + shown(marine, 4));
    marine.setTermCount(6);
    marine.setTermName(5, "given");
    EXPECT_EQ("ERROR term: 5" + error + "0|given|0|", shown(marine, 4) + shown(marine, 5));
    const char* names[] = {"one", nullptr};
    const Colour colours[] = {{1, 2, 3}, {4, 5, 6}};
    const env_scheme made(8, "made", 2, names, colours);
    EXPECT_EQ("one|1||4|", shown(made, 0) + shown(made, 1));
}

} // namespace

// tests/interp/SchemeTest.cpp
#include "interp/NameOrder.h"
#include "interp/TermOrder.h"
#include "tests/interp/InterpTest.h"

#include <algorithm>
#include <random>

namespace {

using Terms = std::vector<const igdDict*>;

TEST(TermOrders, StopAtTheFirstMemberThat)
{
    igdDict at, added;
    added.l_age = 8;
    for (const auto& [rule, u_age, hier, l_age, name, later, level, all] :
        {std::tuple{"is older", 6.f, 1, 9.f, "A", 5.f, true, false},
            {"is older and named behind", 6.f, 1, 9.f, "C", 5.f, true, true},
            {"reaches further down", 5.f, 1, 9.f, "A", 5.f, true, false},
            {"is named behind, in bytes", 5.f, 1, 8.f, "b", 5.f, false, true},
            {"has a lower rank number", 5.f, 0, 8.f, "C", 5.f, true, false},
            {"is hardly younger", 5.f, 1, 9.f, "C", 5.0009f, true, false},
            {"is younger", 5.f, 1, 9.f, "C", 5.0011f, false, false},
            {"ends younger", 6.f, 1, 7.f, "C", 5.f, true, false}}) {
        at.u_age = u_age, at.hier = hier, at.l_age = l_age, at.name = name;
        added.u_age = later, added.hier = 1, added.name = "B";
        EXPECT_EQ(level, LevelOrder().stops(at, added)) << rule;
        EXPECT_EQ(all, AllTermsOrder().stops(at, added)) << rule;
    }
}

/// Where a walk from the front puts a term.
template <typename Rule> void walkIn(Terms& terms, const igdDict* added)
{
    const auto stops = [=](const igdDict* at) { return Rule().stops(*at, *added); };
    terms.insert(std::find_if(terms.begin(), terms.end(), stops), added);
}

TEST_F(InterpTest, TermsStandWhereAWalkWouldPutThem)
{
    std::mt19937 random(7);
    const auto below = [&random](unsigned n) { return std::to_string(random() % n); };
    std::string rows;
    for (int i = 0; i < 1300; ++i)
        rows += (i ? ", (" : "(") + std::to_string(100 + i) + ", 2, " + below(4) + ", " + below(3)
            + ".000" + below(10) + ", " + below(6) + ", '" + (i % 2 ? "n" : "N") + below(40) + "')";
    db.run("INSERT INTO IGD_DICT (igd_id, sch_id, hier, u_age, l_age, name) VALUES " + rows);
    const igd_sch scheme(2, 1);
    Terms level, all, names;
    for (const std::string& key : db.rows("SELECT igd_id FROM IGD_DICT WHERE sch_id=2"
                                          " ORDER BY u_age, hier, l_age")) {
        const igdDict* term = scheme.findTermById(std::stol(key));
        walkIn<AllTermsOrder>(all, term);
        walkIn<NameOrder<igdDict>>(names, term);
        if (term->hier == 3)
            walkIn<LevelOrder>(level, term);
    }
    const auto same = [](const Terms& terms, const igdDictList& list) {
        return std::equal(terms.begin(), terms.end(), list.begin(), list.end());
    };
    EXPECT_TRUE(same(all, scheme.terms) && all.size() == 1300);
    EXPECT_TRUE(same(names, scheme.nameOrder));
    EXPECT_TRUE(same(level, scheme.levels[2]));
}

TEST_F(InterpTest, SchemeReadsItsTermsOnce)
{
    igd_sch scheme(1L, 0);
    EXPECT_EQ("1|beta|3|1998-03-05|AB|0|70|0|",
        joined(scheme.sch_id, scheme.name.view(), scheme.igd_type, scheme.created.isoText(),
            scheme.creator.view(), scheme.youngestAge, scheme.oldestAge, scheme.nLevels));
    const StatementLog log;
    scheme.loadTerms();
    scheme.loadTerms();
    EXPECT_EQ(6u, log.statements().size()) << "the keys, then each term";
    std::string text;
    for (const igdDict* t : scheme.nameOrder)
        text += joined(t->igd_id, t->hier, t->abr.view(), t->u_age, t->l_age, int(t->colour.red),
            int(t->colour.blue), t->created.isoText(), t->creator.view());
    EXPECT_EQ("12|7|L|30|66|0|1|||14|9|X9|1|2|255|255|||10|3|P|0|66|1|3|1998-04-06|CD|"
              "13|1||66|70|255|255|||11|7|U|0|30|255|255|||",
        text);
    scheme.load(1, 1);
    EXPECT_EQ("5|1|9|", joined(scheme.terms.count(), scheme.levels[0].count(), scheme.nLevels));
}

TEST_F(InterpTest, TermsAreFoundByNameAndAge)
{
    igd_sch scheme("beta", 0, 1);
    std::string name = "as it was";
    EXPECT_EQ(nullptr, scheme.findTermByName("period"));
    EXPECT_EQ("10|0|12|",
        joined(scheme.termIdByName("pERIOD"), scheme.termIdByAbr("none", name, 1),
            scheme.termIdByAbr("l", name, 0)));
    EXPECT_EQ("as it was", name);
    EXPECT_EQ(14, scheme.termIdByAbr("x9", name, 1));
    EXPECT_EQ("Nameless", name);
    const auto idOf = [](const igdDict* term) { return term ? term->igd_id : 0; };
    for (const auto& [rule, top, base, type, one, first, second] :
        {std::tuple{"the finest rank", 10.f, 20.f, 3, 11, 11, 0},
            {"both ends included, the first of two", 30.f, 30.f, 3, 11, 11, 0},
            {"a rank too wide gives both ends", 20.f, 40.f, 3, 10, 11, 12},
            {"wide enough for biozones", 20.f, 40.f, 41, 10, 10, 0},
            {"too wide for lithostratigraphy", 67.f, 68.f, 2, 13, 13, 13},
            {"no term holds both", 20.f, 69.f, 3, 0, 0, 0},
            {"older than its base", 10.f, 5.f, 3, 0, 0, 0}}) {
        igdDict *upper = nullptr, *lower = nullptr;
        scheme.igd_type = type;
        scheme.findTermsForAges(top, base, &upper, &lower);
        EXPECT_EQ((Ids{one, first, second}),
            (Ids{idOf(scheme.findTermForAges(top, base)), idOf(upper), idOf(lower)}))
            << rule;
    }
}

TEST_F(InterpTest, SchemesStandByNameIgnoringCaseAndMayBeMissing)
{
    IGDSchemeList list;
    list.load(); // again
    Ids ids;
    for (const igd_sch* scheme : list)
        ids.push_back(scheme->sch_id);
    EXPECT_EQ((Ids{1, 3, 2}), ids) << "as the database gave ZETA and Zeta";
    const igd_sch empty(2L, 1), missing(99L, 1), unnamed("none", 10, 1);
    EXPECT_EQ("99999|0|0|", joined(empty.youngestAge, empty.oldestAge, empty.nLevels));
    EXPECT_EQ("0|0|10|-2|-2|0|",
        joined(missing.sch_id, missing.youngestAge, unnamed.igd_type, unnamed.sch_id,
            igdDict().igd_id, igdDict(99).igd_id));
}

} // namespace

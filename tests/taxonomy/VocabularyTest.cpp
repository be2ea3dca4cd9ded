// tests/taxonomy/VocabularyTest.cpp
#include "taxonomy/Categories.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TaxonGroups.h"
#include "tests/taxonomy/DictionaryTest.h"

#include <cstdlib>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class Vocabulary : public DictionaryTest {
protected:
    Vocabulary() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    /// `count` rows of a table with a number and a name, in descending order.
    void fill(const std::string& table, int count)
    {
        db.run("WITH RECURSIVE n(i) AS (SELECT " + std::to_string(count)
            + " UNION ALL SELECT i - 1 FROM n WHERE i > 1) INSERT INTO " + table);
    }
};

Texts textsOf(const char* const* list)
{
    Texts texts;
    for (; *list; ++list)
        texts.emplace_back(*list);
    return texts;
}

TEST_F(Vocabulary, EveryLetterHasADisciplineNumber)
{
    for (const auto& [letter, number] :
        {std::pair{'M', 0}, {'N', 1}, {'P', 2}, {'A', 3}, {'X', 3}, {' ', 3}, {'\0', 3}, {'m', 3}})
        EXPECT_EQ(number, discIndex(letter)) << letter;
}

TEST_F(Vocabulary, DisciplinesStandAtTheirNumbers)
{
    db.run("INSERT INTO DISCS VALUES ('P', 'Palynology', 'Pal', 'Palynological'),"
           " ('M', 'Micro', 'Mic', 'Micropalaeontological'), ('X', 'Ex', 'E', 'Exical'),"
           " ('Y', 'Ypsilon, in more than thirty letters', 'Ypsilo', 'Ypsilonical')");
    const StatementLog log;
    const Discs discs;
    const auto entry = [&discs](int n) {
        return Texts{discs[n].name.str(), discs[n].abr.str(), discs[n].adj.str(),
            std::to_string(discs[n].letter)};
    };
    EXPECT_EQ((Texts{"Micro", "Mic", "Micropalaeontological", "77"}), entry(0));
    EXPECT_EQ((Texts{"", "", "", "0"}), entry(1));
    EXPECT_EQ((Texts{"Palynology", "Pal", "Palynological", "80"}), entry(2));
    EXPECT_EQ((Texts{"Ypsilon, in more than thirty l", "Ypsil", "Ypsilonical", "89"}), entry(3))
        << "the last of those that are none of the four";
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT disc_id, disc_name, disc_abr, disc_adj FROM " + table("DISCS")));
}

/// The names are read once in the life of a process, so each case gets a process of its own.
void expectDiscNames(const std::vector<std::pair<char, std::string>>& expected, bool lost = false)
{
    const auto ask = [&] {
        const StatementLog log;
        for (const auto& [letter, name] : expected) {
            const char* given = discName(letter);
            if (name != (given ? given : "null"))
                std::exit(9);
        }
        const std::string sql = "SELECT disc_name, disc_id FROM " + table("DISCS");
        std::exit(lost || log.statements() == Texts{sql} ? 0 : 8);
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(0), "");
}

TEST_F(Vocabulary, DisciplineNames)
{
    const std::string none = "Unrecognised ID";
    expectDiscNames({{'M', none}, {0, ""}});
    db.run("INSERT INTO DISCS (disc_id, disc_name) VALUES ('P', 'Paly'), ('M', 'Micro'),"
           " ('X', 'Ex'), ('N', 'Nanno'), ('A', 'fifth')");
    expectDiscNames({{'M', "Micro"}, {'X', "Ex"}, {'A', none}, {'Z', none}, {0, none}});
    const DriverFault fault(1, "SQLExecDirect", DriverFault::Once, "08S01", "ORA-03113: lost");
    expectDiscNames({{'M', "null"}, {'M', none}}, true);
}

TEST_F(Vocabulary, CategoriesAreReadOnceUnlessAskedToReload)
{
    const StatementLog log;
    EXPECT_EQ(
        (Texts{"FORAM Planktonic Foraminifera", "NANNO Nannofossils"}), textsOf(categoryList(1)));
    db.run("UPDATE CATEGORY SET cat_mnem = 'AA' WHERE cat_mnem = 'NANNO'");
    const char* const* list = categoryList(0);
    EXPECT_STREQ("FORAM Planktonic Foraminifera", list[0]);
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT cat_mnem, cat_name FROM " + table("category") + " ORDER BY cat_mnem"));
    categoryList(1);
    EXPECT_STREQ("AA Nannofossils", list[0]) << "rewritten in place";
    db.run("DELETE FROM CATEGORY WHERE cat_mnem = 'AA'");
    EXPECT_THAT(textsOf(categoryList(1)), SizeIs(1));
}

TEST_F(Vocabulary, ListsEndAtTheirCapacity)
{
    db.run("DELETE FROM CATEGORY");
    fill(
        "CATEGORY (cat_mnem, cat_name) SELECT printf('%05d', i), printf('%.70c', 'x') FROM n", 101);
    fill("txgroup (name) SELECT printf('%04d and more than thirty letters', i) FROM n", 2500);
    fill("groupset (name) SELECT printf('%03d', i) FROM n", 251);
    const Texts categories = textsOf(categoryList(1));
    EXPECT_THAT(categories, SizeIs(100));
    EXPECT_EQ("00100 X" + std::string(52, 'x'), categories.back());
    const Texts groups = textsOf(taxonGroupList(1));
    EXPECT_THAT(groups, SizeIs(2000));
    EXPECT_EQ("2000 and more than thirty lett", groups.back());
    EXPECT_THAT(textsOf(groupSetList(1)), SizeIs(250));
}

TEST_F(Vocabulary, GroupsAndSetsInOrderOfTheirNames)
{
    db.run("INSERT INTO txgroup VALUES ('b'), ('a  ')");
    db.run("INSERT INTO groupset VALUES (3, 'zeta set'), (4, 'alpha set')");
    const StatementLog log;
    EXPECT_EQ((Texts{"a", "b"}), textsOf(taxonGroupList(1)));
    EXPECT_EQ((Texts{"alpha set", "zeta set"}), textsOf(groupSetList(1)));
    taxonGroupList(0);
    groupSetList(0);
    char name[31] = "x";
    groupSetName(3, name);
    EXPECT_STREQ("zeta set", name);
    groupSetName(5, name);
    EXPECT_STREQ("", name);
    EXPECT_EQ(4, groupSetId("alpha set"));
    EXPECT_EQ(0, groupSetId("none"));
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT name FROM " + table("txgroup") + " ORDER BY name",
            "SELECT name FROM " + table("groupset") + " ORDER BY name",
            "SELECT name FROM " + table("groupset") + " WHERE grpset_id=3",
            "SELECT name FROM " + table("groupset") + " WHERE grpset_id=5",
            "SELECT grpset_id FROM " + table("groupset") + " WHERE name='alpha set'",
            "SELECT grpset_id FROM " + table("groupset") + " WHERE name='none'"));
    EXPECT_THAT(screen.texts(), IsEmpty());
}

TEST_F(Vocabulary, NameAndDisciplineOfACategory)
{
    db.run("INSERT INTO CATEGORY (cat_mnem, cat_name) VALUES ('AB', '  algae'), ('ABC', NULL),"
           " ('ABCDEFGHIJKLMNOP', 'too long a mnemonic')");
    EXPECT_STREQ("ABC", categoryList(1)[1]);
    for (const auto& [mnemonic, name] : {std::pair{"FORAM", "Planktonic Foraminifera"},
             {"AB", "Algae"}, {"ABC", ""}, {"A", ""}, {"foram", ""}, {"", ""},
             {"ABCDEFGHIJKLMNO", "P Too Long A Mnemonic"}, {"ABCDEFGHIJKLMNOP", ""}})
        EXPECT_STREQ(name, categoryName(mnemonic)) << mnemonic;
    EXPECT_STREQ("", categoryName(nullptr));
    const StatementLog log;
    EXPECT_EQ('N', categoryDisc("NANNO"));
    EXPECT_EQ(' ', categoryDisc("ZETA"));
    EXPECT_EQ("SELECT disc_id FROM " + table("CATEGORY") + " WHERE cat_mnem='NANNO'",
        log.statements()[0]);
}

} // namespace

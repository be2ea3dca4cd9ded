// tests/taxonomy/TaxonSearchTest.cpp
#include "taxonomy/TaxonList.h"
#include "tests/support/Restore.h"
#include "tests/taxonomy/DictionaryTest.h"
#include "tests/taxonomy/PlainTaxonOrder.h"

#include <array>
#include <memory>
#include <ostream>

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

using Ids = std::vector<long>;

namespace {

/// The patterns in buffers of the caller's own, which the search writes to.
struct Patterns {
    std::array<std::string, 5> text{"%", "%", "%", "%", "%"};

    std::unique_ptr<TaxonList> search(int includeSynonyms, long from = 0, long to = 0)
    {
        return std::unique_ptr<TaxonList>(Taxon::searchTaxa(text[0].data(), text[1].data(),
            text[2].data(), text[3].data(), text[4].data(), includeSynonyms, from, to));
    }
};

struct SearchCase {
    const char* name;
    int place; ///< of the pattern that is not "%"
    const char* pattern;
    int includeSynonyms;
    long from, to;
    Ids ids;
};
void PrintTo(const SearchCase& c, std::ostream* out) { *out << c.name; }

const SearchCase kSearches[] = {
    {"all but synonyms, in order of names", 0, "%", 0, 0, 0, {104, 103}},
    {"all", 0, "%", 1, 0, 0, {104, 100, 101, 99, 103}},
    {"an empty pattern matches nothing", 1, "", 1, 0, 0, {}},
    {"a null pattern is no condition", 1, nullptr, 0, 0, 0, {104, 103}},
    {"category in small letters", 0, "nan%", 1, 0, 0, {104}},
    {"genus", 1, "BET%", 1, 0, 0, {103}},
    {"subgenus", 2, "et%", 1, 0, 0, {103}},
    {"species", 3, "%TAN%", 1, 0, 0, {100, 101, 99}},
    {"subspecies", 4, "MINOR", 1, 0, 0, {99}},
    {"codes of any system", 0, "%", 1, 6, 70, {100}},
    {"one code by its lower bound", 0, "%", 1, 5, 0, {103}},
    {"one code by its upper bound", 0, "%", 1, 0, 5, {103}},
    {"a code in each of two systems is found twice", 0, "%", 1, 70, 99999999, {100, 100}},
    {"code of a synonym", 0, "%", 0, 70, 0, {}},
};

class Search : public DictionaryTest, public testing::WithParamInterface<SearchCase> {};
TEST_P(Search, Finds)
{
    const SearchCase& c = GetParam();
    Patterns patterns;
    std::unique_ptr<TaxonList> list;
    if (c.pattern) {
        patterns.text[static_cast<std::size_t>(c.place)] = c.pattern;
        list = patterns.search(c.includeSynonyms, c.from, c.to);
    } else {
        list.reset(Taxon::searchTaxa(
            nullptr, nullptr, nullptr, nullptr, nullptr, c.includeSynonyms, c.from, c.to));
    }
    EXPECT_EQ(c.ids, plain::ids(*list));
    const Taxon* first = list->next();
    EXPECT_EQ(c.ids.empty() ? 0 : c.ids[0], first ? first->spec_id() : 0) << "cursor at the front";
    EXPECT_THAT(screen.texts(), IsEmpty());
}
INSTANTIATE_TEST_SUITE_P(Rules, Search, testing::ValuesIn(kSearches));

using SearchText = DictionaryTest;

TEST_F(SearchText, SentAsComposed)
{
    Patterns patterns;
    patterns.text = {"for%  ", "a%", "b%", "c%", "d%"};
    const StatementLog log;
    patterns.search(1, 0, 7);
    EXPECT_EQ("FOR%", std::string(patterns.text[0].c_str())) << "in the caller's buffer";
    Patterns{}.search(1);
    const std::string tables = testSettings().kind == 2
        ? table("SPECIES") + " s," + table("GENUS") + " g "
        : table("GENUS") + " g, " + table("SPECIES") + " s ";
    EXPECT_EQ(sent("SELECT s.spec_id FROM " + tables + "," + table("SIPMCODE") + " p "
                  + "WHERE g.gen_id = s.gen_id  AND  upper(g.cat_mnem) like 'FOR%'"
                    " AND  upper(g.genus) like upper('a%')"
                    " AND  upper(g.sub_genus) like upper('b%')"
                    " AND  upper(s.species) like upper('c%')"
                    " AND  upper(s.sub_spec) like upper('d%')"
                    " AND s.spec_id = p.spec_id AND p.sipm_code >=7 AND p.sipm_code <=7"),
        log.statements()[0]);
    EXPECT_EQ(
        "SELECT s.spec_id FROM " + tables + "WHERE g.gen_id = s.gen_id ", log.statements()[1]);
}

TEST_F(SearchText, AFailedQuestionEndsTheSearchWithWhatIsThere)
{
    db.run("DROP TABLE SYNONYMY");
    EXPECT_THAT(plain::ids(*Patterns{}.search(0)), IsEmpty());
    ASSERT_EQ(2U, screen.texts().size()) << "asked once";
    EXPECT_THAT(screen.texts()[0], testing::StartsWith("SELECT pref FROM "));
}

using Codes = DictionaryTest;

TEST_F(Codes, AreKeptForTheLastSystem)
{
    Taxon taxon(100);
    const StatementLog log;
    EXPECT_EQ(0, taxon.sipmCode(0)) << "known from the start";
    EXPECT_EQ(12345678, taxon.sipmCode(1));
    EXPECT_EQ(12345678, taxon.sipmCode(1));
    EXPECT_EQ(70, taxon.sipmCode(2));
    EXPECT_EQ(0, taxon.sipmCode(3));
    EXPECT_EQ(0, taxon.sipmCode(3));
    const std::string from = "SELECT sipm_code FROM " + table("sipmcode") + " WHERE spec_id=100";
    EXPECT_THAT(log.statements(),
        ElementsAre(from + " AND ccode=1", from + " AND ccode=2", from + " AND ccode=3"));
    const Restore on(showTaxonCodes, 1);
    EXPECT_STREQ("5678 Alphina betana", taxon.displayName(0, 0, 0, 1));
}

TEST_F(Codes, SystemOfADictionaryText)
{
    const StatementLog log;
    EXPECT_EQ(2, Taxon::sipmDictCode("Second"));
    const Restore other(altColumnNames, 1);
    EXPECT_EQ(2, Taxon::sipmDictCode("Second"));
    EXPECT_EQ(0, Taxon::sipmDictCode("Third"));
    EXPECT_EQ(0, Taxon::sipmDictCode(nullptr));
    const std::string from = "SELECT ccode FROM " + table("SIPMDICT") + " WHERE ";
    EXPECT_THAT(log.statements(),
        ElementsAre(from + "text='Second'", from + "txt='Second'", from + "txt='Third'",
            from + "txt=NULL"));
}

TEST_F(Codes, TextsAreReadUnlessThereIsOne)
{
    Taxon taxon(100);
    const StatementLog log;
    EXPECT_STREQ("a reference", taxon.loadReferences());
    EXPECT_STREQ("a note", taxon.loadNotes());
    taxon.loadReferences();
    taxon.setNotes("own");
    EXPECT_STREQ("own", taxon.loadNotes());
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT references FROM " + table("TXREFS") + " WHERE spec_id=100",
            "SELECT notes FROM " + table("TXNOTES") + " WHERE spec_id=100"));
    taxon.setNotes("");
    EXPECT_STREQ("a note", taxon.loadNotes()) << "empty is not there yet";
}

TEST_F(Codes, NoRowIsNoTextAndNullAnEmptyOne)
{
    Taxon none(104);
    EXPECT_EQ(nullptr, none.loadReferences());
    EXPECT_EQ(nullptr, none.loadNotes());
    Taxon empty(101);
    EXPECT_STREQ("", empty.loadReferences());
    db.run("UPDATE TXREFS SET \"references\" = '" + std::string(239, 'x')
        + "éé'"
          " WHERE spec_id = 101");
    EXPECT_EQ(std::string(239, 'x'), empty.loadReferences()) << "asked again, and cut";
}

} // namespace

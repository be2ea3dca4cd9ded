// tests/platform/desktopdb/DialectTest.cpp
// Both dialects, end to end: what they find and what they store.
#include "tests/platform/desktopdb/Client.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const char* const kTable = "CREATE TABLE GEO.wells (id INTEGER PRIMARY KEY, name VARCHAR(40) "
                           "COLLATE NOCASE, spud DATE, references VARCHAR(80), min INTEGER, "
                           "text VARCHAR(9), year INTEGER)";

class DialectTest : public testing::TestWithParam<const char*> {
protected:
    DialectTest()
    {
        client_.run(kTable);
        client_.run("INSERT INTO GEO.wells (id, name) VALUES (1, 'Alpha'), (2, 'alphabet'), "
                    "(3, 'ALP_%'), (4, 'Beta')");
    }
    bool isOracle() const { return std::string(GetParam()) == "Dialect=Oracle"; }
    bool isAccess() const { return std::string(GetParam()) == "Dialect=Access"; }
    Rows ids(const std::string& condition)
    {
        return client_.rows("SELECT id FROM GEO.wells WHERE " + condition + " ORDER BY id");
    }
    DatabaseFile file_;
    Client client_{file_, std::string("Create=1;") + GetParam()};
};

INSTANTIATE_TEST_SUITE_P(
    Dialects, DialectTest, testing::Values("Dialect=Access", "Dialect=Oracle", ""));

TEST_P(DialectTest, CaseFunctions)
{
    for (const char* function : {"UPPER", "UCASE", "upper ", "Ucase"})
        EXPECT_THAT(ids(std::string(function) + "(name)='ALPHA'"), ElementsAre("1")) << function;
    for (const char* function : {"LOWER", "LCASE"})
        EXPECT_THAT(ids(std::string(function) + "(name)='beta'"), ElementsAre("4")) << function;
}

TEST_P(DialectTest, PatternsOfTheOwnKind)
{
    if (!isOracle()) {
        EXPECT_THAT(ids("name LIKE 'alp*'"), ElementsAre("1", "2", "3"));
        EXPECT_THAT(ids("name LIKE 'ALP_?'"), ElementsAre("3"));
        EXPECT_THAT(ids("UCASE(name) LIKE 'BE*'"), ElementsAre("4"));
        EXPECT_THAT(ids("name NOT LIKE '*a*'"), testing::IsEmpty());
    }
    if (!isAccess()) {
        EXPECT_THAT(ids("UPPER(name) LIKE 'ALPHA%'"), ElementsAre("1", "2"));
    }
    if (isOracle()) {
        EXPECT_THAT(ids("name LIKE 'alp%'"), ElementsAre("2"));
        EXPECT_THAT(ids("name LIKE '*'"), testing::IsEmpty());
    }
    if (isAccess()) {
        EXPECT_THAT(ids("name LIKE '%'"), testing::IsEmpty());
    }
}

TEST_P(DialectTest, DatesInEveryFormReadBackAsOne)
{
    const auto stored = [&](const std::string& literal) {
        client_.run("UPDATE GEO.wells SET spud=" + literal + " WHERE id=1");
        return client_.value("SELECT spud FROM GEO.wells WHERE id=1");
    };
    EXPECT_EQ(stored("#1998-03-05#"), "1998-03-05");
    EXPECT_EQ(stored("'1999-03-05'"), "1999-03-05");
    EXPECT_TRUE(client_.run("ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' "));
    EXPECT_EQ(stored("'06032001'"), "2001-03-06");
    EXPECT_EQ(stored("#1998-03-07#"), "1998-03-07");
    EXPECT_EQ(stored("'1999-03-08'"), "1999-03-08");
    EXPECT_EQ(stored("NULL"), "NULL");
    EXPECT_TRUE(client_.run("INSERT INTO GEO.wells (spud, id, text) VALUES ('09031999', 9, "
                            "'09031999')"));
    EXPECT_THAT(client_.rows("SELECT spud, text FROM GEO.wells w WHERE w.spud='09031999' AND "
                             "UCASE(w.text)='09031999'"),
        ElementsAre("1999-03-09|09031999"));
    EXPECT_THAT(ids("spud BETWEEN '01011999' AND #1999-12-31#"), ElementsAre("9"));
}

TEST_P(DialectTest, AnImpossibleDateIsRefused)
{
    EXPECT_FALSE(client_.run("UPDATE GEO.wells SET spud=#1998-02-30#"));
    EXPECT_EQ(client_.state(), "22007");
    EXPECT_THAT(client_.message(), HasSubstr("#1998-02-30#"));
}

TEST_P(DialectTest, TheDateFormatEndsWithTheConnection)
{
    client_.run("ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ");
    client_.disconnect();
    ASSERT_EQ(client_.connect(file_.connectString(GetParam())), SQL_SUCCESS);
    client_.run("UPDATE GEO.wells SET spud='06032001' WHERE id=1");
    EXPECT_NE(client_.value("SELECT spud FROM GEO.wells WHERE id=1"), "2001-03-06");
}

// What the first date taught about the tables holds no longer when they have changed.
TEST_P(DialectTest, DateColumnsOfTablesMadeLater)
{
    client_.run("ALTER SESSION SET NLS_DATE_FORMAT='ddmmyyyy' ");
    client_.run("UPDATE GEO.wells SET spud='06032001' WHERE id=1");
    Client other(file_);
    other.run("CREATE TABLE later (a VARCHAR(9), b DATE)");
    EXPECT_TRUE(client_.run("INSERT INTO later VALUES ('06032001', '06032001')"));
    EXPECT_THAT(client_.rows("SELECT * FROM later"), ElementsAre("06032001|2001-03-06"));
}

TEST_P(DialectTest, NamesThatAreWordsOfTheLanguage)
{
    EXPECT_TRUE(client_.run("UPDATE GEO.wells SET references='r', min=1, text='t', year=2 "
                            "WHERE id=1"))
        << client_.message();
    EXPECT_THAT(client_.rows("SELECT references, min, text, year, w.references FROM GEO.wells w "
                             "WHERE references='r' ORDER BY references"),
        ElementsAre("r|1|t|2|r"));
}

TEST_P(DialectTest, BytesOfALiteralArriveAsWritten)
{
    const std::string text = "UCASE(x) GEO.wells #1998-01-01# -- /* % * ? \" [a] \\ ` \xc3\xb6 ?";
    EXPECT_TRUE(
        client_.run("INSERT INTO GEO.wells (id, references) VALUES (10, '" + text + "''x')"));
    EXPECT_EQ(client_.value("SELECT references FROM GEO.wells WHERE id=10"), text + "'x");
    EXPECT_THAT(ids("references='" + text + "''x'"), ElementsAre("10"));
}

// An index serves a pattern only when the column stands bare beside it.
TEST_P(DialectTest, PatternsUseTheIndex)
{
    if (isOracle())
        return; // regards case, which the index does not
    client_.run("CREATE INDEX wells_name ON GEO.wells (name)");
    EXPECT_THAT(client_.rows(
                    "EXPLAIN QUERY PLAN SELECT id FROM GEO.wells WHERE UCASE(name) LIKE 'AL_*'")[0],
        HasSubstr("name>? AND name<?"));
}

TEST(Owner, AnotherOwnersTableIsNotThere)
{
    const DatabaseFile file;
    Client client(file, "Create=1;Owner=GEO");
    client.run("CREATE TABLE geo.t (a INTEGER)");
    EXPECT_TRUE(client.run("INSERT INTO Geo.t VALUES (1)")) << client.message();
    EXPECT_FALSE(client.run("INSERT INTO lab.t VALUES (1)"));
    EXPECT_EQ(client.state(), "42S02");
}

} // namespace

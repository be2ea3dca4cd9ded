// tests/db/ColumnsTest.cpp
#include "db/Cursor.h"
#include "db/Session.h"
#include "tests/db/Kind.h"

#include <functional>
#include <ostream>
#include <string>

#include <gtest/gtest.h>

namespace {

struct TextCase {
    const char* name;
    std::string stored;
    std::string read;
};
void PrintTo(const TextCase& c, std::ostream* out) { *out << c.name; }

std::string xs(std::size_t n) { return std::string(n, 'x'); }

const TextCase kTexts[] = {
    {"plain", "Globigerina", "Globigerina"},
    {"blanks behind", "abc   ", "abc"},
    {"white space and control characters behind", "abc\t\r\n\x01 ", "abc"},
    {"blanks before stay", "  abc", "  abc"},
    {"nothing but blanks", "   ", ""},
    {"1022 bytes", xs(1022), xs(1022)},
    {"1023 bytes", xs(1023), xs(1023)},
    {"1024 bytes", xs(1024), xs(1023)},
    {"a character that ends on the limit", xs(1021) + "\u00F8", xs(1021) + "\u00F8"},
    {"the same and more", xs(1021) + "\u00F8y", xs(1021) + "\u00F8"},
    {"a character across the limit", xs(1022) + "\u00F8", xs(1022)},
    {"one of four bytes across it", xs(1020) + "\U0001F41A", xs(1020)},
    {"blanks before the cut", xs(1000) + std::string(100, ' ') + "y", xs(1000)},
    {"many times the limit", xs(5000), xs(1023)},
};

class Texts : public testing::TestWithParam<TextCase> {
protected:
    Texts()
    {
        database.run("CREATE TABLE NO_SUCH_SCRATCH (a TEXT)");
        database.run("INSERT INTO NO_SUCH_SCRATCH VALUES ('" + GetParam().stored + "')");
    }
    TestDatabase database{TestDatabase::Empty};
};

TEST_P(Texts, dbGetString)
{
    const short cursor = dbExecute("SELECT a FROM " + scratch());
    ASSERT_EQ(0, dbFetch(cursor));
    EXPECT_EQ(GetParam().read, dbGetString(cursor, 1));
    dbCloseCursor(cursor);
}

TEST_P(Texts, WholeByCursor)
{
    Cursor rows("SELECT a FROM " + scratch());
    ASSERT_TRUE(rows.next());
    const std::string whole = rows.text(1);
    const bool cut = GetParam().stored.size() > 1023;
    EXPECT_EQ(cut ? GetParam().stored : GetParam().read, whole);
}
INSTANTIATE_TEST_SUITE_P(Stored, Texts, testing::ValuesIn(kTexts));

struct ColumnCase {
    const char* name;
    const char* expression;
    long integer;
    double number;
    const char* text;
    char letter;
};
void PrintTo(const ColumnCase& c, std::ostream* out) { *out << c.name; }

const ColumnCase kColumns[] = {
    {"NULL", "NULL", 0, 0.0, "", '\0'},
    {"empty text", "''", 0, 0.0, "", '\0'},
    {"integer", "42", 42, 42.0, "42", '4'},
    {"negative", "-7", -7, -7.0, "-7", '-'},
    {"largest identifier", "2147483647", 2147483647, 2147483647.0, "2147483647", '2'},
    {"number", "2.75", 2, 2.75, "2.75", '2'},
    {"a blank is a letter", "' x'", 0, 0.0, " x", ' '},
};

class Column : public testing::TestWithParam<ColumnCase> {
protected:
    // Each reader gets a row of its own: a column is read once.
    template <typename Read> auto read(Read reader)
    {
        Cursor rows(std::string("SELECT ") + GetParam().expression);
        EXPECT_TRUE(rows.next());
        return reader(rows.number());
    }
    TestDatabase database{TestDatabase::Empty};
};

TEST_P(Column, ByEachReader)
{
    const ColumnCase& c = GetParam();
    EXPECT_EQ(c.integer, read([](short n) { return dbGetLong(n, 1); }));
    EXPECT_EQ(c.number, read([](short n) { return dbGetDouble(n, 1); }));
    EXPECT_EQ(c.text, read([](short n) { return std::string(dbGetString(n, 1)); }));
    EXPECT_EQ(c.letter, read([](short n) { return dbGetChar(n, 1); }));
}
INSTANTIATE_TEST_SUITE_P(Values, Column, testing::ValuesIn(kColumns));

TEST(Columns, OneThatIsNotThereReadsAsNothing)
{
    const TestDatabase database(TestDatabase::Empty);
    Cursor rows("SELECT 5");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(0, rows.integer(2));
    EXPECT_EQ("", rows.text(2));
    EXPECT_EQ('\0', rows.letter(0));
}

TEST(Columns, ResultsOfTheReadersStandTogether)
{
    const TestDatabase database(TestDatabase::Empty);
    const short cursor = dbExecute("SELECT 'first', 'second'");
    ASSERT_EQ(0, dbFetch(cursor));
    const char* text = dbGetString(cursor, 1);
    EXPECT_EQ('s', dbGetChar(cursor, 2));
    EXPECT_STREQ("first", text) << "another reader's buffer";
    dbCloseCursor(cursor);
}

} // namespace

// tests/db/ColumnsTest.cpp
#include "db/Cursor.h"
#include "db/Session.h"
#include "tests/db/Kind.h"

#include <string>

#include <gtest/gtest.h>

namespace {

class Columns : public testing::Test {
protected:
    TestDatabase database{TestDatabase::Empty};
};

std::string xs(std::size_t n) { return std::string(n, 'x'); }

TEST_F(Columns, Texts)
{
    const struct {
        const char* rule;
        std::string stored, read;
        bool cut = false; // what `Cursor` reads whole
    } rows[] = {
        {"plain", "Globigerina", "Globigerina"},
        {"blanks behind", "abc   ", "abc"},
        {"white space and control characters behind", "abc\t\r\n\x01 ", "abc"},
        {"blanks before stay", "  abc", "  abc"},
        {"nothing but blanks", "   ", ""},
        {"1022 bytes", xs(1022), xs(1022)},
        {"1023 bytes", xs(1023), xs(1023)},
        {"1024 bytes", xs(1024), xs(1023), true},
        {"a character that ends on the limit", xs(1021) + "\u00F8", xs(1021) + "\u00F8"},
        {"the same and more", xs(1021) + "\u00F8y", xs(1021) + "\u00F8", true},
        {"a character across the limit", xs(1022) + "\u00F8", xs(1022), true},
        {"one of four bytes across it", xs(1020) + "\U0001F41A", xs(1020), true},
        {"blanks before the cut", xs(1000) + std::string(100, ' ') + "y", xs(1000), true},
        {"many times the limit", xs(5000), xs(1023), true},
    };
    for (const auto& row : rows) {
        const std::string select = "SELECT '" + row.stored + "'";
        Cursor cutting(select);
        ASSERT_TRUE(cutting.next());
        EXPECT_EQ(row.read, dbGetString(cutting.number(), 1)) << row.rule;
        Cursor whole(select);
        ASSERT_TRUE(whole.next());
        EXPECT_EQ(row.cut ? row.stored : row.read, whole.text(1)) << row.rule;
    }
}

TEST_F(Columns, ByEachReader)
{
    const struct {
        const char* expression;
        long integer;
        double number;
        const char* text;
        char letter;
    } rows[] = {
        {"NULL", 0, 0.0, "", '\0'},
        {"''", 0, 0.0, "", '\0'},
        {"42", 42, 42.0, "42", '4'},
        {"-7", -7, -7.0, "-7", '-'},
        {"2147483647", 2147483647, 2147483647.0, "2147483647", '2'},
        {"2.75", 2, 2.75, "2.75", '2'},
        {"' x'", 0, 0.0, " x", ' '},
    };
    for (const auto& row : rows) {
        const std::string e = row.expression; // once for each reader: a column is read once
        Cursor cursor("SELECT " + e + "," + e + "," + e + "," + e);
        ASSERT_TRUE(cursor.next());
        EXPECT_EQ(row.integer, dbGetLong(cursor.number(), 1)) << e;
        EXPECT_EQ(row.number, dbGetDouble(cursor.number(), 2)) << e;
        const char* text = dbGetString(cursor.number(), 3);
        EXPECT_EQ(row.letter, dbGetChar(cursor.number(), 4)) << e;
        EXPECT_STREQ(row.text, text) << "another reader has a buffer of its own";
    }
}

TEST_F(Columns, OneThatIsNotThereReadsAsNothing)
{
    Cursor rows("SELECT 5");
    ASSERT_TRUE(rows.next());
    EXPECT_EQ(0, rows.integer(2));
    EXPECT_EQ("", rows.text(2));
    EXPECT_EQ('\0', rows.letter(0));
}

} // namespace

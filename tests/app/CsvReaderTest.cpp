// tests/app/CsvReaderTest.cpp
#include "app/import/CsvReader.h"
#include "tests/app/Files.h"

#include <ostream>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace std::string_literals;

// Rows as "line:field|field", faulty ones as "line!fault", a failure as "failed: why".
std::vector<std::string> rowsOf(const std::string& content)
{
    const Folder folder;
    CsvReader reader(folder.write("t.csv", content));
    std::vector<std::string> rows;
    CsvRow row;
    while (reader.next(&row)) {
        std::string text = std::to_string(row.line) + (row.fault.empty() ? ":" : "!" + row.fault);
        for (const std::string& field : row.fields)
            text += (&field == &row.fields.front() ? "" : "|") + field;
        rows.push_back(text);
    }
    if (!reader.failure().empty())
        rows.push_back("failed: " + reader.failure());
    return rows;
}

struct CsvCase {
    const char* name;
    std::string content;
    std::vector<std::string> rows;
};
void PrintTo(const CsvCase& c, std::ostream* out) { *out << c.name; }

const std::string kStray =
    "a quotation mark in line 2 is neither doubled nor at the edge of a field";

const CsvCase kFiles[] = {
    {"plain", "a,b\n1,2\n", {"1:a|b", "2:1|2"}},
    {"no final line end", "a,b\n1,2", {"1:a|b", "2:1|2"}},
    {"carriage returns and line feeds", "a\r\nb\r\n", {"1:a", "2:b"}},
    {"carriage returns alone", "a,b\r1,2\r3,4", {"1:a|b", "2:1|2", "3:3|4"}},
    {"empty lines count as lines", "a\n\n  \nb\n", {"1:a", "4:b"}},
    {"line breaks in quotes", "a,b\n\"x\ny\r\nz\",2\n3,4\n", {"1:a|b", "2:x\ny\r\nz|2", "5:3|4"}},
    {"quotes, commas and bars in quotes", "\"a \"\"b\"\", |c'\"\n", {"1:a \"b\", |c'"}},
    {"white space around plain fields", "a , b\n", {"1:a|b"}},
    {"white space in quotes stays", "\" a \"\n", {"1: a "}},
    {"byte-order mark", "\xEF\xBB\xBF\"a\",b\n", {"1:a|b"}},
    {"semicolons", "a;b;c,d\n1;2,5;\n", {"1:a|b|c,d", "2:1|2,5|"}},
    {"more commas than semicolons", "a,b;c,d\n", {"1:a|b;c|d"}},
    {"separators in a quoted header do not count", "\"a,b,c\";d\n", {"1:a,b,c|d"}},
    {"tabs, with empty fields", "a\tb\n\t2\n", {"1:a|b", "2:|2"}},
    {"only a header", "a,b\n", {"1:a|b"}},
    {"nothing", "", {}},
    {"nothing but empty lines", "\n\n", {}},
    {"a stray quote costs its row only", "a,b\n9 5/8\",1\n2,3\n",
        {"1:a|b", "2!" + kStray, "3:2|3"}},
    {"text behind a closing quote", "a,b\n\"x\"y,1\n2,3\n", {"1:a|b", "2!" + kStray, "3:2|3"}},
    {"a quote never closed", "a\nb\n\"c\nd\n",
        {"1:a", "2:b", "failed: a quotation mark opens in the row of line 3 and never closes"}},
    {"a byte that is not UTF-8", "a,b\n1,\xF8x\n3,4\n",
        {"1:a|b", "2!byte 3 of line 2 (0xF8) is not UTF-8", "3:3|4"}},
    {"a bad byte in the second line of a row", "a\n\"x\n\xC3(\"\n",
        {"1:a", "2!byte 1 of line 3 (0xC3) is not UTF-8"}},
    {"the first of two bad bytes is told", "a\n\"\xC3(\nx\xE9\"\n",
        {"1:a", "2!byte 2 of line 2 (0xC3) is not UTF-8"}},
    {"a zero byte", "a\nx\0y\n"s, {"1:a", "2!byte 2 of line 2 (0x00) is not UTF-8"}},
    {"UTF-16",
        "\xFF\xFE"
        "a\0\n\0"s,
        {"failed: is written in UTF-16; save it as UTF-8"}},
    {"a row without end", "a\n\"" + std::string(40000, '\n') + std::string(1 << 20, 'x') + "\n",
        {"1:a",
            "failed: the row that begins in line 2 is longer than 1 MiB; a closing quote may be "
            "missing"}},
    {"a line without end", std::string((1 << 20) + 70000, 'x'),
        {"failed: line 1 is longer than 1 MiB"}},
};

class CsvFile : public testing::TestWithParam<CsvCase> {};

TEST_P(CsvFile, IsReadRowByRow) { EXPECT_EQ(GetParam().rows, rowsOf(GetParam().content)); }
INSTANTIATE_TEST_SUITE_P(Rules, CsvFile, testing::ValuesIn(kFiles));

// Line ends and characters that fall apart at the edge of the read buffer.
TEST(CsvFile, IsReadInPieces)
{
    for (std::size_t length = 65530; length < 65540; ++length) {
        const std::string first(length, 'x');
        EXPECT_EQ((std::vector<std::string>{"1:" + first, "2:\u00F8", "3:b"}),
            rowsOf(first + "\r\n\u00F8\r\nb\r\n"))
            << length;
    }
}

TEST(CsvFile, ThatIsNotThere)
{
    CsvReader reader(Folder().path() / "none.csv");
    CsvRow row;
    EXPECT_FALSE(reader.next(&row));
    EXPECT_EQ("cannot be opened for reading", reader.failure());
}

} // namespace

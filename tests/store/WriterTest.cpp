// tests/store/WriterTest.cpp
#include "store/SampleWriter.h"
#include "store/Transaction.h"
#include "store/WellWriter.h"
#include "tests/support/TestDatabase.h"

#include "db/CurrentUser.h"
#include "tests/support/Restore.h"

#include <functional>
#include <ostream>

#include <gtest/gtest.h>

namespace {

Outcome put(const WellRecord& record, long* id, Writing writing = Writing::Write)
{
    WellWriter writer(writing);
    Transaction transaction;
    const Outcome outcome = writer.put(record, id);
    EXPECT_EQ(outcome == Outcome::Failed, !writer.error().empty()) << writer.error();
    EXPECT_TRUE(transaction.commit());
    return outcome;
}

WellRecord wellOf(const char* code)
{
    WellRecord well;
    well.code = code;
    well.set(WellColumn::Name, textValue("Ann's well"));
    well.set(WellColumn::SpudDate, Date(5, 3, 1998));
    well.set(WellColumn::Latitude, 61.123456789);
    well.setDepth(WellColumn::Td, 1000, 'M');
    return well;
}

class Wells : public testing::Test {
protected:
    std::string row(const std::string& columns)
    {
        const auto rows = db.rows("SELECT " + columns
            + " FROM WELLS w LEFT JOIN WELL_IDENT i ON i.well_code = w.well_code");
        return rows.size() == 1 ? rows.front() : std::to_string(rows.size()) + " rows";
    }
    TestDatabase db;
    long id = 0;
};

TEST_F(Wells, ComeInWholeAndOnce)
{
    WellRecord well = wellOf("B'1");
    well.set(WellColumn::Units, Value("F"));
    well.description = textValue("first");
    EXPECT_EQ(Outcome::New, put(well, &id, Writing::Check));
    EXPECT_EQ("0 rows", row("1"));
    const StatementLog log;
    EXPECT_EQ(Outcome::New, put(well, &id));
    for (const std::string& statement : log.statements())
        EXPECT_TRUE(statement.starts_with("param:")
            || statement.find(' ' + testSettings().prefix + "WELL") != std::string::npos)
            << statement;
    EXPECT_EQ(1, id);
    EXPECT_EQ("B`1|Ann`s well|1998-03-05|3281|F|W|1|1|first|NULL",
        row("w.well_code, well_name, spud_date, round(td), units, type, datum, well_id, descrip,"
            " comp_date"));
    EXPECT_EQ(Outcome::Same, put(well, &id));
    // The core keeps depths as floats and writes them back so.
    db.run("UPDATE WELLS SET td = 3280.8398");
    EXPECT_EQ(Outcome::Same, put(well, &id));
}

TEST_F(Wells, ThatWereLookedUpAreNotLocked)
{
    db.run("INSERT INTO WELLS (well_code) VALUES ('A')");
    WellWriter writer(Writing::Check);
    StoredWell stored;
    ASSERT_TRUE(writer.find("A", &stored));
    db.run("DROP TABLE WELLS");
}

struct ChangeCase {
    const char* name;
    std::function<void(WellRecord&)> change;
    Outcome outcome;
    const char* row; // well_name, spud_date, td, rte, units, descrip
};
void PrintTo(const ChangeCase& c, std::ostream* out) { *out << c.name; }

const ChangeCase kChanges[] = {
    {"nothing", [](WellRecord&) {}, Outcome::Same, "Ann`s well|1998-03-05|1000|25|M|d"},
    {"a text", [](WellRecord& w) { w.set(WellColumn::Name, textValue("Bob")); }, Outcome::Changed,
        "Bob|1998-03-05|1000|25|M|d"},
    {"an emptied date", [](WellRecord& w) { w.set(WellColumn::SpudDate, Value()); },
        Outcome::Changed, "Ann`s well|NULL|1000|25|M|d"},
    {"the seventh decimal of a latitude",
        [](WellRecord& w) { w.set(WellColumn::Latitude, 61.123456788); }, Outcome::Changed,
        "Ann`s well|1998-03-05|1000|25|M|d"},
    {"the description alone", [](WellRecord& w) { w.description = textValue("e"); },
        Outcome::Changed, "Ann`s well|1998-03-05|1000|25|M|e"},
    {"the units, which stored depths follow",
        [](WellRecord& w) { w.set(WellColumn::Units, Value("F")); }, Outcome::Changed,
        "Ann`s well|1998-03-05|3281|82|F|d"},
    {"a depth in feet of a well in metres",
        [](WellRecord& w) { w.setDepth(WellColumn::Td, 1000, 'F'); }, Outcome::Changed,
        "Ann`s well|1998-03-05|305|25|M|d"},
    {"a depth in the unit of the well",
        [](WellRecord& w) {
            w.set(WellColumn::Units, Value("F"));
            w.setDepth(WellColumn::Td, 2000, 0);
        },
        Outcome::Changed, "Ann`s well|1998-03-05|2000|82|F|d"},
};

class WellChange : public testing::TestWithParam<ChangeCase> {};

TEST_P(WellChange, WritesWhatDiffers)
{
    TestDatabase db;
    db.run("INSERT INTO WELLS (well_code, well_name, spud_date, lat_dec, td, rte, units, type)"
           " VALUES ('A', 'Ann`s well', '1998-03-05', 61.123456789, 1000, 25, 'M', 'O')");
    db.run("INSERT INTO WELL_IDENT VALUES (7, 'A', 'd')");
    WellRecord well = wellOf("A");
    GetParam().change(well);
    long id = 0;
    EXPECT_EQ(GetParam().outcome, put(well, &id, Writing::Check));
    EXPECT_EQ(GetParam().outcome, put(well, &id));
    EXPECT_EQ(7, id);
    EXPECT_EQ(std::string(GetParam().row) + "|O",
        db.rows("SELECT well_name, spud_date, cast(round(td) AS INTEGER),"
                " cast(round(rte) AS INTEGER), units, descrip, type"
                " FROM WELLS w JOIN WELL_IDENT i ON i.well_code = w.well_code")
            .at(0));
    EXPECT_EQ(Outcome::Same, put(well, &id));
}
INSTANTIATE_TEST_SUITE_P(Rules, WellChange, testing::ValuesIn(kChanges));

TEST_F(Wells, WithHalfOfTheirRowsAreCompleted)
{
    db.run("INSERT INTO WELL_IDENT VALUES (7, 'A', 'd')");
    EXPECT_EQ(Outcome::New, put(wellOf("A"), &id));
    EXPECT_EQ(7, id);
    db.run("DELETE FROM WELL_IDENT");
    EXPECT_EQ(Outcome::Changed, put(wellOf("A"), &id));
    EXPECT_EQ(1, id);
    EXPECT_EQ("A|1", row("w.well_code, well_id"));
}

struct KeyCase {
    const char* name;
    SampleRecord a, b;
    bool same;
};
void PrintTo(const KeyCase& c, std::ostream* out) { *out << c.name; }

SampleRecord sampleOf(
    std::optional<double> top, std::optional<double> base, const char* type, const char* label)
{
    return {7, top, base, type, label, {}, {}};
}

const KeyCase kKeys[] = {
    {"base completed from the top", sampleOf(5, {}, "CU", ""), sampleOf(5, 5, "CU", ""), true},
    {"top completed from the base", sampleOf({}, 5, "SC", ""), sampleOf(5, 5, "SC", ""), true},
    {"zero and none", sampleOf(0, 0, "CO", "x"), sampleOf({}, {}, "CO", "x"), true},
    {"float and double", sampleOf(0.495, 1, "CO", ""), sampleOf(0.495f, 1, "CO", ""), true},
    {"apostrophe and backquote", sampleOf(1, 2, "CU", "a'"), sampleOf(1, 2, "CU", "a`"), true},
    {"type in small letters", sampleOf(1, 2, "CU", ""), sampleOf(1, 2, "cu", ""), true},
    {"a tenth of a millimetre", sampleOf(1, 2, "CU", ""), sampleOf(1, 2.0001, "CU", ""), false},
    {"label", sampleOf(1, 2, "CU", "a"), sampleOf(1, 2, "CU", "A"), false},
    {"type", sampleOf(1, 2, "CU", ""), sampleOf(1, 2, "SC", ""), false},
    {"negative depth", sampleOf(1, 2, "CU", ""), sampleOf(-1, 2, "CU", ""), false},
    {"sign of a base", sampleOf(1, 2, "CU", ""), sampleOf(1, -2, "CU", ""), false},
};

class SampleKey : public testing::TestWithParam<KeyCase> {};

TEST_P(SampleKey, TellsSamplesApart)
{
    const auto& [name, a, b, same] = GetParam();
    EXPECT_EQ(same, sampleKey(a) == sampleKey(b)) << sampleKey(a) << " / " << sampleKey(b);
}
INSTANTIATE_TEST_SUITE_P(Rules, SampleKey, testing::ValuesIn(kKeys));

class Samples : public testing::Test {
protected:
    Outcome put(const SampleRecord& record, Writing writing = Writing::Write)
    {
        SampleWriter writer(writing);
        Transaction transaction;
        const Outcome outcome = writer.put(record, &id);
        EXPECT_TRUE(transaction.commit());
        return outcome;
    }
    TestDatabase db;
    const Restore<FixedText<5>> user{currentUserAbr, FixedText<5>("AB")};
    long id = 0;
};

TEST_F(Samples, ComeInOnceWithWhoBroughtThem)
{
    db.run("INSERT INTO SAMPLES (samp_id, well_id, top_depth, base_depth, type, label) VALUES"
           " (4, 7, 10, 0, 'CU', NULL), (3, 8, 5, 6, 'CU', 'x')");
    EXPECT_EQ(Outcome::Same, put(sampleOf(10, 10, "CU", "")));
    EXPECT_EQ(4, id);
    SampleRecord sample = sampleOf(5, 6, "CU", "x");
    sample.gridX = Value(12L);
    EXPECT_EQ(Outcome::New, put(sample, Writing::Check));
    EXPECT_EQ(5, id);
    EXPECT_EQ(Outcome::New, put(sample)) << "the one of another well is another";
    EXPECT_EQ(Outcome::Same, put(sample));
    const std::string today = Date::Today().isoText();
    const std::string columns =
        "SELECT well_id, cast(depth AS INTEGER), cast(bot_depth AS INTEGER),"
        " type, label, grid_x, creator, created, modifier, modified FROM SAMPLES"
        " WHERE samp_id = 5";
    EXPECT_EQ("7|5|6|CU|x|12|AB|" + today + "|NULL|NULL", db.rows(columns).at(0));
    sample.gridX = Value();
    EXPECT_EQ(Outcome::Changed, put(sample));
    EXPECT_EQ("7|5|6|CU|x|NULL|AB|" + today + "|AB|" + today, db.rows(columns).at(0));
}

TEST_F(Samples, OfOneWriterAreRemembered)
{
    SampleWriter writer(Writing::Write);
    Transaction transaction;
    EXPECT_EQ(Outcome::New, writer.put(sampleOf(1, 2, "CU", ""), &id));
    SampleRecord moved = sampleOf(1, 2, "CU", "");
    moved.gridY = Value(3L);
    EXPECT_EQ(Outcome::Changed, writer.put(moved, &id));
    EXPECT_EQ(Outcome::Same, writer.put(moved, &id));
    EXPECT_EQ(1, id);
}

// Whatever call fails, the writer says so; a failure that passed for "not there" would store a well
// twice.
TEST(WriterFaults, EachDriverCallFailing)
{
    for (int n = 1;; ++n) {
        TestDatabase db;
        db.run("INSERT INTO WELLS (well_code, well_name) VALUES ('A', 'old')");
        db.run("INSERT INTO WELL_IDENT VALUES (7, 'A', NULL)");
        db.run("INSERT INTO SAMPLES (samp_id, well_id, top_depth, type) VALUES (1, 7, 10, 'CU')");
        const DriverFault fault(n);
        bool good = false;
        {
            Transaction transaction;
            WellWriter wells(Writing::Write);
            SampleWriter samples(Writing::Write);
            long id = 0;
            good = wells.put(wellOf("A"), &id) == Outcome::Changed
                && wells.put(wellOf("B"), &id) == Outcome::New
                && samples.put(sampleOf(10, {}, "CU", ""), &id) == Outcome::Same
                && samples.put(sampleOf(20, {}, "CU", ""), &id) == Outcome::New
                && transaction.commit();
        }
        const std::string wells = db.value("SELECT count(*) FROM WELLS");
        const std::string samples = db.value("SELECT count(*) FROM SAMPLES");
        EXPECT_EQ(good ? "22" : "11", wells + samples) << fault.call() << " " << n;
        if (!fault.fired()) {
            EXPECT_TRUE(good);
            EXPECT_GT(n, 20) << "the faults were counted through";
            break;
        }
        const std::string call = fault.call();
        EXPECT_TRUE(
            !good || call == "SQLFreeStmt" || call == "SQLRowCount" || call == "SQLFreeHandle")
            << call << " " << n;
    }
}

} // namespace

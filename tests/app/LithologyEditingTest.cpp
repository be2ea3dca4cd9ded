// tests/app/LithologyEditingTest.cpp
#include "app/shell/LithologyEditing.h"
#include "app/shell/InterpretationVersions.h"
#include "db/Session.h"
#include "interp/LithQualifier.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestDatabase.h"
#include "well/Well.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

const char* const kRocks =
    "SELECT round(top_depth, 4), round(base_depth, 4), lith_id FROM ZRILITH ORDER BY rowid";

const char* const kTwoRocks =
    "INSERT INTO ZRILITH VALUES (7, 0, 100.1, 1000), (7, 100.1, 150, 1001)";

class LithologyEdits : public testing::Test {
protected:
    LithologyEdits()
    {
        for (const char* row :
            {"INSERT INTO WELLS (well_code, type, units) VALUES ('W7', 'W', 'M')",
                "INSERT INTO WELL_IDENT (well_id, well_code) VALUES (7, 'W7')",
                "INSERT INTO LITHDESC (lith_id, descr, abr, cmp) VALUES (1000, 'Sand`y', 'SST',"
                " 'N'), (1001, 'Clay', 'CL', 'N'), (1002, 'Pyrite', 'PYR', 'A')",
                kTwoRocks, "INSERT INTO ZRQLITH VALUES (7, 100.1, 120, 1002, 'A', 'R', 2.5, '')"})
            db.run(row);
    }
    LithologyEditing& open(char type = 'W')
    {
        well = std::make_unique<Well>(7);
        well->type = type;
        edits = std::make_unique<LithologyEditing>(*well);
        return *edits;
    }
    /// The depths that the record came to have, or the fault.
    std::string outcome(const LithologyEdit& edit) const
    {
        if (!edit.record)
            return std::to_string(static_cast<int>(edit.faults[0].field)) + ": "
                + edit.faults[0].text;
        const LithologyInput input = edits->inputOf(*edit.record, 'M');
        return input.top + "-" + input.base;
    }

    TestDatabase db;
    MessageLog boxes;
    std::unique_ptr<Well> well;
    std::unique_ptr<LithologyEditing> edits;
};

struct InputCase {
    const char* rule;
    char type;
    char units;
    LithologyInput input;
    const char* outcome;
};

void PrintTo(const InputCase& c, std::ostream* out) { *out << c.rule; }

const InputCase kInputs[] = {
    {"meets its neighbour", 'W', 'M', {'N', "150", "160,5", 1000}, "150.00-160.50"},
    {"overlaps", 'W', 'M', {'N', "140", "160", 1000},
        "3: It would overlap Clay, 100.10 to 150.00 m."},
    {"shares a top", 'W', 'M', {'N', "0", "50", 1001},
        "3: It would overlap Sand'y, 0.00 to 100.10 m."},
    {"encloses, in feet", 'W', 'F', {'N', "400", "410", 1000},
        "3: It would overlap Clay, 328.41 to 492.13 ft."},
    {"qualifiers may overlap", 'W', 'M', {'A', "90", "130", 1002}, "90.00-130.00"},
    {"a qualifier may be a point", 'W', 'M', {'A', "90", "90", 1002}, "90.00-90.00"},
    {"a rock may not", 'W', 'M', {'N', "160", "160", 1000},
        "1: Nothing lies between the top and the base."},
    {"nor as good as", 'W', 'M', {'N', "160", "160.005", 1000},
        "1: Nothing lies between the top and the base."},
    {"upside down", 'W', 'M', {'N', "170", "160", 1000}, "1: The base lies above the top."},
    {"a section is read upwards", 'O', 'M', {'N', "170", "160", 1000}, "170.00-160.00"},
    {"a section upside down", 'O', 'M', {'N', "160", "170", 1000},
        "1: The base lies above the top: in a section depths are read upwards."},
    {"no top", 'W', 'M', {'N', " ", "170", 1000}, "0: A depth is missing."},
    {"no number", 'W', 'M', {'N', "160", "1x", 1000}, "1: \"1x\" is not a number."},
    {"no end", 'W', 'M', {'N', "160", "inf", 1000}, "1: \"inf\" is not a number."},
    {"no rock", 'W', 'M', {'N', "160", "170", 999}, "2: Choose what it is."},
};

class LithologyInputs : public LithologyEdits, public testing::WithParamInterface<InputCase> {};

TEST_P(LithologyInputs, AreTakenOrTold)
{
    const InputCase& c = GetParam();
    const std::string told = outcome(open(c.type).add(c.input, c.units));
    EXPECT_EQ(c.outcome, told);
    EXPECT_EQ(!told.starts_with(std::to_string(told[0] - '0') + ": "), edits->isChanged());
}

INSTANTIATE_TEST_SUITE_P(Rules, LithologyInputs, testing::ValuesIn(kInputs));

TEST_F(LithologyEdits, SavingKeepsWhatWasNotEdited)
{
    open();
    const IGDBase* clay = edits->rocks().at(1);
    LithologyInput input = edits->inputOf(*clay, 'F');
    EXPECT_EQ("328.41", input.top) << "which is a little less than 100.1 m";
    EXPECT_THAT(edits->saidOf(*clay, 'F'), ElementsAre("accessory Pyrite, 328.41 to 393.70 ft"));
    input.lith_id = 1000;
    ASSERT_TRUE(edits->change(*clay, input, 'F').record);
    ASSERT_TRUE(edits->add({'N', "500", "600", 1001}, 'F').record);
    const IGDBase* pyrite = edits->qualifiers().at(0);
    EXPECT_EQ("110.00-120.00", outcome(edits->change(*pyrite, {'A', "110", "120", 1002}, 'M')));
    EXPECT_EQ("", edits->save('F'));
    EXPECT_FALSE(edits->isChanged());
    EXPECT_THAT(
        db.rows(kRocks), ElementsAre("0|100.1|1000", "100.1|150|1000", "152.4|182.88|1001"));
    EXPECT_THAT(db.rows("SELECT top_depth, type, alignment, plotpos, txt FROM ZRQLITH"),
        ElementsAre("110|A|R|2.5|NULL"));
    edits->remove(*edits->rocks().at(0));
    EXPECT_TRUE(edits->isChanged());
    EXPECT_EQ("", edits->save('M')) << "what was saved is what is there now";
    EXPECT_EQ(2U, db.rows(kRocks).size());
    EXPECT_THAT(boxes.texts(), testing::IsEmpty());
}

TEST_F(LithologyEdits, ASectionIsSavedUpwards)
{
    db.run("UPDATE ZRILITH SET top_depth=base_depth, base_depth=top_depth");
    open('O');
    ASSERT_TRUE(edits->add({'N', "160", "150", 1000}, 'M').record);
    EXPECT_EQ("", edits->save('M'));
    EXPECT_THAT(db.rows(kRocks), ElementsAre("160|150|1000", "150|100.1|1001", "100.1|0|1000"));
}

struct RefusalCase {
    const char* rule;
    const char* before; ///< what the database holds besides
    const char* since;  ///< what somebody does after the list was read
    char removed;       ///< of which kind the first record goes
    const char* reason; ///< part of it; empty: is saved
};

void PrintTo(const RefusalCase& c, std::ostream* out) { *out << c.rule; }

const char* const kFreeText = "INSERT INTO ZRQLITH VALUES (7, 50, 60, 0, 'Z', 'L', 0, 'o`oids')";
const char* const kUnknown = "INSERT INTO ZRILITH VALUES (7, 200, 210, 5000)";
const RefusalCase kRefusals[] = {
    {"a free text", kFreeText, "", 'A',
        "lose the text \"o'oids\" of the interval 50.00 to 60.00 m"},
    {"which goes with its own", kFreeText, "", 'Z', ""},
    {"or when the rocks are saved alone", kFreeText, "", 'N', ""},
    {"the text of an accessory",
        "INSERT INTO ZRQLITH VALUES (7, 130, 140, 1002, 'A', 'L', 1, 'fine')", "", 'A',
        "lose the text \"fine\" of the interval 130.00 to 140.00 m"},
    {"a rock that the dictionary has not got", kUnknown, "", 'N',
        "delete the interval 200.00 to 210.00 m: the lithology dictionary does not have its rock,"
        " number 5000"},
    {"which saving qualifiers leaves alone", kUnknown, "", 'A', ""},
    {"a row of another user", "", "UPDATE ZRILITH SET lith_id=1000", 'N',
        "Interval Lithology was changed in the database since it was read"},
    {"a text of another user", "", "UPDATE ZRQLITH SET txt='new'", 'A',
        "Lithology Qualifier was changed in the database since it was read"},
};

class LithologyRefusals : public LithologyEdits, public testing::WithParamInterface<RefusalCase> {};

TEST_P(LithologyRefusals, LoseNothing)
{
    const RefusalCase& c = GetParam();
    if (*c.before)
        db.run(c.before);
    open();
    for (const IGDList* list : {&edits->rocks(), &edits->qualifiers()}) {
        const auto found = std::find_if(list->begin(), list->end(),
            [&](const IGDBase* record) { return lithologyKind(*record) == c.removed; });
        if (found != list->end())
            edits->remove(**found);
    }
    if (*c.since)
        db.run(c.since);
    const auto stored = [&] {
        auto rows = db.rows("SELECT * FROM ZRQLITH");
        for (const std::string& row : db.rows(kRocks))
            rows.push_back(row);
        return rows;
    };
    const auto before = stored();
    const std::string reason = edits->save('M');
    EXPECT_THAT(reason, HasSubstr(c.reason));
    EXPECT_EQ(reason.empty(), !*c.reason);
    EXPECT_EQ(reason.empty() ? before.size() - 1 : before.size(), stored().size());
    EXPECT_EQ(reason.empty(), stored() != before);
}

INSTANTIATE_TEST_SUITE_P(Rules, LithologyRefusals, testing::ValuesIn(kRefusals));

TEST_F(LithologyEdits, EachDriverCallFailingWhileReadingLosesNoRow)
{
    const auto before = db.rows(kRocks);
    int cutShort = 0;
    for (int n = 1;; ++n) {
        const DriverFault fault(n);
        const IGDList& rocks = open().rocks();
        if (!fault.fired())
            break;
        if (rocks.count() != 1)
            continue;
        ++cutShort;
        edits->remove(*rocks.at(0));
        EXPECT_THAT(edits->save('M'), HasSubstr("was not read whole")) << fault.call() << ' ' << n;
        EXPECT_EQ(before, db.rows(kRocks));
    }
    EXPECT_GT(cutShort, 0);
}

TEST_F(LithologyEdits, EachDriverCallFailingWhileSavingSavesAllOrNothing)
{
    const auto before = db.rows(kRocks);
    int failed = 0;
    for (int n = 1;; ++n) {
        dbRollback(); // one that failed leaves a lock
        db.run("DELETE FROM ZRILITH");
        db.run(kTwoRocks);
        open();
        edits->remove(*edits->rocks().at(0));
        std::string reason;
        {
            const DriverFault fault(n);
            reason = edits->save('M');
            if (!fault.fired())
                break;
        }
        if (reason.empty())
            continue; // what did not come was of no consequence
        ++failed;
        EXPECT_EQ(before, db.rows(kRocks)) << n << reason;
        EXPECT_TRUE(edits->isChanged()) << n << reason;
    }
    EXPECT_GT(failed, 5);
    EXPECT_EQ("", edits->save('M')) << "saved before, and nothing is left to save";
    EXPECT_EQ(1U, db.rows(kRocks).size());
}

TEST_F(LithologyEdits, VersionsAreThoseOfAnyRecordAndTheDefaultOne)
{
    EXPECT_THAT(interpretationVersions(7), ElementsAre(0));
    db.run("INSERT INTO IGD (well_id, igd_type, interp_id) VALUES (7, 3, 4), (8, 3, 9)");
    db.run("INSERT INTO IGD_ENV (well_id, interp_id) VALUES (7, NULL), (7, 2)");
    db.run("INSERT INTO SQPICK (well_id, interp_id) VALUES (7, 4), (7, 3)");
    EXPECT_THAT(interpretationVersions(7), ElementsAre(0, 2, 3, 4));
}

} // namespace

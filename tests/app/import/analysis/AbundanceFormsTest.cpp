// tests/app/import/analysis/AbundanceFormsTest.cpp
#include "app/import/Abundance.h"
#include "app/import/EventKind.h"
#include "app/tables/NamedNotes.h"

#include <ostream>
#include <sstream>

#include <gtest/gtest.h>

namespace {

struct Form {
    const char* written;
    const char* read;
};
void PrintTo(const Form& f, std::ostream* out) { *out << f.written; }

std::string textOf(const AbundanceReading& r)
{
    std::ostringstream text;
    text << r.code;
    if (r.count)
        text << " n" << *r.count;
    if (r.percent)
        text << ' ' << *r.percent << '%';
    text << (r.reworked ? " reworked" : "") << (r.questionable ? " doubted" : "")
         << (r.caved ? " caved" : "") << (r.absent ? " absent" : "")
         << (r.understood ? "" : " unread");
    return text.str();
}

const Form kForms[] = {
    {"", ""},
    {"R", "R"},
    {"VA", "VA"},
    {"+", "+"},
    {"rare", "R"},
    {"RARE?", "R doubted"},
    {"12", " n12"},
    {"4.5", " n4.5"},
    {"4,5", " n4.5"},
    {"14%", " 14%"},
    {".6 %", " 0.6%"},
    {"1,5%", " 1.5%"},
    {"?", " doubted"},
    {"R?", "R doubted"},
    {"? R", "R doubted"},
    {"3?", " n3 doubted"},
    {"rT", "T reworked"},
    {"r1", " n1 reworked"},
    {"r+", "+ reworked"},
    {"r10%?", " 10% reworked doubted"},
    {"rr", "rr"},
    {"r", "r"},
    {"cR", "R caved"},
    {"rw", " reworked"},
    {"Caved", " caved"},
    {"-", " absent"},
    {"0", " absent"},
    {"0.0%", " absent"},
    {"<1%", " unread"},
    {"2-5", " unread"},
    {"-3", " unread"},
    {"(R", " unread"},
    {"1+", " unread"},
    {"one whole sentence?", " doubted unread"},
};

class Abundances : public testing::TestWithParam<Form> {};

TEST_P(Abundances, AreReadAsTheTradeWritesThem)
{
    EXPECT_EQ(GetParam().read, textOf(readAbundance(GetParam().written, {{"RARE", "R"}})));
}
INSTANTIATE_TEST_SUITE_P(Forms, Abundances, testing::ValuesIn(kForms));

const Form kKinds[] = {{"F", "F"}, {"L", "L"}, {"Top", "F"}, {"FO", "L"}, {"fad", "L"}, {"LO", "F"},
    {"LAD", "F"}, {"LCO", "F common"}, {"FCO", "L common"}, {"FDO", "F"}, {"", "none"},
    {"FOX", "none"}};

TEST(EventKinds, FollowTheOrderOfDrilling)
{
    for (const auto& [written, read] : kKinds) {
        const auto kind = eventKindOf(written);
        EXPECT_EQ(
            read, kind ? std::string(1, kind->kind) + (kind->common ? " common" : "") : "none")
            << written;
    }
}

const Form kNotes[] = {
    // value of a field, text
    {"14%", ""},
    {"14%", "seen by two; of us"},
    {"a; b=\"c\"", "rest"},
    {" x ", "abundance=no field"},
    {"", "plain; text = here"},
    {"", "a=\"b"},
};

TEST(Notes, ComeApartAsTheyWerePut)
{
    for (const auto& [value, text] : kNotes) {
        NamedNotes notes;
        notes.add("abundance", value);
        notes.add("percent", "3");
        notes.text = text;
        const NamedNotes read = namedNotesOf(notes.compose());
        EXPECT_EQ(notes.fields, read.fields) << notes.compose();
        EXPECT_EQ(text, read.text) << notes.compose();
    }
    EXPECT_EQ("as people write", namedNotesOf("as people write").text);
}

} // namespace

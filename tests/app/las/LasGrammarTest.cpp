#include "app/las/LasFile.h"

#include <sstream>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string kSound = R"(# a comment
~Version
VERS.      3.0            : version
WRAP.      NO             : wrapped
DLM .      COMMA          : delimiter
~Well
STRT.M     1000.0         : first depth {F}
STOP.M     1200.0         : last depth {F}
STEP.M     0              : step {F}
NULL.      -999.25        : null value {F}
COMP.      Any Co. Ltd.   : company {S}
WELL.      Ørnefjell 1    : well {S}
FLD .                     : field
LOC .                     : location
SRVC.                     : service company
CTRY.      NOWHERE        : country
DATE.      17/05/2001     : date {DD/MM/YYYY}
UWI .      0042           : code
~Tops_Definition
TOPN.                     : name {S} | REGION,AGE[1]
TOPT.M                    : top {F10.4}
RANK.                     : rank {I}
~Tops_Data | Tops_Definition
"Lower, and ~upper",1000.5,1

 Plain , ,2
)";

std::vector<std::string> problemsIn(const std::string& text, LasFile* file = nullptr)
{
    std::vector<std::string> problems;
    std::istringstream in(text);
    LasFile read = readLas(in, &problems);
    if (file)
        *file = std::move(read);
    return problems;
}

std::string replaced(std::string text, const std::string& what, const std::string& with)
{
    const std::size_t at = text.find(what);
    EXPECT_NE(std::string::npos, at) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), with);
}

TEST(LasGrammar, ReadsASoundFile)
{
    LasFile file;
    EXPECT_THAT(problemsIn(kSound, &file), IsEmpty());
    EXPECT_EQ("Any Co. Ltd.", file.section("well")->item("comp")->value);
    const LasItem& name = file.section("Tops_Definition")->items.at(0);
    EXPECT_EQ("name", name.description);
    EXPECT_EQ("S", name.format);
    EXPECT_THAT(name.associations, ElementsAre("REGION", "AGE[1]"));
    const LasSection* tops = file.section("Tops_Data");
    ASSERT_EQ(2u, tops->rows.size());
    EXPECT_THAT(tops->rows[0].fields, ElementsAre("Lower, and ~upper", "1000.5", "1"));
    EXPECT_THAT(tops->rows[1].fields, ElementsAre("Plain", "", "2"));
    EXPECT_EQ(26, tops->rows[1].line);
}

TEST(LasGrammar, OtherDelimiters)
{
    LasFile file;
    const std::string rows = "\"Lower, and ~upper\",1000.5,1\n\n Plain , ,2\n";
    const std::string blanks = replaced(kSound, rows, "  \"Two words\"   1  2 \n");
    EXPECT_THAT(problemsIn(replaced(blanks, "COMMA", "SPACE"), &file), IsEmpty());
    EXPECT_THAT(file.section("Tops_Data")->rows[0].fields, ElementsAre("Two words", "1", "2"));
    const std::string tabs = replaced(kSound, rows, "Two, words\t\t2\r\n");
    EXPECT_THAT(problemsIn(replaced(tabs, "COMMA", "TAB"), &file), IsEmpty());
    EXPECT_THAT(file.section("Tops_Data")->rows[0].fields, ElementsAre("Two, words", "", "2"));
}

struct Broken {
    const char* rule;
    const char* what; ///< in the sound file
    const char* with;
    const char* problem;
};

const Broken kBroken[] = {
    {"nothing in front of the sections", "# a comment", "a comment", "line 1: text in front"},
    {"version first", "~Version", "~Parameter", "line 2: the first section is not ~Version"},
    {"items of the version in order", "VERS.      3.0            : version\n", "",
        "does not hold VERS, WRAP and DLM"},
    {"this version", "3.0 ", "2.0 ", "line 3: not version 3.0"},
    {"no wrapping", "NO ", "YES", "line 4: lines of this version"},
    {"a delimiter by its name", "COMMA", ",    ", "line 5: the delimiter is none of"},
    {"well second", "~Well", "~Parameter", "line 6: the second section is not ~Well"},
    {"what a well must have", "SRVC.", "SRVX.", "~Well has no SRVC"},
    {"a code of the well", "UWI .", "CODE.", "neither UWI nor API"},
    {"one unit of the index", "STOP.M ", "STOP.F ", "line 8: STOP has another unit"},
    {"an index of numbers", "STEP.M     0", "STEP.M      ", "line 9: STEP is no number"},
    {"an item once", "COMP.", "WELL.", "line 12: a second WELL in ~Well"},
    {"a period behind the mnemonic", "WELL.  ", "WELL   ", "line 12: not of the form"},
    {"a colon in front of the description", "          : field", "           field",
        "line 13: not of the form"},
    {"a mnemonic of one word", "COMP.", "CO MP.", "line 11: a mnemonic is empty or has"},
    {"a mnemonic without marks", "COMP.", "CO\"P.", "line 11: a mnemonic holds"},
    {"a value without a colon", "Any Co.", "Any: Co.", "line 11: a unit or value holds"},
    {"a format that is closed", "company {S}", "company {S", "line 11: \"{\" without"},
    {"a format at the end", "company {S}", "company {S} x", "line 11: \"{\" without"},
    {"a known format", "company {S}", "company {Q}", "line 11: unknown format {Q}"},
    {"a date of its form", "17/05/2001", "2001-05-17", "line 17: \"2001-05-17\" is not"},
    {"a day of two digits", "17/05/2001", "7/05/2001 ", "line 17: \"7/05/2001\" is not"},
    {"associations of one word", "REGION,", "REGION,,", "line 20: an association behind"},
    {"a section once", "~Tops_Definition", "~Well", "line 19: a second section ~Well"},
    {"a title of one word", "~Tops_Data |", "~Tops Data |", "title of a section is empty"},
    {"data that name their definition", " | Tops_Definition", "", "names no definition"},
    {"a definition that is there", "| Tops_Definition", "| Core_Definition",
        "line 23: no definition ~Core_Definition stands above"},
    {"a definition with data", "~Tops_Data | Tops_Definition\n", "~X_Definition\nA. :\n#",
        "no data for ~X_Definition"},
    {"as many fields as items", ",1000.5,1", ",1000.5", "line 24: 2 fields where"},
    {"not more fields than items", ",1000.5,1", ",1000.5,1,", "line 24: 4 fields where"},
    {"numbers where they are declared", "1000.5", "1000.5m", "line 24: \"1000.5m\" is not"},
    {"no words for numbers", "1000.5", "nan", "line 24: \"nan\" is not"},
    {"whole numbers", ",1\n", ",1.5\n", "line 24: \"1.5\" is not of the form {I}"},
    {"quotes that are closed", "upper\"", "upper", "line 24: a quote that is never closed"},
    {"quotes around whole fields", "upper\"", "upper\" x", "line 24: text between a quote"},
    {"no quotes inside", " Plain", " Pl\"ain", "line 26: a quote inside a field"},
    {"no control characters", "Plain", "Pl\x01in", "line 26: a character that no text has"},
    {"text in UTF-8", "Ø", "\xD8", "line 12: a character that no text has"},
};

TEST(LasGrammar, RefusesABrokenFile)
{
    for (const Broken& broken : kBroken)
        EXPECT_THAT(problemsIn(replaced(kSound, broken.what, broken.with)),
            testing::Contains(HasSubstr(broken.problem)))
            << broken.rule;
}

TEST(LasGrammar, RefusesAFileThatEndsEarly)
{
    EXPECT_THAT(problemsIn(""), ElementsAre("line 1: a file has at least ~Version and ~Well"));
    EXPECT_THAT(problemsIn(kSound.substr(0, kSound.find("DLM"))),
        ElementsAre(HasSubstr("at least ~Version"), HasSubstr("does not hold VERS")));
    EXPECT_THAT(problemsIn(kSound.substr(0, kSound.find("UWI"))),
        ElementsAre(HasSubstr("neither UWI nor API")));
}

} // namespace

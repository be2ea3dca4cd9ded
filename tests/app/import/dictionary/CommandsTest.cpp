// tests/app/import/dictionary/CommandsTest.cpp
#include "tests/app/Program.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct CommandCase {
    const char* rule;
    const char* arguments;
    std::string out;
    const char* err = "";
};

const std::string kLadder = "Counts\n"
                            "level  code  name  from  stands for\n"
                            "    1  R     Rare     0           0\n"
                            "    2  5     Some     3          10\n"
                            "    3  +              4           0\n";

const CommandCase kCommands[] = {
    {"all names but synonyms", "taxa",
        "number  category  name\n"
        "     1  FORAM     Alphina alba d'Eta 1901\n"
        "     3  FORAM     Alphina (Deltina) rubra minor\n"
        "     5  RAD       Betina cf. aff. x\n"
        "     4  RAD       Betina sp.\n"},
    {"a genus in any letters", "taxa BETINA sp.",
        "number  category  name\n     4  RAD       Betina sp.\n"},
    {"a star, and a pattern in one text with the species", "taxa 'a* *br*'",
        "number  category  name\n     3  FORAM     Alphina (Deltina) rubra minor\n"},
    {"a percent sign, and a subspecies", "taxa % % min%",
        "number  category  name\n     3  FORAM     Alphina (Deltina) rubra minor\n"},
    {"a subgenus in brackets", "taxa '(del*)'",
        "number  category  name\n     3  FORAM     Alphina (Deltina) rubra minor\n"},
    {"a species without wildcards is whole", "taxa '*' alb", "number  category  name\n"},
    {"a category", "taxa '*' sp. --category ra*",
        "number  category  name\n     4  RAD       Betina sp.\n"},
    {"synonyms", "taxa '*' alba --synonyms",
        "number  category  name\n"
        "     1  FORAM     Alphina alba d'Eta 1901\n"
        "     2  FORAM     Alphina cf. alba\n"},
    {"names to use", "taxa alphina alba --scheme LIST",
        "number  category  name                     name to use (list)\n"
        "     1  FORAM     Alphina alba d'Eta 1901\n"
        "     2  FORAM     Alphina cf. alba         Alphina alba d'Eta 1901\n"},
    {"codes", "taxa --codes 60-70",
        "number  category  name                     code\n"
        "     1  FORAM     Alphina alba d'Eta 1901    70\n"},
    {"one code", "taxa --codes 71", "number  category  name  code\n"},
    {"codes that are none", "taxa --codes 70-", "",
        "zonaris: --codes 70-: a range such as 100-200 is meant.\n"},
    {"more words than a name has", "taxa a b c d", "",
        "zonaris: A name has a genus, a species and a subspecies; quote what belongs together with "
        "* in it.\n"},
    {"a scheme that is not there", "taxa --scheme x", "",
        "zonaris: No synonymy scheme is called x. There are: list.\n"},
    {"a name and its entries", "taxon Alphina cf alba",
        "part                   text\n"
        "Genus                  Alphina\n"
        "Pre-Species qualifier  cf.\n"
        "Species                alba\n"
        "\n"
        "name: Alphina cf. alba\n"
        "with italics: _Alphina_ cf. _alba_\n"
        "The name does not read back as it is written: Alphina cf alba\n"
        "In the dictionary: number 2, FORAM, Alphina cf. alba\n"},
    {"a name with author", "taxon \"Alphina alba d'Eta, 1901\"",
        "part     text\n"
        "Genus    Alphina\n"
        "Species  alba\n"
        "Author   d'Eta,\n"
        "Year     1901\n"
        "\n"
        "name: Alphina alba d'Eta, 1901\n"
        "with italics: _Alphina alba_ d'Eta, 1901\n"
        "In the dictionary: number 1, FORAM, Alphina alba d'Eta 1901\n"},
    {"a fault, found as an import stores it", "taxon Betina cf. aff. x",
        "part                   text\n"
        "Genus                  Betina\n"
        "Pre-Species qualifier  cf. aff.\n"
        "Species                x\n"
        "\n"
        "name: Betina cf. aff. x\n"
        "with italics: _Betina_ cf. aff. _x_\n"
        "Pre-Species qualifier: these marks cannot stand together; an import leaves all marks in "
        "the name.\n"
        "In the dictionary: number 5, RAD, Betina cf. aff. x\n"},
    {"a name that is not there", "taxon Betina",
        "part   text\n"
        "Genus  Betina\n"
        "\n"
        "name: Betina\n"
        "with italics: _Betina_\n"
        "The name is not in the dictionary.\n"},
    {"no name", "taxon ' '", "", "zonaris: There is no name in this text.\n"},
    {"a ladder", "abundance counts", kLadder},
    {"a count", "abundance 1 4", kLadder + "A count of 4 is 5, Some.\n"},
    {"a code", "abundance Counts R", kLadder + "The code R stands for 0.\n"},
    {"a code that is a number, too", "abundance Counts 5",
        kLadder
            + "The code 5 stands for 10.\n"
              "A count of 5 is 5, Some.\n"},
    {"neither", "abundance Counts Z", kLadder,
        "zonaris: Z is neither a count nor a code of this scheme.\n"},
    {"no such scheme", "abundance x", "",
        "zonaris: No abundance scheme is called x. There are: Counts.\n"},
};

class Commands : public Program {
protected:
    Commands()
    {
        folder.write("categories.csv", "category,disc_id\nFORAM,M\nRAD,M\n");
        folder.write("taxa.csv",
            "category,name,author,year,code\nFORAM,Alphina alba,d'Eta,1901,70\n"
            "FORAM,Alphina cf. alba,,,\nFORAM,Alphina (Deltina) rubra minor,,,\n"
            "RAD,Betina sp.,,,\nRAD,Betina cf. aff. x,,,\n");
        folder.write("list_synonymy.csv", "name,preferred_name\nAlphina cf. alba,Alphina alba\n");
        folder.write("schemes.csv", "scheme_id,name\n1,Counts\n");
        folder.write("levels.csv",
            "scheme_id,entry_name,abr,min,output_val\n1,Rare,R,0,\n1,Some,5,3,10\n1,,+,4,\n");
        EXPECT_EQ(0, run("create --empty a.zdb"));
        EXPECT_EQ(0, run("--database a.zdb import --strict .")) << err;
    }
};

TEST_F(Commands, AnswerInEveryDialect)
{
    for (const char* kind : {"0", "2"})
        for (const auto& [rule, arguments, expected, message] : kCommands) {
            const int status =
                run(std::string("--database a.zdb --kind ") + kind + ' ' + arguments);
            EXPECT_EQ(expected, out) << rule;
            EXPECT_EQ(message, err) << rule;
            EXPECT_EQ(*message ? 1 : 0, status) << rule;
        }
}

TEST_F(Program, ReadsNamesWithoutADatabase)
{
    EXPECT_EQ(0, run("taxon '\"Alphina\" alba'"));
    EXPECT_THAT(out, StartsWith("part                  text\nPre-Genus qualifier   \"\n"));
    EXPECT_THAT(out, testing::Not(HasSubstr("dictionary")));
    EXPECT_EQ(2, run("taxa"));
    EXPECT_THAT(err, HasSubstr("name it with --database or --connect"));
}

} // namespace

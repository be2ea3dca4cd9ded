// tests/app/import/dictionary/TaxaImportTest.cpp
#include "app/import/Cells.h"
#include "app/import/ImportContext.h"
#include "app/import/Loader.h"
#include "taxonomy/Categories.h"
#include "tests/app/import/dictionary/FaultSweep.h"

#include <ostream>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct FileCase {
    const char* name;
    Files files;
    Lines issues;
    Lines names; ///< in the dictionary then, behind those that were there
    Lines uses = {};
    Lines there = {"1 FORAM Alphina alba Gamma", "2 RAD Alphina alba", "3 FORAM Alphina rubra"};
};
void PrintTo(const FileCase& c, std::ostream* out) { *out << c.name; }

// Into a dictionary with one name in two categories.
class Dictionaries : public testing::TestWithParam<FileCase> {
protected:
    void SetUp() override
    {
        db.run("INSERT INTO CATEGORY VALUES ('FORAM', 'foraminifera', 'M'), ('RAD', 'rads', 'M')");
        db.run("INSERT INTO GENUS (gen_id, cat_mnem, genus) VALUES (1, 'FORAM', 'Alphina'),"
               " (2, 'RAD', 'Alphina')");
        db.run("INSERT INTO SPECIES (spec_id, gen_id, species, author) VALUES"
               " (1, 1, 'alba', 'Gamma'), (2, 2, 'alba', NULL), (3, 1, 'rubra', NULL)");
    }
    void expect()
    {
        IssueLog log;
        const ImportResult result = importAll(GetParam().files, log);
        EXPECT_EQ("", result.failure);
        EXPECT_EQ(GetParam().issues, log.texts);
        Lines names = GetParam().there;
        names.insert(names.end(), GetParam().names.begin(), GetParam().names.end());
        EXPECT_EQ(names, namesOf(db));
        EXPECT_EQ(GetParam().uses, usesOf(db));
        EXPECT_THAT(db.rows("SELECT g.cat_mnem FROM GENUS g WHERE g.cat_mnem NOT IN"
                            " (SELECT cat_mnem FROM CATEGORY)"),
            IsEmpty())
            << "categories come with the first of their taxa";
        const Lines before = dictionariesOf(db);
        EXPECT_EQ(0, importAll(GetParam().files, log).stored()) << "a second import";
        EXPECT_EQ(before, dictionariesOf(db));
    }
    TestDatabase db;
};

std::string at(int line) { return "taxa.csv:" + std::to_string(line) + ": "; }
const std::string kNoCategory = "taxa.csv: note: taxa without a category are stored without one";

const FileCase kTaxa[] = {
    {"names in one text",
        {{"taxa.csv", "cat_mnem,name\nFORAM,Alphina alba\nforam,Betina cf. nova\n"}}, {},
        {"4 FORAM Betina cf. nova"}},
    {"names in pieces",
        {{"taxa.csv",
            "category,genus,species_modifier,species,subspecies,author,year,source_code,code\n"
            "RAD,Betina,cf.,nova,,d'Eta,1990,AB1,70\n"
            "RAD,Betina,,nova,minor,,,,\n"}},
        {}, {"4 RAD Betina cf. nova d'Eta 1990", "5 RAD Betina nova minor"}},
    {"doubt about a species in a column of its own",
        {{"taxa.csv", "category,genus,species_modifier,species\nRAD,Betina,?,nova\n"}},
        {at(2)
            + "adjusted: name \"Betina ? nova\": reads back as \"Betina nova?\"; as published it "
              "is kept in the notes"},
        {"4 RAD Betina nova? [As published: Betina ? nova]"}},
    {"a name that does not come back as written",
        {{"taxa.csv", "category,name\nRAD,Betina nova s.l.\n"}},
        {at(2)
            + "adjusted: name \"Betina nova s.l.\": reads back as \"Betina nova sl.\"; as "
              "published "
              "it is kept in the notes"},
        {"4 RAD Betina nova sl. [As published: Betina nova s.l.]"}},
    {"marks that cannot stand together",
        {{"taxa.csv", "category,name\nRAD,Betina cf. aff. nova\n"}},
        {at(2)
            + "adjusted: name \"Betina cf. aff. nova\": Pre-Species qualifier: these marks cannot "
              "stand together; all marks were left in the name"},
        {"4 RAD Betina cf. aff. nova"}},
    {"quotation marks, bars, apostrophes, letters",
        {{"taxa.csv",
            "category,name\nRAD,\"\"\"Betina|x\"\" d'orbignyi\"\nRAD,Ørnella åsensis (5µm)\n"}},
        {}, {"4 RAD \"Betina|x\" d'orbignyi", "5 RAD Ørnella åsensis (5µm)"}},
    {"a wildcard in a name", {{"taxa.csv", "category,name\nRAD,Betina 50%\n"}},
        {at(2)
            + "adjusted: name \"Betina 50%\": stored, but not found by this name: searches take a "
              "percent sign for a wildcard"},
        {"4 RAD Betina 50%"}},
    {"genus alone, above the genus, long names",
        {{"taxa.csv",
            "category,name,above_genus\nRAD,Betina,\nRAD,,\"\"\"Old black stuff\"\"\"\n"
            "RAD,Betina nova (w/ very long major spines) etc,\n"}},
        {},
        {"4 RAD Betina", "5 RAD \"Old black stuff\"",
            "6 RAD Betina nova (w/ very long major spines) etc"}},
    {"no name", {{"taxa.csv", "category,name,species\nRAD,,alba\n"}},
        {at(2) + "refused: has no name"}, {}},
    {"a spelling that differs from the dictionary's",
        {{"taxa.csv", "category,name\nRAD,alphina Alba\n"}},
        {at(2) + "adjusted: name \"alphina Alba\": is in the dictionary as \"Alphina alba\""}, {},
        {},
        {"1 FORAM Alphina alba Gamma", "2 RAD Alphina alba [As published: alphina Alba]",
            "3 FORAM Alphina rubra"}},
    {"the same name twice", {{"taxa.csv", "category,name\nRAD,Betina nova\nRAD,Betina  Nova\n"}},
        {at(3)
            + "refused: name \"Betina  Nova\": the same name in the same category is in line 2 "
              "already"},
        {"4 RAD Betina nova"}},
    {"authors tell names apart and are added",
        {{"taxa.csv",
            "category,name,author,year\nFORAM,Alphina alba,Gamma,1901\nFORAM,Alphina alba,Eta,\n"
            "FORAM,Alphina rubra,Theta,66000\n"}},
        {at(4) + "adjusted: year \"66000\": no year; not taken"}, {"4 FORAM Alphina alba Eta"}, {},
        {"1 FORAM Alphina alba Gamma 1901", "2 RAD Alphina alba", "3 FORAM Alphina rubra Theta"}},
    {"a category that is not there",
        {{"taxa.csv", "category,name\nX,Betina nova\nRAD,Betina nova\n"}},
        {at(2)
            + "refused: category \"X\": no such category in the database or among the accepted "
              "rows "
              "of categories files"},
        {"4 RAD Betina nova"}},
    {"a category made of mnemonic and discipline",
        {{"taxa.csv", "category,disc_id,name\nNANNO,n,Betina nova\nX,Q,Betina nova\n"}},
        {at(3)
            + "refused: category \"X\": no such category in the database or among the accepted "
              "rows "
              "of categories files"},
        {"4 NANNO Betina nova"}},
    {"categories made of groups",
        {{"taxa.csv",
            "category,taxon_group,disc_id,name\n,benthic_forams,M,Betina nova\n"
            ",rads,M,Betina nova\npollen and spores,rads,P,Betina nova\n"}},
        {"taxa.csv: note: taxon_group: benthic_forams is category BFORA",
            "taxa.csv: note: taxon_group: rads is category RAD",
            "taxa.csv: note: category: pollen and spores is category PASPO"},
        {"4 BFORA Betina nova", "5 RAD Betina nova", "6 PASPO Betina nova"}},
    {"no category", {{"taxa.csv", "name\nAlphina alba\nBetina nova\n"}}, {kNoCategory},
        {"4 - Alphina alba", "5 - Betina nova"}},
    {"notes of the file", {{"taxa.csv", "category,name,notes\nRAD,Betina s.l.,it's old\n"}},
        {at(2)
            + "adjusted: name \"Betina s.l.\": reads back as \"Betina sl.\"; as published it is "
              "kept "
              "in the notes"},
        {"4 RAD Betina sl. [it's old; As published: Betina s.l.]"}},
    {"numbers of the file used twice",
        {{"taxa.csv", "spec_id,category,name\n7,RAD,Betina nova\n7,RAD,Betina alba\n"}},
        {at(3) + "refused: spec_id \"7\": this number is in line 2 already"},
        {"4 RAD Betina nova"}},
    {"categories of a file beside",
        {{"taxa.csv", "category,name\nDINO,Betina nova\n"},
            {"categories.csv", "category,disc_id,group_name\nDINO,P,Dinoflagellates\n"}},
        {}, {"4 DINO Betina nova"}},
};

TEST_P(Dictionaries, ComeInOnce) { expect(); }
INSTANTIATE_TEST_SUITE_P(Taxa, Dictionaries, testing::ValuesIn(kTaxa));

std::string in(const char* file, int line)
{
    return std::string(file) + ':' + std::to_string(line) + ": ";
}
const std::string kScheme = "list_synonymy.csv: note: names to use go into the scheme list";
const char* const kSynonymy = "list_synonymy.csv";
const std::string kVariants =
    "name_variants.csv: note: names to use go into the scheme Name variants";
const char* const kNumbered = "spec_id,category,name\n50,FORAM,Alphina rubra\n51,RAD,Betina nova\n";

const FileCase kSynonyms[] = {
    {"names that are there, in their common category",
        {{kSynonymy, "name,preferred_name\nAlphina rubra,Alphina alba\n"}}, {kScheme}, {},
        {"list: 3 -> 1"}},
    {"the category that both have, else each its own",
        {{"taxa.csv", "category,name\nRAD,Betina nova\n"},
            {kSynonymy,
                "name,preferred_name\nBetina nova,Alphina alba\nAlphina rubra,Betina nova\n"}},
        {kScheme}, {"4 RAD Betina nova"}, {"list: 3 -> 4", "list: 4 -> 2"}},
    {"a recorded spelling that is not the dictionary's",
        {{kSynonymy, "name,preferred_name\nALPHINA rubra,Alphina alba\n"}}, {kScheme}, {},
        {"list: 3 -> 1"},
        {"1 FORAM Alphina alba Gamma", "2 RAD Alphina alba",
            "3 FORAM Alphina rubra [As published: ALPHINA rubra]"}},
    {"a recorded name that is not there goes to the name to use",
        {{kSynonymy, "name,preferred_name\nBetina nova,Alphina rubra\n"}}, {kScheme},
        {"4 FORAM Betina nova"}, {"list: 4 -> 3"}},
    {"a name to use that is not there goes to the recorded one",
        {{kSynonymy, "name,preferred_name\nAlphina rubra,Betina nova\n"}},
        {kScheme,
            in(kSynonymy, 2)
                + "adjusted: preferred_name \"Betina nova\": was not in the dictionary; added as "
                  "\"Betina nova\" of FORAM"},
        {"4 FORAM Betina nova"}, {"list: 3 -> 4"}},
    {"both new, of a genus that is there",
        {{kSynonymy, "name,preferred_name\nAlphina cf. nova,Alphina nova\n"}},
        {kScheme,
            in(kSynonymy, 2)
                + "adjusted: preferred_name \"Alphina nova\": was not in the dictionary; added as "
                  "\"Alphina nova\" of FORAM"},
        {"4 FORAM Alphina cf. nova", "5 FORAM Alphina nova"}, {"list: 4 -> 5"}},
    {"both new, of no known genus", {{kSynonymy, "name,preferred_name\nZetana a,Zetana b\n"}},
        {kScheme,
            in(kSynonymy, 2)
                + "adjusted: preferred_name \"Zetana b\": neither name nor genus is in the "
                  "dictionary; stored without a category",
            in(kSynonymy, 2)
                + "adjusted: preferred_name \"Zetana b\": was not in the dictionary; added as "
                  "\"Zetana b\""},
        {"4 - Zetana a", "5 - Zetana b"}, {"list: 4 -> 5"}},
    {"category and scheme of the row",
        {{"synonymy.csv",
            "name,preferred_name,category,scheme\nAlphina rubra,Alphina alba,RAD,Ann's\n"
            "Alphina rubra,Alphina alba,FORAM,Ann's\nAlphina rubra,Alphina alba,X,B\n"}},
        {"synonymy.csv:4: refused: category \"X\": no such category in the database or among the "
         "accepted rows of categories files"},
        {"4 RAD Alphina rubra"}, {"Ann`s: 3 -> 1", "Ann`s: 4 -> 2"}},
    {"one name to use in a scheme",
        {{kSynonymy,
            "name,preferred_name\nBetina a,Alphina rubra\nBetina a,Alphina rubra\n"
            "Betina a,Alphina alba\n"}},
        {kScheme,
            in(kSynonymy, 4)
                + "refused: name \"Betina a\": another name to use is in line 2 already"},
        {"4 FORAM Betina a"}, {"list: 4 -> 3"}},
    {"a name for itself",
        {{kSynonymy, "name,preferred_name\nAlphina 'rubra',\"Alphina \"\"rubra\"\"\"\n"}},
        {kScheme,
            in(kSynonymy, 2)
                + "adjusted: preferred_name \"Alphina \"rubra\"\": is the recorded name itself; as "
                  "recorded it is kept in the notes",
            in(kSynonymy, 2)
                + "adjusted: name \"Alphina 'rubra'\": reads back as \"Alphina \"rubra\"\"; as "
                  "published it is kept in the notes"},
        {"4 FORAM Alphina \"rubra\" [As published: Alphina 'rubra']"}},
    {"no name", {{kSynonymy, "name,preferred_name\n,Alphina alba\nAlphina alba,\n"}},
        {kScheme, in(kSynonymy, 2) + "refused: name: has no name",
            in(kSynonymy, 3) + "refused: preferred_name: has no name to use"},
        {}},
    {"variants by the number of the name to use",
        {{"taxa.csv", kNumbered},
            {"name_variants.csv",
                "spec_id,verbatim_name,name_to_use\n50,Alfina rubra,Alphina <rubra>\n"
                "51,Alphina alba,\n50,Alphina ruber,Alphina nova\n"}},
        {kVariants,
            in("name_variants.csv", 4)
                + "adjusted: name_to_use \"Alphina nova\": number 50 is \"Alphina rubra\" of "
                  "FORAM, "
                  "which is taken"},
        {"4 RAD Betina nova", "5 FORAM Alfina rubra", "6 FORAM Alphina ruber"},
        {"Name variants: 2 -> 4", "Name variants: 5 -> 3", "Name variants: 6 -> 3"}},
    {"variants by the number of the recorded name",
        {{"taxa.csv", kNumbered},
            {"name_variants.csv",
                "spec_id,verbatim_name,name_to_use\n50,Alphina rubra,Alphina ruber\n"}},
        {kVariants,
            in("name_variants.csv", 2)
                + "adjusted: name_to_use \"Alphina ruber\": was not in the dictionary; added as "
                  "\"Alphina ruber\" of FORAM"},
        {"4 RAD Betina nova", "5 FORAM Alphina ruber"}, {"Name variants: 3 -> 5"}},
    {"variants by names alone",
        {{"name_variants.csv",
            "spec_id,verbatim_name,name_to_use\n50,Alfina rubra,Alphina rubra\n50,Alfina alba,\n"}},
        {kVariants,
            in("name_variants.csv", 3)
                + "refused: verbatim_name \"Alfina alba\": has no name to use, and no taxon of "
                  "this "
                  "set has the number 50"},
        {"4 FORAM Alfina rubra"}, {"Name variants: 4 -> 3"}},
};
INSTANTIATE_TEST_SUITE_P(Synonyms, Dictionaries, testing::ValuesIn(kSynonyms));

TEST(CategoriesFile, IsChecked)
{
    TestDatabase db;
    db.run("INSERT INTO CATEGORY VALUES ('RAD', 'old', 'M'), ('SILI', 's', 'M')");
    IssueLog log;
    const ImportResult result = importAll({{"categories.csv",
                                              "category,disc_id,group_name\nRAD,,Radiolaria\n"
                                              "dino,P,Dino's\nSILI,M,s\nRAD,M,x\nOSTRA,Z,\n"
                                              "LONGER,A,y\n,M,z\n"}},
        log);
    EXPECT_THAT(countsOf(result), ElementsAre("categories.csv 7/3/1/1/3/2"));
    EXPECT_THAT(log.texts,
        ElementsAre("categories.csv:3: adjusted: category \"dino\": stored as DINO",
            "categories.csv:5: refused: category \"RAD\": this category is in line 2 already",
            "categories.csv:6: adjusted: disc_id \"Z\": unknown discipline (M, N, P or A); not "
            "taken",
            "categories.csv:6: adjusted: disc_id \"Z\": no discipline; samples of these taxa "
            "belong "
            "to none until it is given",
            "categories.csv:7: adjusted: category \"LONGER\": longer than 5 bytes; cut to "
            "\"LONGE\"",
            "categories.csv:8: refused: category: is empty"));
    EXPECT_THAT(db.rows("SELECT * FROM CATEGORY ORDER BY 1"),
        ElementsAre(
            "DINO|Dino`s|P", "LONGE|y|A", "OSTRA|NULL|NULL", "RAD|Radiolaria|M", "SILI|s|M"));
    EXPECT_EQ('P', categoryDisc("DINO"));
}

TEST(SynonymySchemes, AreNamedAfterFileOrFolder)
{
    TestDatabase db;
    const Folder outer;
    const auto folder = outer.path() / "worms";
    std::filesystem::create_directories(folder);
    for (const char* name : {"synonymy.csv", "synonymy-2024.csv", "north_synonymy.csv"})
        std::ofstream(folder / name) << "name,preferred_name\nA b,A c\n";
    IssueLog log;
    EXPECT_EQ("", importFiles({{folder}, false}, log).failure);
    EXPECT_THAT(
        db.rows("SELECT name FROM SYNSCH ORDER BY name"), ElementsAre("2024", "north", "worms"));
}

const Files kWholeSet{
    {"categories.csv", "category,disc_id,group_name\nFORAM,M,Foraminifera\n"},
    {"taxa.csv",
        "spec_id,category,name,author,code,notes\n"
        "1,FORAM,Alphina alba s.l.,Gamma,,old\n5,FORAM,Betina nova,,70,\n6,FORAM,Betina nova,,,\n"},
    {"synonymy.csv", "name,preferred_name\nAlphina alba,Betina nova\n"},
    {"name_variants.csv", "spec_id,verbatim_name,name_to_use\n5,Betina nowa,Betina nova\n"},
    {"schemes.csv", "scheme_id,name\n1,Counts\n"},
    {"levels.csv", "scheme_id,abr,min\n1,R,1\n1,C,5\n"},
};

TEST(WholeSet, IsCheckedDryStoredOnce)
{
    TestDatabase db;
    IssueLog dryLog, log;
    const ImportResult dry = importAll(kWholeSet, dryLog, true);
    EXPECT_THAT(dictionariesOf(db), IsEmpty());
    const ImportResult first = importAll(kWholeSet, log);
    EXPECT_EQ(countsOf(dry), countsOf(first));
    EXPECT_EQ(8, first.stored());
    EXPECT_EQ(1, first.refused());
    EXPECT_THAT(namesOf(db),
        ElementsAre("1 FORAM Alphina alba sl. Gamma [old; As published: Alphina alba s.l.]",
            "2 FORAM Betina nova", "3 FORAM Alphina alba", "4 FORAM Betina nowa"));
}

// Rows of files to come name taxa by the numbers of their set.
TEST(WholeSet, KeepsTheNumbersOfTaxa)
{
    TestDatabase db;
    const Folder folder;
    InputFile file;
    file.path = folder.write("taxa.csv", kWholeSet[1].second);
    file.name = "taxa.csv";
    file.set = folder.path();
    file.shape = shapeOfFile("taxa");
    FileReport report(file.name, nullptr);
    readHeader(&file, &report);
    db.run("INSERT INTO CATEGORY VALUES ('FORAM', 'f', 'M')");
    ImportContext context(Writing::Check);
    const auto loader = makeTaxaLoader(context);
    for (const ImportPhase phase : {ImportPhase::Checking, ImportPhase::Storing}) {
        context.phase = phase;
        CsvReader reader(file.path);
        CsvRow row;
        reader.next(&row);
        while (reader.next(&row)) {
            report.beginRow(row.line);
            CellReader cells(file, row, report);
            ASSERT_TRUE(loader->check(cells));
            if (!report.refused() && phase == ImportPhase::Storing) {
                ASSERT_NE(Outcome::Failed, loader->store());
            }
        }
    }
    auto& ids = context.ids("taxa", file.set);
    EXPECT_EQ(1, ids["1"].databaseId);
    EXPECT_EQ(2, ids["5"].databaseId);
    EXPECT_EQ(2, ids["6"].databaseId) << "a repeated row stands for the taxon that is there";
}

TEST(WholeSet, EachDriverCallFailing)
{
    const auto prepare = [](TestDatabase& db) {
        db.run("INSERT INTO CATEGORY VALUES ('FORAM', 'old', NULL)");
        db.run("INSERT INTO GENUS (gen_id, cat_mnem, genus) VALUES (1, 'FORAM', 'Betina')");
        db.run("INSERT INTO SPECIES (spec_id, gen_id, species) VALUES (1, 1, 'nova')");
    };
    EXPECT_GT(sweepFaults(kWholeSet, prepare, dictionariesOf, 16), 150);
}

} // namespace

// tests/app/import/dictionary/RealNamesTest.cpp
#include "app/import/Words.h"
#include "tests/app/RealData.h"
#include "tests/app/import/dictionary/DictionaryRun.h"

#include <iostream>
#include <ostream>
#include <set>

#include <gmock/gmock.h>

namespace {

struct RealNames {
    const char* folder;
    std::size_t names;
};
void PrintTo(const RealNames& s, std::ostream* out) { *out << s.folder; }

const RealNames kSets[] = {
    {"taxon_dictionary", 3025}, {"dsdp_biostrat", 1138}, {"odp_biostrat", 1030}};

// A name as the set writes it: in one text, or in pieces that follow each other.
std::string writtenName(Record& record)
{
    if (!record["name"].empty() || !record["above_genus"].empty())
        return record["name"] + record["above_genus"];
    const std::string mark = record["species_modifier"];
    const bool behind = mark == "s.l." || mark == "s.s.";
    std::string name = record["genus_modifier"] + ' ' + record["genus"];
    if (!record["subgenus"].empty())
        name += " (" + record["subgenus"] + ')';
    for (const std::string& piece : {behind ? "" : mark, record["species"], behind ? mark : "",
             record["subspecies_modifier"], record["subspecies"], record["descriptor"]})
        name += ' ' + piece;
    return withSingleBlanks(name);
}

// The notes as a set of texts; everything that the dictionary can show of a name.
class KeptNames {
public:
    explicit KeptNames(TestDatabase& db)
    {
        for (const std::string& id : db.rows("SELECT spec_id FROM SPECIES")) {
            Taxon taxon(std::stol(id));
            keep(taxon.displayName(0, 0, 0, 0));
            keep(taxon.displayName(1, 0, 0, 0));
        }
        for (const std::string& notes : db.rows("SELECT notes FROM TXNOTES"))
            notes_ += shownText(notes) + "; ";
    }
    bool hold(const std::string& written) const
    {
        return names_.count(withoutBlanks(written)) > 0 || isNoted(written);
    }
    bool isNoted(const std::string& written) const
    {
        return notes_.find("As published: " + written + ';') != std::string::npos;
    }

private:
    void keep(const std::string& name) { names_.insert(withoutBlanks(shownText(name))); }

    std::set<std::string> names_;
    std::string notes_;
};

class Real : public testing::TestWithParam<RealNames> {
protected:
    void SetUp() override
    {
        const auto folder = kData / GetParam().folder;
        if (!std::filesystem::is_directory(folder))
            GTEST_SKIP() << "the real data sets are not beside the repository";
        for (const char* file : {"categories.csv", "taxa.csv", "synonymy.csv", "name_variants.csv"})
            if (std::filesystem::exists(folder / file))
                files.push_back(folder / file);
    }
    std::vector<std::filesystem::path> files;
    TestDatabase db;
};

TEST_P(Real, ReadBackAsTheyAreWritten)
{
    const auto folder = kData / GetParam().folder;
    IssueLog log;
    const ImportResult first = importFiles({files, false}, log);
    ASSERT_EQ("", first.failure);
    for (const FileCounts& file : first.files)
        EXPECT_LE(file.refused * 50, file.read) << countsText(file);

    const KeptNames kept(db);
    std::vector<Record> records = recordsOf(folder / "taxa.csv");
    ASSERT_EQ(GetParam().names, records.size());
    std::size_t exact = 0;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const std::string written = writtenName(records[i]);
        // Identifiers are given in the order of the file.
        Taxon taxon(static_cast<long>(i) + 1);
        const bool same =
            withoutBlanks(shownText(taxon.displayName(0, 0, 0, 0))) == withoutBlanks(written);
        exact += same;
        EXPECT_TRUE(same || kept.isNoted(written)) << written;
        EXPECT_TRUE(taxon.category()[0] != '\0') << written;
    }
    std::cout << GetParam().folder << ": " << exact << " of " << records.size()
              << " names read back exactly\n";
    EXPECT_GE(exact * 100, records.size() * 95);
    for (const auto& [file, columns] :
        {std::pair("synonymy.csv", std::pair("name", "preferred_name")),
            {"name_variants.csv", {"verbatim_name", ""}}})
        for (Record& record : recordsOf(folder / file))
            for (const char* column : {columns.first, columns.second})
                EXPECT_TRUE(record[column].empty() || kept.hold(record[column])) << record[column];

    const Lines before = dictionariesOf(db);
    EXPECT_EQ(0, importFiles({files, false}, log).stored());
    EXPECT_EQ(before, dictionariesOf(db));
}
INSTANTIATE_TEST_SUITE_P(Sets, Real, testing::ValuesIn(kSets));

TEST(RealAbundances, ComeInOnce)
{
    const auto folder = kData / "abundance_schemes";
    if (!std::filesystem::is_directory(folder))
        GTEST_SKIP() << "the real data sets are not beside the repository";
    TestDatabase db;
    IssueLog log;
    const ImportResult first = importFiles({{folder}, false}, log);
    EXPECT_EQ(132, first.stored());
    EXPECT_EQ(0, first.refused());
    EXPECT_EQ(0, importFiles({{folder}, false}, log).stored());
    EXPECT_THAT(db.rows("SELECT abr, min FROM ABNSCHMBR m JOIN ABNSCHME s ON s.scheme_id ="
                        " m.scheme_id WHERE s.name = 'IODP 346 radiolarians' ORDER BY entry_no"),
        testing::ElementsAre("P|0", "R|1", "F|1", "C|4", "A|17"));
}

} // namespace

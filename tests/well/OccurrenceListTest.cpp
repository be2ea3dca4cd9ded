// tests/well/OccurrenceListTest.cpp
#include "taxonomy/TaxonList.h"
#include "tests/well/WellTest.h"

namespace {

/// A sample with occurrences (taxon, count) of (M, ABC).
struct OccurrenceList : WellTest {
    OccurrenceList() { s.AddDetails('M', "ABC", "", "", "", 'N'); }

    void fill(const std::vector<std::pair<long, long>>& rows)
    {
        s.ClearOccurrences('M', "ABC");
        for (const auto& [id, count] : rows)
            s.AddOccurrence(new Fssabnd(1, id, 'I', 'P', "", count, ' ', 0, 'C', 'A'), 'M', "", 1);
    }
    std::string text() const
    {
        std::string all;
        for (const Fssabnd* o : s.FindDetails('M', "")->occurrences)
            all += std::to_string(o->spec_id) + "=" + std::to_string(o->medium) + " ";
        return all;
    }

    Sample s{100, 110, "SC", 'M'};
};

TEST_F(OccurrenceList, IsSortedByTaxaThenCount)
{
    TaxonList taxa;
    for (const long id : {7L, 6L, 5L, 7L})
        taxa.push(new Taxon(id));
    fill({{9, 1}, {6, 5}, {5, 1}, {7, 5}, {5, 2}, {6, 1}});
    s.SortOccurrences('M', "ABC", taxa, 0);
    EXPECT_EQ("7=5 6=5 6=1 5=1 5=2 9=1 ", text());
    s.SortOccurrences('M', "ABC", taxa, 1);
    EXPECT_EQ("7=5 6=5 5=2 6=1 5=1 9=1 ", text());
}

TEST_F(OccurrenceList, TaxaAreReplacedAndCollected)
{
    const struct {
        const char* name;
        long oldSpec, newSpec;
        const char* after;
    } kCases[] = {
        {"the last one", 5, 8, "5=1 6=2 8=3 6=4 "},
        {"merged into the last one", 5, 6, "5=1 6=2 6=7 "},
        {"the same", 5, 5, "5=1 6=2 5=3 6=4 "},
    };
    for (const auto& c : kCases) {
        fill({{5, 1}, {6, 2}, {5, 3}, {6, 4}});
        s.ReplaceTaxon('M', "ABC", c.oldSpec, c.newSpec);
        EXPECT_EQ(c.after, text()) << c.name;
    }
    db.run("INSERT INTO GENUS (gen_id, genus) VALUES (1, 'Beta'), (2, 'Alpha')");
    db.run("INSERT INTO SPECIES (spec_id, gen_id, species) VALUES (5, 1, 'b'), (6, 2, 'a')");
    TaxonList arrived, sorted;
    sorted.sortMode = 1;
    s.CollectTaxa('M', arrived);
    s.CollectTaxa(0, sorted);
    EXPECT_EQ("2|5|2|6|",
        joined(arrived.count(), arrived.next()->spec_id(), sorted.count(),
            sorted.reset()->next()->spec_id()));
    long ids[4] = {9, 6};
    int count = 2;
    s.CollectSpecIds('M', ids, &count);
    EXPECT_EQ((Ids{9, 6, 5}), Ids(ids, ids + count));
}

TEST_F(OccurrenceList, IsPrintedAndCleared)
{
    fill({{5, 1}});
    std::ostringstream out;
    s.PrintOccurrences('M', "", out);
    s.PrintOccurrences('N', "", out);
    EXPECT_EQ("\nStatus: I,Type P, , Counts: 1, SIPM: 0", out.str());
    s.FindDetails('M', "")->occComplete = 1;
    s.ClearOccurrences('M', "");
    s.ClearOccurrences('N', "");
    EXPECT_EQ("0|1|0|",
        joined(
            s.CountOccurrences('M', ""), int(s.occSaved[0]), s.FindDetails('M', "")->occComplete));
    EXPECT_EQ(Statements(2, "Null sample details"), boxes.texts());
}

} // namespace

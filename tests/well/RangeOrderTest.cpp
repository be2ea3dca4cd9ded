// tests/well/RangeOrderTest.cpp
#include "taxonomy/TaxonList.h"
#include "tests/well/WellTest.h"

#include <algorithm>
#include <memory>
#include <random>

namespace {

struct Found {
    long samp_id;
    float depth;
    long spec_id;
    char status = 'I';
    char caved = ' ';
    char disc = 'M';
    const char* analyst = "ABC";
};

struct FoundWell : Well {
    explicit FoundWell(const std::vector<Found>& rows, char wellType = 'W')
    {
        type = wellType;
        for (const Found& f : rows) {
            if (!samples.FindById(f.samp_id))
                AddSample(new Sample(7, f.samp_id, f.depth, "CU", 0, 0, f.depth));
            Sample& s = *samples.FindById(f.samp_id);
            if (!s.FindDetails(f.disc, f.analyst))
                s.AddDetails(f.disc, f.analyst, "", "", "", 'N');
            s.AddOccurrence(
                new Fssabnd(f.samp_id, f.spec_id, f.status, 'P', "", 1, f.caved, 0, 'C', 'A'),
                f.disc, f.analyst, 0);
        }
    }
    /// The samples of the marked occurrences.
    Ids marked() const
    {
        Ids ids;
        for (const Sample* s : samples)
            for (const Smpdtl* d : s->details)
                for (const Fssabnd* o : d->occurrences)
                    if (o->rangeMark)
                        ids.push_back(s->samp_id);
        return ids;
    }
};

std::unique_ptr<TaxonList> listOf(const Ids& ids)
{
    auto list = std::make_unique<TaxonList>();
    for (const long id : ids) {
        list->push(new Taxon);
        (*std::next(list->begin(), list->count() - 1))->setSpecId(id);
    }
    return list;
}

Ids idsOf(const TaxonList& list)
{
    Ids ids;
    std::ranges::transform(list, std::back_inserter(ids), [](Taxon* t) { return t->spec_id(); });
    return ids;
}

TEST(RangeSample, IsTheOutermostThatCounts)
{
    FoundWell well({{1, 100, 5, 'R'}, {2, 200, 5}, {3, 300, 5, 'I', 'C'}, {4, 400, 6, 'R', 'C'},
        {5, 500, 6, 'R', 'C'}, {6, 50, 5, 'I', ' ', 'N', "XYZ"}});
    const struct {
        const char* name;
        long spec_id;
        int mode, exclude;
        char disc;
        int useWindow;
        float top, base;
        int requireAnalyst;
        const char* analyst;
        long expected;
        bool marked = true;
    } kCases[] = {
        {"top in place", 5, 1, 1, 'M', 0, 0, 0, 0, "", 2},
        {"for want of better, unmarked", 6, 1, 1, 'M', 0, 0, 0, 0, "", 4, false},
        {"any discipline", 5, 1, 0, 0, 0, 0, 0, 0, "", 6},
        {"required, of any discipline", 5, 1, 0, 'M', 0, 0, 0, 1, "XYZ", 0, false},
        {"upper end of the window excluded", 5, 1, 0, 'M', 1, 100.02f, 300, 0, "", 2},
        {"its margin", 5, 1, 0, 'M', 1, 100.009f, 300, 0, "", 1},
        {"lower end", 5, 2, 0, 'M', 1, 0, 299.98f, 0, "", 2},
    };
    for (const auto& c : kCases) {
        for (Sample* s : well.samples)
            s->MarkRange(5, 3, 0, 0);
        const Sample* s = well.samples.FindRangeSample(c.spec_id, c.mode, c.exclude, -1, c.disc,
            !c.exclude, c.useWindow, c.top, c.base, c.requireAnalyst, c.analyst);
        EXPECT_EQ(c.expected, s ? long(s->samp_id) : 0) << c.name;
        EXPECT_EQ(c.marked ? Ids{c.expected} : Ids{}, well.marked()) << c.name;
    }
    EXPECT_EQ(nullptr, well.samples.FindRangeSample(6, 1, 1, -1, 'M', 1, 0, 0, 0, 0, ""));
    EXPECT_EQ(nullptr, well.samples.FindRangeSample(5, 1, 0, 2, 'M', 1, 0, 0, 0, 0, ""));
    EXPECT_EQ("1|0|1|0|",
        joined(well.samples.HasOccurrenceInRange(6, 'M', "", 500.009f, 600),
            well.samples.HasOccurrenceInRange(6, 'M', "", 500.02f, 600),
            well.samples.HasOccurrenceInRange(5, 0, "XYZ", 0, 49.995f),
            well.samples.HasOccurrenceInRange(5, 0, "ABC", 0, 50)));
    EXPECT_EQ("1|0|",
        joined(well.samples.FindById(3)->HasTaxon(5, 0, 0, 'M', "", 1),
            well.samples.FindById(2)->HasTaxon(5, 0, 0, 'M', "", 0)));
    const auto from = listOf({5, 6, 7}), to = listOf({6});
    EXPECT_EQ(1, well.TaxaInWindow(*from, *to, 'M', "ABC", 50, 450));
    EXPECT_EQ((Ids{6, 5}), idsOf(*to));
}

TEST(RangeOrder, GoesByMode)
{
    const struct {
        const char* name;
        char wellType;
        int mode;
        float top, base;
        char units;
        int leading;
        Ids order;
    } kCases[] = {
        {"tops", 'W', 1, 0, 1000, 'M', 3, {6, 5, 8, 7}},
        {"tops in place", 'W', 3, 0, 1000, 'M', 1, {5, 7, 6, 8}},
        {"bases in place", 'W', 4, 0, 150, 'M', 0, {5, 7, 6, 8}},
        {"as listed", 'W', 5, 0, 1000, 'M', 4, {5, 7, 6, 8}},
        {"window in feet", 'W', 1, 0, 984, 'F', 1, {6, 5, 7, 8}},
        {"outcrop, window mirrored", 'O', 2, -1000, 0, 'M', 3, {6, 5, 8, 7}},
    };
    for (const auto& c : kCases) {
        FoundWell well({{3, 300, 5}, {1, 100, 6}, {2, 400, 6}, {4, 300, 8}}, c.wellType);
        const auto taxa = listOf({5, 7, 6, 8});
        const auto order = [&] {
            return well.RangeOrder(*taxa, c.mode, 'M', 0, 1, c.top, c.base, c.units, 0, "");
        };
        EXPECT_EQ(c.leading, order()) << c.name;
        EXPECT_EQ(c.order, idsOf(*taxa)) << c.name;
        taxa->push(new Taxon);
        EXPECT_EQ(5, order()) << c.name << " asked again";
    }
}

/// Rows of 60 taxa in 40 samples at depths that repeat, suspect ones among them.
std::vector<Found> manyRows()
{
    std::mt19937 random(7);
    std::vector<Found> rows;
    for (int i = 0; i < 600; ++i) {
        const long samp_id = 1 + long(random() % 40);
        rows.push_back(
            {samp_id, float(samp_id / 2 * 10), 100 + long(random() % 60), random() % 3 ? 'I' : 'R',
                random() % 3 ? ' ' : 'C', random() % 4 ? 'M' : 'N', random() % 2 ? "ABC" : "XYZ"});
    }
    return rows;
}

/// As one search for one taxon goes, told plainly.
Sample* plainRangeSample(const Well& well, long spec_id, int mode)
{
    for (const int exclude : {1, 0}) {
        Sample* best = nullptr;
        for (Sample* s : well.samples) {
            if (s->HasTaxon(spec_id, mode, exclude, 'M', "ABC", 0)
                && (!best || (mode == 1 ? s->top < best->top : s->top > best->top)))
                best = s;
        }
        if (best)
            return best;
    }
    return nullptr;
}

TEST(RangeOrder, OfManyTaxaIsThatOfSingleSearches)
{
    Ids wanted(70);
    std::ranges::generate(wanted, [id = 95L]() mutable { return id++; });
    for (const int mode : {1, 2}) {
        FoundWell well(manyRows()), plain(manyRows());
        const auto taxa = listOf(wanted);
        EXPECT_LT(50, well.RangeOrder(*taxa, mode, 'M', 1, 0, 0, 0, 'M', 0, "ABC"));
        Ids order = wanted;
        std::ranges::stable_sort(order, {}, [&](long id) {
            Sample* s = plainRangeSample(plain, id, mode);
            if (s)
                s->MarkRange(id, mode, 1, 'M');
            return s ? s->GetTop('M', mode == 2, 0) : 99999.0f;
        });
        EXPECT_EQ(order, idsOf(*taxa));
        EXPECT_EQ(plain.marked(), well.marked());
    }
}

} // namespace

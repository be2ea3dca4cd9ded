// tests/taxonomy/TaxonListTest.cpp
#include "taxonomy/TaxonList.h"
#include "taxonomy/TaxonOrder.h"
#include "tests/taxonomy/PlainTaxonOrder.h"
#include "tests/taxonomy/TaxonOf.h"
#include "util/TextUtil.h"

#include <functional>
#include <memory>
#include <ostream>
#include <random>

#include <gtest/gtest.h>

using Ids = std::vector<long>;

namespace {

Taxon* named(long id, const char* genus, const char* species, const char* subspecies = "")
{
    auto* taxon = new Taxon(
        taxonOf({{slot::genus, genus}, {slot::species, species}, {slot::subspecies, subspecies}}));
    taxon->setSpecId(id);
    return taxon;
}

TEST(TaxonList, InsertionSortsByGenusAndIgnoresCase)
{
    TaxonList list;
    EXPECT_EQ(0, list.insertSorted(named(1, "Beta", "alpha"), 0));
    EXPECT_EQ(1, list.sortMode);
    EXPECT_EQ(1, list.insertSorted(named(2, "alpha", "beta"), 0));
    EXPECT_EQ(1, list.insertSorted(named(3, "Alpha", "alpha"), 0));
    EXPECT_EQ(3, list.insertSorted(named(4, "BETA", "ALPHA"), 0));
    EXPECT_EQ(3, list.insertSorted(named(5, "alpha", "beta", "x"), 1));
    EXPECT_EQ((Ids{3, 2, 5, 1, 4}), plain::ids(list));
}

TEST(TaxonList, DuplicatesAreRejectedWhereverTheyStand)
{
    TaxonList list;
    list.insertSorted(named(7, "Zeta", "z"), 0);
    const std::unique_ptr<Taxon> same(named(7, "Alpha", "a"));
    EXPECT_EQ(-1, list.insertSorted(same.get(), 1));
    EXPECT_EQ(Ids{7}, plain::ids(list));
    EXPECT_EQ(1, list.insertSorted(named(7, "Alpha", "b"), 0));
    EXPECT_STREQ("Alpha", list.find(7)->genus()) << "the first from the front";
}

TEST(TaxonList, TheSameTaxonListedTwiceIsDestroyedOnce)
{
    TaxonList list;
    Taxon* taxon = named(7, "Alpha", "a");
    list.insertSorted(taxon, 0);
    EXPECT_EQ(1, list.insertSorted(taxon, 0));
    EXPECT_EQ(1, list.insertSorted(named(8, "Aaa", "a"), 0));
    EXPECT_EQ((Ids{8, 7, 7}), plain::ids(list));
}

TEST(TaxonList, LookupsAnswerWithoutTheirTaxonToo)
{
    TaxonList list;
    EXPECT_STREQ("(not found)", list.nameOf(1, 0, 0, 0));
    EXPECT_STREQ("???", list.categoryOf(1));
    list.push(named(1, "Alphina", "betana"));
    list.push(named(2, "Betina", "gammana"));
    list.reset();
    list.next();
    list.find(1)->setField(slot::category, "FORAM");
    list.find(1)->setField(slot::author, "Gamma");
    EXPECT_STREQ("Alphina betana", list.nameOf(1, 0, 0, 0));
    EXPECT_STREQ("A. betana  Gamma", list.nameOf(1, -1, 1, 1));
    EXPECT_STREQ("FORAM", list.categoryOf(1));
    EXPECT_EQ(2, list.next()->spec_id()) << "the cursor stays";
}

TEST(TaxonList, AnOrderingByRangesRemembersNoRequestAtFirst)
{
    TaxonList list;
    const TaxonList::RangeRequest request{1, 0, 0, 0};
    EXPECT_NE(request, list.lastRangeRequest);
    list.lastRangeRequest = request;
    list.insertSorted(named(1, "Alpha", "a"), 0);
    EXPECT_EQ(request, list.lastRangeRequest);
}

// Every way to change a list or a taxon in it, after which lookups must answer as a walk would.
struct ChangeCase {
    const char* name;
    std::function<void(TaxonList&)> change;
};
void PrintTo(const ChangeCase& c, std::ostream* out) { *out << c.name; }

Taxon* at(TaxonList& list, int place)
{
    list.reset();
    for (int i = 0; i < place; ++i)
        list.next();
    return list.next();
}

const ChangeCase kChanges[] = {
    {"push", [](TaxonList& l) { l.push(named(20, "Beta", "a")); }},
    {"push of a listed identifier", [](TaxonList& l) { l.push(named(11, "Beta", "a")); }},
    {"insert", [](TaxonList& l) { l.insert(at(l, 0), named(12, "Zeta", "a")); }},
    {"insertSorted in front of its like",
        [](TaxonList& l) { l.insertSorted(named(13, "Aaa", "a"), 0); }},
    {"pop", [](TaxonList& l) { delete l.pop(); }},
    {"pop and push",
        [](TaxonList& l) {
            delete l.pop();
            l.push(named(20, "Beta", "a"));
        }},
    {"remove",
        [](TaxonList& l) {
            Taxon* taxon = at(l, 1);
            l.remove();
            delete taxon;
        }},
    {"through the plain list", [](TaxonList& l) { l.GList::push(named(20, "Aaa", "a")); }},
    {"moveUp",
        [](TaxonList& l) {
            at(l, 2);
            l.moveUp();
        }},
    {"another identifier", [](TaxonList& l) { at(l, 1)->setSpecId(13); }},
    {"another name", [](TaxonList& l) { at(l, 0)->setField(slot::genus, "Zeta"); }},
    {"assignment", [](TaxonList& l) { *at(l, 0) = *at(l, 2); }},
    {"sort by species", [](TaxonList& l) { l.sortBy(3, -1); }},
    {"sort mode", [](TaxonList& l) { l.sortMode = 3; }},
};

class ListIndex : public testing::TestWithParam<ChangeCase> {};
TEST_P(ListIndex, NoticesEveryChange)
{
    TaxonList list;
    for (const auto& [id, genus, species] :
        {std::tuple{10, "Alpha", "c"}, {11, "Beta", "a"}, {12, "Delta", "b"}, {13, "Eta", "a"}})
        list.insertSorted(named(id, genus, species), 0);
    list.find(10);
    GetParam().change(list);
    for (const long id : {10, 11, 12, 13, 20}) {
        Taxon* first = nullptr;
        for (Taxon* taxon : list) {
            if (!first && taxon->spec_id() == id)
                first = taxon;
        }
        EXPECT_EQ(first, list.find(id)) << id;
    }
    GList plainList;
    for (Taxon* taxon : list)
        plainList.push(taxon);
    Taxon* added = named(30, "Deltb", "b");
    EXPECT_EQ(plain::insertSorted(plainList, list.sortMode, added), list.insertSorted(added, 0));
    EXPECT_EQ(plain::ids(plainList), plain::ids(list));
}
INSTANTIATE_TEST_SUITE_P(Changes, ListIndex, testing::ValuesIn(kChanges));

/// Taxa with few different names, so that many are equal, in one case or another.
Taxon* randomTaxon(std::mt19937& random, long id)
{
    const auto word = [&random](int letters) {
        std::string text;
        for (int i = static_cast<int>(random() % 3); i > 0; --i)
            text += "aAbB "[random() % static_cast<unsigned>(letters)];
        return text;
    };
    Taxon* taxon = named(id, word(5).c_str(), word(5).c_str(), word(2).c_str());
    taxon->setField(slot::category, word(4));
    taxon->ccode = 1; // read already
    taxon->sipm_code = static_cast<long>(random() % 4);
    return taxon;
}

class RandomOrder : public testing::TestWithParam<int> {};

TEST_P(RandomOrder, InsertionIsThatOfTheWalk)
{
    std::mt19937 random(7);
    for (int round = 0; round < 60; ++round) {
        TaxonList list;
        list.sortMode = GetParam();
        GList plainList;
        for (long id = 1; id <= 40; ++id) {
            Taxon* taxon = randomTaxon(random, id);
            if (round % 2 == 0 || id < 20) // as categories are: in capitals
                taxon->setField(slot::category, upperCased(taxon->category()));
            ASSERT_EQ(plain::insertSorted(plainList, GetParam(), taxon),
                list.insertSorted(taxon, static_cast<int>(id % 2)));
        }
        ASSERT_EQ(plain::ids(plainList), plain::ids(list));
    }
}

TEST_P(RandomOrder, SortIsThatOfThePasses)
{
    std::mt19937 random(8);
    for (int round = 0; round < 30; ++round) {
        TaxonList list;
        GList plainList;
        for (long id = 1; id <= 40; ++id) {
            list.push(randomTaxon(random, id));
            plainList.push(at(list, static_cast<int>(id) - 1));
        }
        plain::sort(plainList, GetParam());
        list.sortBy(GetParam(), -1);
        ASSERT_EQ(plain::ids(plainList), plain::ids(list));
        EXPECT_EQ(GetParam(), list.sortMode);
        EXPECT_EQ(plain::ids(list)[0], list.next()->spec_id()) << "the cursor is at the front";
    }
}

INSTANTIATE_TEST_SUITE_P(Modes, RandomOrder, testing::Values(1, 2, 3, 4, 9));

TEST(Settle, GivesUpWhereNothingCanSettle)
{
    std::vector<int> hands = {1, 2, 3};
    EXPECT_FALSE(taxonOrder::settle(hands, [](int, int) { return true; }));
    std::vector<int> many(150000); // more than the passes that would be made
    for (std::size_t i = 0; i < many.size(); ++i)
        many[i] = static_cast<int>(many.size() - i);
    EXPECT_TRUE(taxonOrder::settle(many, std::greater<>()));
    EXPECT_TRUE(std::is_sorted(many.begin(), many.end()));
}

} // namespace

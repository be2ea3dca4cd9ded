// tests/taxonomy/TaxonListTest.cpp
#include "taxonomy/TaxonList.h"
#include "taxonomy/TaxonOrder.h"
#include "tests/taxonomy/PlainTaxonOrder.h"
#include "tests/taxonomy/TaxonOf.h"
#include "util/TextUtil.h"

#include <functional>
#include <memory>
#include <random>

#include <gtest/gtest.h>

using Ids = std::vector<long>;

namespace {

Taxon* named(long id, const std::string& genus, const std::string& species)
{
    auto* taxon = new Taxon(taxonOf("g:" + genus + "|s:" + species));
    taxon->setSpecId(id);
    return taxon;
}

TEST(TaxonList, InsertionSortsByGenusAndRejectsDuplicatesWhereverTheyStand)
{
    TaxonList list;
    EXPECT_EQ(0, list.insertSorted(named(1, "Beta", "alpha"), 0));
    EXPECT_EQ(1, list.sortMode);
    EXPECT_EQ(1, list.insertSorted(named(2, "alpha", "beta"), 0));
    EXPECT_EQ(2, list.insertSorted(named(4, "BETA", "ALPHA"), 1));
    EXPECT_EQ((Ids{2, 1, 4}), plain::ids(list));
    const std::unique_ptr<Taxon> same(named(4, "Alpha", "a"));
    EXPECT_EQ(-1, list.insertSorted(same.get(), 1));
    EXPECT_EQ(3, list.insertSorted(list.find(4), 0)) << "listed twice, destroyed once";
    EXPECT_EQ((Ids{2, 1, 4, 4}), plain::ids(list));
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

Taxon* at(TaxonList& list, int place)
{
    list.reset();
    for (int i = 0; i < place; ++i)
        list.next();
    return list.next();
}

// Every way to change a list or a taxon in it, after which lookups must answer as a walk would.
const std::pair<const char*, std::function<void(TaxonList&)>> kChanges[] = {
    {"push", [](TaxonList& l) { l.push(named(20, "Beta", "a")); }},
    {"push of a listed identifier", [](TaxonList& l) { l.push(named(11, "Beta", "a")); }},
    {"insert", [](TaxonList& l) { l.insert(at(l, 0), named(12, "Zeta", "a")); }},
    {"insertSorted before its like", [](TaxonList& l) { l.insertSorted(named(13, "A", "a"), 0); }},
    {"pop", [](TaxonList& l) { delete l.pop(); }},
    {"pop and push", [](TaxonList& l) { delete l.pop(), l.push(named(20, "Beta", "a")); }},
    {"remove",
        [](TaxonList& l) {
            const std::unique_ptr<Taxon> taxon(at(l, 1));
            l.remove();
        }},
    {"through the plain list", [](TaxonList& l) { l.GList::push(named(20, "Aaa", "a")); }},
    {"moveUp", [](TaxonList& l) { at(l, 2), l.moveUp(); }},
    {"another identifier", [](TaxonList& l) { at(l, 1)->setSpecId(13); }},
    {"another name", [](TaxonList& l) { at(l, 0)->setField(slot::genus, "Zeta"); }},
    {"assignment", [](TaxonList& l) { *at(l, 0) = *at(l, 2); }},
    {"sort by species", [](TaxonList& l) { l.sortBy(3, -1); }},
    {"sort mode", [](TaxonList& l) { l.sortMode = 3; }},
};

TEST(TaxonList, LookupsNoticeEveryChange)
{
    for (const auto& [name, change] : kChanges) {
        SCOPED_TRACE(name);
        TaxonList list;
        for (const auto& [id, genus, species] :
            {std::tuple{10, "Alpha", "c"}, {11, "Beta", "a"}, {12, "Delta", "b"}, {13, "Eta", "a"}})
            list.insertSorted(named(id, genus, species), 0);
        list.find(10);
        change(list);
        for (const long id : {10, 11, 12, 13, 20}) {
            const auto same = [id](const Taxon* taxon) { return taxon->spec_id() == id; };
            const auto first = std::find_if(list.begin(), list.end(), same);
            EXPECT_EQ(first == list.end() ? nullptr : *first, list.find(id)) << id;
        }
        GList plainList;
        for (Taxon* taxon : list)
            plainList.push(taxon);
        Taxon* added = named(30, "Deltb", "b");
        EXPECT_EQ(
            plain::insertSorted(plainList, list.sortMode, added), list.insertSorted(added, 0));
        EXPECT_EQ(plain::ids(plainList), plain::ids(list));
    }
}

/// Taxa with few different names, so that many are equal, in one case or another.
Taxon* randomTaxon(std::mt19937& random, long id)
{
    const auto word = [&random](unsigned letters) {
        std::string text;
        for (int i = static_cast<int>(random() % 3); i > 0; --i)
            text += "aAbB "[random() % letters];
        return text;
    };
    Taxon* taxon = named(id, word(5), word(5));
    taxon->setField(slot::subspecies, word(2));
    taxon->setField(slot::category, word(4));
    taxon->ccode = 1; // read already
    taxon->sipm_code = static_cast<long>(random() % 4);
    return taxon;
}

constexpr int kModes[] = {1, 2, 3, 4, 9};

TEST(TaxonList, InsertionIsThatOfTheWalk)
{
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round) {
        const int mode = kModes[round % 5];
        TaxonList list;
        list.sortMode = mode;
        GList plainList;
        for (long id = 1; id <= 40; ++id) {
            Taxon* taxon = randomTaxon(random, id);
            if (round % 2 == 0 || id < 20) // as categories are: in capitals
                taxon->setField(slot::category, upperCased(taxon->category()));
            ASSERT_EQ(plain::insertSorted(plainList, mode, taxon),
                list.insertSorted(taxon, static_cast<int>(id % 2)));
        }
        ASSERT_EQ(plain::ids(plainList), plain::ids(list));
    }
}

TEST(TaxonList, SortIsThatOfThePasses)
{
    std::mt19937 random(8);
    for (int round = 0; round < 150; ++round) {
        TaxonList list;
        GList plainList;
        for (long id = 1; id <= 40; ++id) {
            Taxon* taxon = randomTaxon(random, id);
            list.push(taxon);
            plainList.push(taxon);
        }
        plain::sort(plainList, kModes[round % 5]);
        list.sortBy(kModes[round % 5], -1);
        ASSERT_EQ(plain::ids(plainList), plain::ids(list));
        EXPECT_EQ(kModes[round % 5], list.sortMode);
        EXPECT_EQ(plain::ids(list)[0], list.next()->spec_id()) << "the cursor is at the front";
    }
}

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

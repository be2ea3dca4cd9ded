// tests/db/ItemListTest.cpp
#include "db/ItemList.h"
#include "db/Session.h"
#include "tests/db/Kind.h"
#include "tests/support/MessageLog.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> contents(const ItemList& list)
{
    std::vector<std::string> items;
    for (const Item* item : list)
        items.push_back(std::to_string(item->id) + item->text.str());
    EXPECT_EQ(items.size(), static_cast<std::size_t>(list.count));
    return items;
}

void addAll(ItemList& list, const std::vector<std::pair<int, const char*>>& items)
{
    for (const auto& [id, text] : items)
        list.addNew(id, text);
}

TEST(ItemList, TextsHoldWhatFits)
{
    const std::string start(198, 'x');
    Item item(1, (start + "\u00F8").c_str());
    char out[200];
    item.getText(out);
    EXPECT_EQ(start, out);
    item.setText("new");
    item.getText(out);
    EXPECT_STREQ("new", out);
}

TEST(ItemList, Orders)
{
    ItemList sorted(1);
    addAll(sorted, {{1, "b"}, {2, "A"}, {3, "a"}, {4, "b"}, {5, "A"}, {6, "\u00C4"}});
    EXPECT_THAT(contents(sorted), ElementsAre("2A", "5A", "3a", "1b", "4b", "6\u00C4"));
    ItemList unsorted;
    addAll(unsorted, {{1, "b"}, {2, "A"}, {3, "b"}});
    EXPECT_THAT(contents(unsorted), ElementsAre("1b", "2A", "3b"));
    for (ItemList* list : {&sorted, &unsorted}) // before an item whatever its text
        list->add(new Item(7, "z"), list->find(2));
    EXPECT_EQ(0, sorted.indexOf(7));
    EXPECT_EQ(1, unsorted.indexOf(7));
}

/// A box without a window.
template <typename Base> class FakeBox : public Base {
public:
    void add(const char* text) override { rows.emplace_back(text); }
    int count() const override { return static_cast<int>(rows.size()); }
    int selection() const override { return selected; }
    void selection(int row) override { selected = row; }
    void empty()
    {
        rows.clear();
        selected = -1;
    }
    std::vector<std::string> rows{"left from before"};
    int selected = -1;
};
class FakeListBox : public FakeBox<zListBoxBase> {
    void clear() override { empty(); }
};
class FakeComboBox : public FakeBox<zComboBoxBase> {
    void reset() override { empty(); }
};

class Filled : public testing::Test {
protected:
    Filled() { addAll(list, {{7, "seven"}, {8, "eight"}, {7, "again"}, {0, "none"}}); }
    ItemList list;
    FakeListBox listBox;
    FakeComboBox comboBox;
    int id = 99;
    char text[200] = "untouched";
};

TEST_F(Filled, LooksUp)
{
    EXPECT_STREQ("seven", list.find(7)->text);
    EXPECT_EQ(nullptr, list.find(9));
    EXPECT_EQ(1, list.indexOf(8));
    EXPECT_EQ(0, list.indexOf(7));
    EXPECT_EQ(-1, list.indexOf(9));
    EXPECT_EQ(7, list.idAt(2));
    EXPECT_EQ(-1, list.idAt(4));
    EXPECT_EQ(-1, list.idAt(-1));
    EXPECT_EQ(7, list.idOf("again"));
    EXPECT_EQ(0, list.idOf("Again"));
    EXPECT_EQ(0, list.idOf(nullptr));
}

TEST_F(Filled, GetsByPositionAndLeavesTheCursor)
{
    list.reset();
    list.next();
    list.get(1, &id, text);
    EXPECT_EQ(8, id);
    EXPECT_STREQ("eight", text);
    for (const int outside : {4, 5, -1}) {
        id = 99;
        list.get(outside, &id, text);
        EXPECT_EQ(-1, id);
        EXPECT_STREQ("", text);
    }
    list.find(7);
    list.indexOf(9);
    list.idOf("none");
    EXPECT_EQ(8, list.next()->id);
}

TEST_F(Filled, RemovesEveryOne)
{
    EXPECT_EQ(0, list.removeId(9));
    EXPECT_EQ(1, list.removeId(7));
    EXPECT_THAT(contents(list), ElementsAre("8eight", "0none"));
    EXPECT_EQ(0, list.removeId(7));
    list.clear();
    EXPECT_THAT(contents(list), IsEmpty());
    EXPECT_EQ(-1, list.idAt(0));
}

TEST_F(Filled, FillsBoxesAndSelects)
{
    list.fillListBox(listBox, 8);
    list.fillComboBox(comboBox, 7);
    EXPECT_THAT(listBox.rows, ElementsAre("seven", "eight", "again", "none"));
    EXPECT_EQ(listBox.rows, comboBox.rows);
    EXPECT_EQ(1, listBox.selected);
    EXPECT_EQ(0, comboBox.selected) << "the first of that identifier";
    list.selectInListBox(listBox, 0);
    list.selectInComboBox(comboBox, 8);
    EXPECT_EQ(3, listBox.selected) << "0 is an identifier";
    EXPECT_EQ(1, comboBox.selected);
    list.selectInListBox(listBox, 9);
    list.selectInComboBox(comboBox, 9);
    EXPECT_EQ(3, listBox.selected) << "one that is not there changes nothing";
    EXPECT_EQ(1, comboBox.selected);
    list.fillListBox(listBox, 9);
    EXPECT_EQ(0, listBox.selected) << "and is filled as the first row";
    ItemList().fillListBox(listBox, 9);
    EXPECT_THAT(listBox.rows, IsEmpty());
    EXPECT_EQ(-1, listBox.selected) << "if there is a row";
}

TEST_F(Filled, ReadsTheSelection)
{
    list.fillListBox(listBox, 8);
    list.fillComboBox(comboBox, 8);
    listBox.selected = 2;
    EXPECT_EQ(1, list.getListBoxSelection(listBox, &id, text));
    EXPECT_EQ(7, id);
    EXPECT_STREQ("again", text);
    EXPECT_EQ(1, list.getComboBoxSelection(comboBox, &id, nullptr));
    EXPECT_EQ(8, id);
    listBox.selected = -1;
    EXPECT_EQ(0, list.getListBoxSelection(listBox, &id, text));
    EXPECT_EQ(-1, id);
    EXPECT_STREQ("", text);
    comboBox.rows.clear();
    comboBox.selected = 0; // some boxes say so even without rows
    id = 99;
    EXPECT_EQ(0, list.getComboBoxSelection(comboBox, &id, nullptr));
    EXPECT_EQ(-1, id);
}

class LoadedItemList : public testing::Test {
protected:
    void store(const std::string& rows)
    {
        database.run("INSERT INTO IGD_SCH (sch_id, name) VALUES " + rows);
    }
    TestDatabase database;
    MessageLog messages;
};

TEST_F(LoadedItemList, InTheOrderOfTheDatabase)
{
    store("(1, 'b'), (2, 'a  '), (3, NULL), (4, 'a')");
    ItemList list;
    const StatementLog log;
    list.load("IGD_SCH", "sch_id", "name");
    EXPECT_THAT(log.statements(),
        ElementsAre("SELECT sch_id,name FROM " + sql::table("IGD_SCH") + " ORDER BY name"));
    EXPECT_EQ(4, list.count);
    EXPECT_EQ(2, list.indexOf(2)) << "blanks behind count in the database, not in the item";
    EXPECT_STREQ("a", list.find(2)->text);
    EXPECT_STREQ("", list.find(3)->text);
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
}

TEST_F(LoadedItemList, SortedWhateverTheDatabaseSays)
{
    database.run("CREATE TABLE NO_SUCH_LIST (id INTEGER, name VARCHAR(9) COLLATE NOCASE)");
    database.run("INSERT INTO NO_SUCH_LIST VALUES (1, 'b'), (2, 'A'), (3, 'a'), (4, 'B')");
    ItemList list;
    list.load("NO_SUCH_LIST", "id", "name");
    EXPECT_THAT(contents(list), ElementsAre("2A", "3a", "1b", "4B"));
    list.sorted = 1;
    list.load("NO_SUCH_LIST", "id", "name");
    EXPECT_THAT(contents(list), ElementsAre("2A", "4B", "3a", "1b"));
}

TEST_F(LoadedItemList, EqualTextsKeepTheOrderOfTheRows)
{
    ItemList addedOneByOne(1);
    for (int id = 1; id <= 60; ++id) {
        const char* name = id % 2 ? "x" : "a";
        store("(" + std::to_string(id) + ", '" + name + "')");
        addedOneByOne.addNew(id, name);
    }
    ItemList list(1);
    list.load("IGD_SCH", "sch_id", "name");
    EXPECT_EQ(contents(addedOneByOne), contents(list));
}

TEST_F(LoadedItemList, EachLoadReplaces)
{
    store("(1, 'b'), (2, 'a')");
    ItemList list(1);
    list.load("IGD_SCH", "sch_id", "name");
    database.run("DELETE FROM IGD_SCH");
    store("(3, 'c')");
    list.load("IGD_SCH", "sch_id", "name");
    EXPECT_THAT(contents(list), ElementsAre("3c"));
    EXPECT_THAT(messages.texts(), IsEmpty());
    list.load("NO_SUCH_LIST", "id", "name");
    EXPECT_THAT(contents(list), IsEmpty());
    EXPECT_THAT(messages.texts(),
        ElementsAre("SELECT id,name FROM " + sql::table("NO_SUCH_LIST") + " ORDER BY name",
            HasSubstr("NO_SUCH_LIST")));
}

} // namespace

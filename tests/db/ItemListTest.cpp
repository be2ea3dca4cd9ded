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

std::string contents(const ItemList& list)
{
    std::string items;
    int count = 0;
    for (const Item* item : list)
        items += (count++ ? " " : "") + std::to_string(item->id) + item->text.str();

    EXPECT_EQ(count, list.count);
    return items;
}

void addAll(ItemList& list, const std::vector<std::pair<int, const char*>>& items)
{
    for (const auto& [id, text] : items)
        list.addNew(id, text);
}

TEST(ItemList, Orders)
{
    ItemList sorted(1);
    addAll(sorted, {{1, "b"}, {2, "A"}, {3, "a"}, {4, "b"}, {5, "A"}, {6, "\u00C4"}});
    EXPECT_EQ("2A 5A 3a 1b 4b 6\u00C4", contents(sorted));
    ItemList unsorted;
    addAll(unsorted, {{1, "b"}, {2, "A"}, {3, "b"}});
    for (ItemList* list : {&sorted, &unsorted}) // before an item whatever its text
        list->add(new Item(7, "z"), list->find(2));
    EXPECT_EQ("1b 7z 2A 3b", contents(unsorted));
    EXPECT_EQ(0, sorted.indexOf(7));
}

/// A list box without a window.
class FakeBox : public zListBoxBase {
public:
    void add(const char* text) override { rows.emplace_back(text); }
    int count() const override { return static_cast<int>(rows.size()); }
    int selection() const override { return selected; }
    void selection(int row) override { selected = row; }
    void clear() override
    {
        rows.clear();
        selected = -1;
    }
    std::vector<std::string> rows{"left from before"};
    int selected = -1;
};

class Filled : public testing::Test {
protected:
    Filled() { addAll(list, {{7, "seven"}, {8, "eight"}, {7, "again"}, {0, "none"}}); }
    ItemList list;
    FakeBox box;
    int id = 99;
    char text[200] = "untouched";
};

TEST_F(Filled, LooksUpAndRemoves)
{
    list.reset();
    list.next();
    EXPECT_STREQ("seven", list.find(7)->text);
    EXPECT_EQ(nullptr, list.find(9));
    EXPECT_EQ(0, list.indexOf(7));
    EXPECT_EQ(-1, list.indexOf(9));
    EXPECT_EQ(7, list.idAt(2));
    EXPECT_EQ(7, list.idOf("again"));
    EXPECT_EQ(0, list.idOf("Again"));
    EXPECT_EQ(0, list.idOf(nullptr));
    list.get(1, &id, text);
    EXPECT_EQ(8, id);
    EXPECT_STREQ("eight", text);
    for (const int outside : {4, -1}) {
        id = 99;
        list.get(outside, &id, text);
        EXPECT_EQ(-1, id);
        EXPECT_STREQ("", text);
        EXPECT_EQ(-1, list.idAt(outside));
    }
    EXPECT_EQ(8, list.next()->id);
    EXPECT_EQ(0, list.removeId(9));
    EXPECT_EQ(1, list.removeId(7));
    EXPECT_EQ("8eight 0none", contents(list)) << "every one";
}

TEST_F(Filled, FillsABoxAndSelects)
{
    list.fillListBox(box, 7);
    EXPECT_THAT(box.rows, ElementsAre("seven", "eight", "again", "none"));
    EXPECT_EQ(0, box.selected) << "the first of that identifier";
    for (const int wanted : {0, 9}) { // one that is not there changes nothing
        list.selectInListBox(box, wanted);
        EXPECT_EQ(3, box.selected);
    }
    list.fillListBox(box, 9);
    EXPECT_EQ(0, box.selected) << "and is filled as the first row";
    for (const auto& [row, expected] : {std::pair(2, "17again"), std::pair(-1, "0-1")}) {
        box.selected = row;
        const int found = list.getListBoxSelection(box, &id, text);
        EXPECT_EQ(expected, std::to_string(found) + std::to_string(id) + text);
    }
    ItemList().fillListBox(box, 9);
    EXPECT_THAT(box.rows, IsEmpty());
    EXPECT_EQ(-1, box.selected) << "if there is a row";
}

TEST(LoadedItemList, EachLoadReplacesAndASortedOneSortsAgain)
{
    TestDatabase database;
    const MessageLog messages;
    database.run("CREATE TABLE NO_SUCH_LIST (id INTEGER, name VARCHAR(250) COLLATE NOCASE)");
    database.run("INSERT INTO NO_SUCH_LIST VALUES (1, 'b'), (2, 'A  '), (3, 'a'), (4, 'B'), "
                 "(5, NULL), (6, 'B'), (7, 'c"
        + std::string(197, 'x') + "\u00F8')");
    const std::string select =
        "SELECT id,name FROM " + sql::table("NO_SUCH_LIST") + " ORDER BY name";
    ItemList list;
    const StatementLog log;
    list.load("NO_SUCH_LIST", "id", "name");
    EXPECT_THAT(log.statements(), ElementsAre(select));
    // Blanks behind count in the database, not in the item, which holds what fits.
    const std::string last = " 7c" + std::string(197, 'x');
    EXPECT_EQ("5 3a 2A 1b 4B 6B" + last, contents(list));
    list.sorted = 1;
    list.load("NO_SUCH_LIST", "id", "name");
    EXPECT_EQ("5 2A 4B 6B 3a 1b" + last, contents(list));
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "no cursor is left";
    EXPECT_THAT(messages.texts(), IsEmpty());
    dbCloseCursor(1);
    database.run("DROP TABLE NO_SUCH_LIST");
    list.load("NO_SUCH_LIST", "id", "name");
    EXPECT_EQ("", contents(list));
    EXPECT_THAT(messages.texts(), ElementsAre(select, HasSubstr("NO_SUCH_LIST")));
}

} // namespace

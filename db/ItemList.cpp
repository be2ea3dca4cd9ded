// db/ItemList.cpp
#include "db/ItemList.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

bool textPrecedes(const Item& a, const Item& b) { return std::strcmp(a.text, b.text) < 0; }

void fillBox(zBox& box, const ItemList& list, int id)
{
    for (const Item* item : list)
        box.add(item->text);
    const int row = list.indexOf(id);
    if (row >= 0)
        box.selection(row);
    else if (box.count() > 0)
        box.selection(0);
}

int boxSelection(const zBox& box, const ItemList& list, int* id, char* text)
{
    const int row = box.count() > 0 ? box.selection() : -1;
    list.get(row, id, text);
    return row < 0 ? 0 : 1;
}

void selectIn(zBox& box, int row)
{
    if (row >= 0)
        box.selection(row);
}

} // namespace

void Item::getText(char* out) const { std::strcpy(out, text); }

void ItemList::load(const char* table, const char* idColumn, const char* textColumn)
{
    clear();
    const std::string select = std::string("SELECT ") + idColumn + "," + textColumn + " FROM "
        + sql::table(table) + " ORDER BY " + textColumn;
    Cursor rows(select);
    if (!rows) {
        reportDbFailure(select, Fatal::No);
        return;
    }
    std::vector<std::unique_ptr<Item>> items;
    while (rows.next()) {
        const int id = static_cast<int>(rows.integer(1));
        items.push_back(std::make_unique<Item>(id, rows.text(2).c_str()));
    }
    // The database may order by other rules than bytes. Sorting at once gives what adding one by
    // one would.
    if (sorted)
        std::ranges::stable_sort(
            items, [](const auto& a, const auto& b) { return textPrecedes(*a, *b); });
    for (auto& item : items)
        push(item.release());
    count = static_cast<int>(items.size());
}

void ItemList::add(Item* item, Item* before)
{
    if (before || !sorted) {
        insert(before, item);
    } else {
        const auto greater = std::find_if(
            begin(), end(), [item](const Item* other) { return textPrecedes(*item, *other); });
        insertAt(greater.node(), item);
    }
    ++count;
}

Item* ItemList::find(int id) const
{
    const auto found = std::find_if(begin(), end(), [id](const Item* i) { return i->id == id; });
    return found == end() ? nullptr : *found;
}

int ItemList::indexOf(int id) const
{
    int index = 0;
    for (const Item* item : *this) {
        if (item->id == id)
            return index;
        ++index;
    }
    return -1;
}

int ItemList::idAt(int index) const
{
    int id = -1;
    get(index, &id, nullptr);
    return id;
}

void ItemList::get(int index, int* id, char* text) const
{
    const Item none(-1, "");
    const Item* found = index >= 0 && index < count ? *std::next(begin(), index) : &none;
    *id = found->id;
    if (text)
        found->getText(text);
}

int ItemList::idOf(const char* text) const
{
    if (text)
        for (const Item* item : *this)
            if (item->text == text)
                return item->id;
    return 0;
}

int ItemList::removeId(int id)
{
    const int before = count;
    reset();
    while (Item* item = next())
        if (item->id == id) {
            remove();
            delete item;
            --count;
        }
    return count < before ? 1 : 0;
}

void ItemList::clear()
{
    while (Item* item = pop())
        delete item;
    count = 0;
}

void ItemList::fillListBox(zListBoxBase& box, int id) const
{
    box.clear();
    fillBox(box, *this, id);
}

void ItemList::fillComboBox(zComboBoxBase& box, int id) const
{
    box.reset();
    fillBox(box, *this, id);
}

int ItemList::getListBoxSelection(const zListBoxBase& box, int* id, char* text) const
{
    return boxSelection(box, *this, id, text);
}

int ItemList::getComboBoxSelection(const zComboBoxBase& box, int* id, char* text) const
{
    return boxSelection(box, *this, id, text);
}

void ItemList::selectInListBox(zListBoxBase& box, int id) const { selectIn(box, indexOf(id)); }

void ItemList::selectInComboBox(zComboBoxBase& box, int id) const { selectIn(box, indexOf(id)); }

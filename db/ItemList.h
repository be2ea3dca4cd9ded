// db/ItemList.h
#pragma once

#include "platform/zapp/zBoxes.h"
#include "util/FixedText.h"
#include "util/GList.h"

/// A row of a code list: an identifier and its display text.
struct Item {
    Item(int itemId, const char* itemText)
        : id(itemId)
        , text(itemText)
    {
    }
    /// Copies the text, at most 199 bytes and the terminator, into `out`.
    void getText(char* out) const;
    void setText(const char* newText) { text = newText; }

    int id;
    FixedText<199> text;
};

/// A code list of the database, and the boxes of a window that show it. Owns its items and destroys
/// them. Positions count from 0; a box is filled from the list and keeps its order, so that the row
/// in the box is the position in the list. Looking up does not move the list's cursor.
class ItemList : public TypedList<Item> {
public:
    /// Not 0: `add` keeps the items in ascending order of text, by bytes.
    int sorted;
    /// The number of items.
    int count = 0;

    explicit ItemList(int keepSorted = 0)
        : sorted(keepSorted)
    {
    }
    ~ItemList() { clear(); }

    /// Replaces the items by the table's rows in the order of the text column (in a sorted list: of
    /// the texts by bytes). A failed query is reported, not fatally, and leaves the list empty.
    void load(const char* table, const char* idColumn, const char* textColumn);
    /// Puts `item` directly before `before`; with none at its place by text in a sorted list,
    /// behind those of the same text, else at the end. The list owns it then.
    void add(Item* item, Item* before = nullptr);
    void addNew(int id, const char* text) { add(new Item(id, text)); }

    /// The first item with that identifier, or null.
    Item* find(int id) const;
    /// Its position, or -1.
    int indexOf(int id) const;
    /// The identifier at a position; -1 outside the list.
    int idAt(int index) const;
    /// Identifier and text (unless null) at a position; -1 and the empty text outside the list.
    void get(int index, int* id, char* text) const;
    /// The identifier of the first item with exactly that text; 0 when there is none.
    int idOf(const char* text) const;
    /// Destroys every item with that identifier. 1 when there was one.
    int removeId(int id);
    void clear();

    /// Fills the box with the texts and selects the first item with that identifier, or, when there
    /// is none, the first row.
    void fillListBox(zListBoxBase& box, int id) const;
    void fillComboBox(zComboBoxBase& box, int id) const;
    /// The item of the selected row as `get` gives it and 1; -1, the empty text and 0 when no row
    /// is selected. `text` may be null.
    int getListBoxSelection(const zListBoxBase& box, int* id, char* text) const;
    int getComboBoxSelection(const zComboBoxBase& box, int* id, char* text) const;
    /// Selects the row of the first item with that identifier; none changes nothing.
    void selectInListBox(zListBoxBase& box, int id) const;
    void selectInComboBox(zComboBoxBase& box, int id) const;
};

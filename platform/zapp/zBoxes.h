// platform/zapp/zBoxes.h
#pragma once

// List box and combo box of the seam. The rows are numbered from 0; -1 means no selection. A box
// never sorts and never selects a row by itself.

/// What both kinds of box share.
class zBox {
public:
    virtual ~zBox() = default;
    /// Appends a row. `text` is plain UTF-8 text, never markup; null is read as empty. The
    /// selection stays as it is.
    virtual void add(const char* text) = 0;
    virtual int count() const = 0;
    /// The selected row, or -1.
    virtual int selection() const = 0;
    /// Selects a row; -1 clears the selection. A row that is not there changes nothing.
    virtual void selection(int row) = 0;
};

class zListBoxBase : public zBox {
public:
    /// Removes all rows.
    virtual void clear() = 0;
};

class zComboBoxBase : public zBox {
public:
    /// Removes all rows.
    virtual void reset() = 0;
};

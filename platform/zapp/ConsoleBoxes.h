// platform/zapp/ConsoleBoxes.h
#pragma once

#include "platform/zapp/zBoxes.h"

#include <string>
#include <vector>

/// The rows of a box that nobody sees.
template <typename Base> class ConsoleBox : public Base {
public:
    void add(const char* text) override { rows_.emplace_back(text ? text : ""); }
    int count() const override { return static_cast<int>(rows_.size()); }
    int selection() const override { return selected_; }
    void selection(int row) override
    {
        if (row >= -1 && row < count())
            selected_ = row;
    }
    const std::vector<std::string>& rows() const { return rows_; }

protected:
    void removeAll()
    {
        rows_.clear();
        selected_ = -1;
    }

private:
    std::vector<std::string> rows_;
    int selected_ = -1;
};

class ConsoleListBox : public ConsoleBox<zListBoxBase> {
public:
    void clear() override { removeAll(); }
};

class ConsoleComboBox : public ConsoleBox<zComboBoxBase> {
public:
    void reset() override { removeAll(); }
};

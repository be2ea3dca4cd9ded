// tests/platform/zapp/BoxTest.cpp
#include "platform/zapp/ConsoleBoxes.h"
#include "platform/zapp/qt/QtBoxes.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QListWidget>

#include <variant>

namespace {

class Screen : public testing::Test {
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
};

template <typename Box> struct OnConsole {
    Box box;
    std::vector<std::string> rows() const { return box.rows(); }
};

template <typename Box, typename Widget> struct OnScreen {
    Widget widget;
    Box box{widget};
    std::vector<std::string> rows() const
    {
        std::vector<std::string> texts;
        for (int row = 0; row < widget.count(); ++row)
            texts.push_back(widget.model()->index(row, 0).data().toString().toStdString());
        return texts;
    }
};

using ScreenList = OnScreen<QtListBox, QListWidget>;
using ScreenCombo = OnScreen<QtComboBox, QComboBox>;

struct Empty {};
void apply(const Empty&, zListBoxBase& box) { box.clear(); }
void apply(const Empty&, zComboBoxBase& box) { box.reset(); }
void apply(const char* text, zBox& box) { box.add(text); }
void apply(int row, zBox& box) { box.selection(row); }

struct BoxCase {
    const char* rule;
    std::vector<std::variant<const char*, int, Empty>> steps; ///< texts to add, rows to select
    std::vector<std::string> rows;
    int selection;
};

const BoxCase kCases[] = {
    {"filling selects nothing, rows stay in order", {"b", "A", "b"}, {"b", "A", "b"}, -1},
    {"the first row reads back", {"a", "b", 0}, {"a", "b"}, 0},
    {"the later choice counts", {"a", "b", 0, 1}, {"a", "b"}, 1},
    {"-1 clears", {"a", 0, -1}, {"a"}, -1},
    {"one behind the last is ignored", {"a", 0, 1}, {"a"}, 0},
    {"one below -1 is ignored", {"a", 0, -2}, {"a"}, 0},
    {"row 0 of an empty box does not wait for it", {0, "a"}, {"a"}, -1},
    {"adding keeps the selection", {"a", "b", 1, "c"}, {"a", "b", "c"}, 1},
    {"adding keeps a cleared selection", {"a", 0, -1, "b"}, {"a", "b"}, -1},
    {"an emptied box has no selection", {"a", 0, Empty()}, {}, -1},
    {"nor after it is filled again", {"a", 0, Empty(), "b"}, {"b"}, -1},
    {"texts are no markup", {"a < b <b>x</b>", "&c && d"}, {"a < b <b>x</b>", "&c && d"}, -1},
    {"texts are UTF-8, null is an empty one", {"Paläozän", nullptr}, {"Paläozän", ""}, -1},
};

template <typename Kind> class Boxes : public Screen {
};
using Kinds =
    testing::Types<OnConsole<ConsoleListBox>, OnConsole<ConsoleComboBox>, ScreenList, ScreenCombo>;
TYPED_TEST_SUITE(Boxes, Kinds);

TYPED_TEST(Boxes, KeepTheRules)
{
    for (const BoxCase& c : kCases) {
        SCOPED_TRACE(c.rule);
        TypeParam on;
        for (const auto& step : c.steps)
            std::visit([&on](const auto& value) { apply(value, on.box); }, step);
        EXPECT_EQ(on.rows(), c.rows);
        EXPECT_EQ(on.box.count(), static_cast<int>(c.rows.size()));
        EXPECT_EQ(on.box.selection(), c.selection);
    }
}

TEST_F(Screen, ListHoldsOneChoiceUnsorted)
{
    QListWidget list;
    list.setSortingEnabled(true);
    list.setSelectionMode(QAbstractItemView::MultiSelection);
    QtListBox box(list);
    box.add("b");
    box.add("a");
    QFocusEvent focus(QEvent::FocusIn);
    QApplication::sendEvent(&list, &focus);
    ASSERT_EQ(list.currentRow(), 0) << "the widget no longer does what the box must not";
    EXPECT_EQ(box.selection(), -1);
    box.selection(0);
    list.selectAll();
    EXPECT_EQ(list.selectedItems(), QList{list.item(0)});
    EXPECT_EQ(list.item(0)->text(), "b");
}

TEST_F(Screen, ComboTellsOfChoicesAlone)
{
    ScreenCombo on;
    int choices = 0;
    QObject::connect(&on.widget, &QComboBox::currentIndexChanged, [&](int) { ++choices; });
    on.box.add("a");
    on.box.add("b");
    EXPECT_EQ(choices, 0) << "filled";
    on.box.selection(1);
    EXPECT_EQ(choices, 1) << "chosen";
    on.widget.setEditable(true);
    on.widget.setEditText("c");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(&on.widget, &enter);
    EXPECT_EQ(on.box.count(), 2) << "typed text becomes no row";
}

} // namespace

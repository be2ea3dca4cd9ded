// tests/platform/zapp/QtDesk.cpp
#include "tests/platform/zapp/Desk.h"

#include "platform/zapp/qt/QtBoxes.h"
#include "platform/zapp/qt/QtToolkit.h"

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>
#include <QTimer>

#include <utility>

namespace {

constexpr const char* kArguments[] = {"desk"};

/// The widget and the box over it, which goes first.
template <typename Widget, typename Box> struct Pair {
    Widget widget;
    Box box{widget};
};

DeskBox listBox()
{
    auto pair = std::make_shared<Pair<QListWidget, QtListBox>>();
    const auto rows = [pair] {
        std::vector<std::string> texts;
        for (int row = 0; row < pair->widget.count(); ++row)
            texts.push_back(pair->widget.item(row)->text().toStdString());
        return texts;
    };
    return {{pair, &pair->box}, [pair] { pair->box.clear(); }, rows};
}

DeskBox comboBox()
{
    auto pair = std::make_shared<Pair<QComboBox, QtComboBox>>();
    const auto rows = [pair] {
        std::vector<std::string> texts;
        for (int row = 0; row < pair->widget.count(); ++row)
            texts.push_back(pair->widget.itemText(row).toStdString());
        return texts;
    };
    return {{pair, &pair->box}, [pair] { pair->box.reset(); }, rows};
}

class QtDesk : public Desk {
public:
    zToolkit& toolkit() override { return qt_; }
    void later(std::function<void()> task) override { QTimer::singleShot(0, std::move(task)); }
    std::string seen(const char* text, const char* caption) override
    {
        std::string line;
        QTimer user;
        user.callOnTimeout([&line] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                line = box->windowTitle().toStdString() + ": " + box->text().toStdString();
                box->accept();
            }
        });
        user.start(0);
        zMessage(nullptr, text, caption, MB_ICONHAND);
        return line;
    }
    DeskBox makeBox(BoxKind kind) override
    {
        return kind == BoxKind::List ? listBox() : comboBox();
    }

private:
    QtToolkit qt_{1, kArguments};
};

} // namespace

std::unique_ptr<Desk> makeDesk() { return std::make_unique<QtDesk>(); }

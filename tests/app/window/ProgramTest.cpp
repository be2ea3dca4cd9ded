// tests/app/window/ProgramTest.cpp
#include "app/OpenMainWindow.h"

#include "tests/support/Restore.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/Workspace.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QImage>
#include <QMainWindow>
#include <QMessageBox>
#include <QTimer>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> seen; // what the user saw and closed

void closeWhatIsOpen()
{
    if (const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
        seen.push_back(box->text().toStdString());
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (!window->isVisible())
            continue;
        if (qobject_cast<QMainWindow*>(window))
            seen.push_back(window->windowTitle().toStdString());
        window->close();
    }
}

bool userThere = false;

/// A user in front of every application object, who closes whatever is open, sooner or later.
void seatUser()
{
    if (!userThere)
        return;
    auto* user = new QTimer(qApp);
    user->callOnTimeout(closeWhatIsOpen);
    user->start(20); // ms
}
Q_COREAPP_STARTUP_FUNCTION(seatUser)

class Program : public testing::Test {
protected:
    Program() { seen.clear(); }

    ConnectionSettings settings(const std::string& file) const
    {
        ConnectionSettings named;
        named.databaseFile = file;
        return named;
    }
    TestDatabase db;
    const StartArguments start;
};

TEST_F(Program, EndsWithTheWindow)
{
    const Restore<bool> user(userThere, true);
    EXPECT_EQ(openMainWindow(start, settings(db.file())), 0);
    EXPECT_THAT(seen, ElementsAre(HasSubstr(" – Zonaris")));
    seen.clear();
    EXPECT_EQ(openMainWindow(start, {}), 0);
    EXPECT_THAT(seen, ElementsAre("Zonaris"));
    seen.clear();
    EXPECT_EQ(openMainWindow(start, settings("no such file.zdb")), 1);
    EXPECT_THAT(seen, ElementsAre(HasSubstr("no such file.zdb")));
}

TEST_F(Program, SavesAPictureOfTheWindow)
{
    const std::string file = workspace::newFile("window.png");
    PictureOptions picture;
    picture.file = file;
    EXPECT_EQ(saveMainWindow(start, settings(db.file()), picture), 0);
    EXPECT_EQ(QImage(QString::fromStdString(file)).size(), QSize(1100, 700));
}

} // namespace

// tests/app/window/WindowDesk.cpp
#include "tests/app/window/WindowDesk.h"

#include "db/Session.h"

#include <gtest/gtest.h>

#include <QAction>

MainWindow& WindowDesk::openConnected(const std::string& connectString)
{
    ConnectionSettings connected = settings();
    connected.connectString = connectString;
    if (connectString.empty())
        connected.databaseFile = db.file();
    window = std::make_unique<MainWindow>(connected, services());
    window->showDatabase();
    return *window;
}

MainWindow& WindowDesk::openEmpty()
{
    dbDisconnect();
    window = std::make_unique<MainWindow>(settings(), services());
    return *window;
}

void WindowDesk::choose(const std::string& wellCode)
{
    const QAbstractItemModel& model = *wells().model();
    const QModelIndexList found = model.match(
        model.index(0, 1), Qt::DisplayRole, QString::fromStdString(wellCode), 1, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << wellCode;
    wells().setCurrentIndex(found.first());
}

void WindowDesk::act(const char* text)
{
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text().remove('&') == QLatin1String(text))
            return action->trigger();
    }
    FAIL() << "no action " << text;
}

WindowServices WindowDesk::services()
{
    return {[this](QWidget*, const QString&) { return picked; },
        [this](const QStringList& arguments) {
            started.push_back(arguments);
            return starts;
        },
        [this](QWidget*, const QString& text) {
            asked += text;
            return wish;
        }};
}

ConnectionSettings WindowDesk::settings() const
{
    ConnectionSettings settings;
    settings.kind = testSettings().kind;
    settings.ownerPrefix = testSettings().prefix;
    return settings;
}

// tests/app/window/WindowDesk.h
#pragma once

#include "app/window/MainWindow.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestDatabase.h"

#include <QTableView>

#include <memory>

/// A main window with a user and a desktop around it, on a database of its own.
class WindowDesk {
public:
    /// The window on the database that the session is connected with, which settings name by its
    /// file or as `connectString`.
    MainWindow& openConnected(const std::string& connectString = {});
    /// The window without a database; the session is disconnected.
    MainWindow& openEmpty();

    template <typename Widget> Widget& find(const char* name) const
    {
        return *window->findChild<Widget*>(QString::fromLatin1(name));
    }
    QTableView& wells() const { return find<QTableView>("wellList"); }
    QTableView& samples() const { return find<QTableView>("sampleTable"); }
    void choose(const std::string& wellCode);
    /// Sends a menu's action, found by its text without "&".
    void act(const char* text);

    MessageLog messages;
    TestDatabase db;
    std::vector<QStringList> started; // command lines of programs
    bool starts = true;               // whether starting one works
    QString picked;                   // what the file dialog gives back
    QStringList asked;                // before edits are left
    Unsaved wish = Unsaved::Stay;     // what the user answers
    std::unique_ptr<MainWindow> window;

private:
    WindowServices services();
    ConnectionSettings settings() const;
};

// app/window/WindowServices.h
#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// What the main window asks of the world around it, so that tests can stand in for that.
struct WindowServices {
    /// The database file that the user picks, the dialog starting in `folder`; empty: none.
    std::function<QString(QWidget* parent, const QString& folder)> chooseFile;
    /// Starts this program once more, beside this process, with these arguments. Whether it
    /// started.
    std::function<bool(const QStringList& arguments)> startProgram;
};

/// A file dialog and a process.
WindowServices desktopServices();

// app/window/WindowServices.h
#pragma once

#include <QStringList>

#include <functional>

class QWidget;

/// What becomes of edits that are not saved.
enum class Unsaved { Save, Discard, Stay };

/// What the main window asks of the world around it, so that tests can stand in for that.
struct WindowServices {
    /// The database file that the user picks, the dialog starting in `folder`; empty: none.
    std::function<QString(QWidget* parent, const QString& folder)> chooseFile;
    /// Starts this program once more, beside this process, with these arguments. Whether it
    /// started.
    std::function<bool(const QStringList& arguments)> startProgram;
    /// What the user, who is about to leave edits, wants of them; `text` says which they are.
    std::function<Unsaved(QWidget* parent, const QString& text)> askUnsaved;
};

/// A file dialog, a process and a message box.
WindowServices desktopServices();

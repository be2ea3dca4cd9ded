// app/OpenMainWindow.h
#pragma once

#include "app/Entry.h"
#include "app/batch/BatchOptions.h"
#include "app/shell/ConnectionSettings.h"

/// Runs the program with its main window, on the database that `settings` names or, when they name
/// none, on the one that was used last; without one until the user opens one. Returns the exit
/// status of the process: 1 when the database could not be opened, which a message box said.
int openMainWindow(const StartArguments& start, const ConnectionSettings& settings);

/// Makes the same window, saves it as a PNG file once the chosen well is loaded, for pictures in
/// documents, and returns: 1 when the database could not be opened, when it does not have what is
/// to be shown, or when the file could not be written.
int saveMainWindow(
    const StartArguments& start, const ConnectionSettings& settings, const PictureOptions& picture);

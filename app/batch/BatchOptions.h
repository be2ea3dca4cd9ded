// app/batch/BatchOptions.h
#pragma once

#include "app/shell/Settings.h"
#include "store/Create.h"

#include <functional>
#include <string>

/// What a command does with the database.
enum class DatabaseNeed {
    Open,     ///< works on one that is there
    Create,   ///< makes the file
    IfNamed,  ///< looks into one when the user names it
    AsIs,     ///< works on one that is there, whatever its tables are
    ByItself, ///< connects by itself with what the user names, if anything
    None,     ///< has nothing to do with one
};

/// A picture of the window, for documents.
struct PictureOptions {
    std::string file; ///< PNG; empty: none is asked for
    std::string well; ///< the well to choose, by code, name or number; empty: the first
    std::string view; ///< the view of it, by the title of its tab; empty: the first
    int width = 0;    ///< pixels; 0: as the window opens
    int height = 0;
    bool dark = false; ///< colours of a dark desktop
};

/// What the command line asks for.
struct BatchOptions {
    ConnectionChoice asked;        ///< as it stands on the command line
    ConnectionSettings connection; ///< what that means with the user's settings
    /// The command, with its own options, to be carried out on an open session. Returns the exit
    /// status. None: the main window.
    std::function<int()> run;
    DatabaseNeed database = DatabaseNeed::Open;
    std::string newFile;    ///< create: the file, when it stands behind the command
    FillDatabase fill;      ///< create: puts in what a new database begins with
    PictureOptions picture; ///< without a command: save the window and end
};

// Exit statuses of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

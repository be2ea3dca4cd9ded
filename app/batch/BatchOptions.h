// app/batch/BatchOptions.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <string>
#include <vector>

enum class BatchCommand { None, Create, Import, Wells, Samples };

/// What the command line asks for. None: the main window.
struct BatchOptions {
    ConnectionSettings connection;
    BatchCommand command = BatchCommand::None;
    std::vector<std::string> inputs; ///< import: files and folders
    bool dryRun = false;             ///< import: store nothing
    bool strict = false;             ///< import: refused rows are a failure
    std::string well;                ///< samples: code, name or number
    char units = 0;                  ///< samples: 'M', 'F', or 0 for the units of the well
    std::string picture;             ///< None: save the window as this PNG file and end
};

// Exit statuses of the program.
inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongUsage = 2;

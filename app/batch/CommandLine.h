// app/batch/CommandLine.h
#pragma once

#include "app/batch/BatchOptions.h"

#include <optional>

/// Reads the command line into `options`. An exit status when that was all: `kDone` after help or
/// version on the standard output, `kWrongUsage` after a message on the standard error stream.
std::optional<int> readCommandLine(int argc, const char* const* argv, BatchOptions* options);

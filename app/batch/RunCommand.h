// app/batch/RunCommand.h
#pragma once

#include "app/batch/BatchOptions.h"

/// Carries the command out on a database session of its own: tables and counts go to the standard
/// output, everything else to the standard error stream. Returns the exit status. A failure that
/// the core calls fatal ends the process with status 1 instead.
int runCommand(const BatchOptions& options);

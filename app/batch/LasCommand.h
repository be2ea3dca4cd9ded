// app/batch/LasCommand.h
#pragma once

#include <string>

/// Writes the well that a user means as a LAS file. One that is there is replaced only with
/// `force`. Tells the standard error stream what is written otherwise than stored, and why there is
/// no file; returns the exit status.
int writeLasFile(const std::string& well, const std::string& file, bool force);

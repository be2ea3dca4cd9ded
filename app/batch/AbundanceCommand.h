// app/batch/AbundanceCommand.h
#pragma once

#include <string>

/// Shows the ladder of the scheme of that name or number, then what `amount` means in it: the code
/// that a count gets, the count that a code stands for. Returns the exit status.
int showAbundance(const std::string& scheme, const std::string& amount);

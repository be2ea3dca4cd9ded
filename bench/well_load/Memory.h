// bench/well_load/Memory.h
#pragma once

#include <string>

/// The most memory that this process has had resident so far, in bytes; without `peak` what it has
/// now.
long residentBytes(bool peak);

/// Runs this program anew with `arguments`, so that memory is counted from a fresh start, and gives
/// the number that it prints. Ends the process when it prints none.
long numberFromFreshProcess(const std::string& arguments);

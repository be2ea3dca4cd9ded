// tests/support/DriverControl.h
#pragma once

#include "platform/desktopdb/TestControl.h"
#include "tests/support/OdbcConnection.h"

#include <cstdint>
#include <string>
#include <vector>

/// The embedded driver's own switches for tests: its attributes, set for the whole process.
namespace driver_control {

/// The connection string for a database file, made when it is not there; `dialect` is "Oracle" or
/// "Access".
std::string connectString(const std::string& file, const std::string& dialect);

/// A connection to set the switches with. It stays to the end of the process, so that the driver
/// manager keeps the library, and with it the switches, loaded.
OdbcConnection& connection();

/// Records from now on and for the rest of the process; returns the recorder's file.
const std::string& record();

/// The statements in a recorder's file from byte `start` on, as the driver received them.
std::vector<std::string> recorded(const std::string& file, std::uintmax_t start = 0);

} // namespace driver_control

// tests/support/DriverControl.h
#pragma once

#include "platform/desktopdb/TestControl.h"
#include "tests/support/OdbcConnection.h"

#include <string>

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

} // namespace driver_control

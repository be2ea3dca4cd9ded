// tests/support/DriverControl.h
#pragma once

#include "tests/support/OdbcConnection.h"

#include <string>

/// The embedded driver's own switches for tests, which act on the whole process.
namespace driver_control {

// Connection attributes.
inline constexpr SQLINTEGER kFault = 30001;     // text: which call is to fail; empty: none
inline constexpr SQLINTEGER kFired = 30002;     // to read: the function that failed; empty: not yet
inline constexpr SQLINTEGER kRecord = 30003;    // text: the file that statements are appended to
inline constexpr SQLINTEGER kInvisible = 30004; // 1: faults and recorder pass this connection by

/// The connection string for a database file, made when it is not there; `dialect` is "Oracle" or
/// "Access".
std::string connectString(const std::string& file, const std::string& dialect);

/// A connection to set the switches with. It stays to the end of the process, so that the driver
/// manager keeps the library, and with it the switches, loaded.
OdbcConnection& connection();

/// Records from now on and for the rest of the process; returns the recorder's file.
const std::string& record();

} // namespace driver_control

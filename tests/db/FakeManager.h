// tests/db/FakeManager.h
#pragma once

#include <string>
#include <vector>

/// Stands in for the driver manager in the program that it is linked into: every call succeeds save
/// the execution of the text "fail", a query has no rows, and what the calls were given is kept.
/// Columns are NULL (an even number) or refused (an odd one), and either way the buffer is spoilt.
struct FakeManager {
    /// The calls with what a driver sees of them, in order.
    std::vector<std::string> calls;
    std::string driverName = "some.so";
    /// What the driver puts before a wildcard in a catalogue name; empty: it has none.
    std::string escape = "\\";

    /// The one of the process, as new.
    static FakeManager& renewed();
};

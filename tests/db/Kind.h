// tests/db/Kind.h
#pragma once

#include "db/Literals.h"
#include "tests/support/TestDatabase.h"

#include <string>

// What the kind and prefix of this test process make of a text.

/// Whether the process runs as the server kind.
inline bool isServer() { return testSettings().kind == 2; }

/// The text of the server kind or that of the others.
inline const char* byKind(const char* server, const char* desktop)
{
    return isServer() ? server : desktop;
}

/// A table that no shipped schema has, so that suites can make it for themselves.
inline std::string scratch() { return sql::table("NO_SUCH_SCRATCH"); }

// app/shell/Doctor.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <string>
#include <vector>

class SideConnection;

/// What an examination found.
struct Diagnosis {
    struct Fact {
        std::string name;
        std::string value;
    };
    struct Problem {
        std::string text;
        std::string remedy; ///< what to do about it
    };
    std::vector<Fact> facts;
    std::vector<Problem> problems;
};

/// Examines the program's surroundings and the database that the settings name, if any. Changes
/// nothing in it, and examines tables of an earlier version as they are. The session is not
/// connected afterwards. A database on a server answers fewer questions than an embedded one.
Diagnosis examineDatabase(const ConnectionSettings& settings);

// Its parts, on a connection beside the session.

/// Tables, columns, indices, views and triggers against the shipped schema; of a server the tables
/// alone, as its columns and indices are its own.
void examineTables(SideConnection& side, bool embedded, Diagnosis* diagnosis);

/// Rows that name rows of another table which are not there, counted for each relation.
void examineRelations(SideConnection& side, Diagnosis* diagnosis);

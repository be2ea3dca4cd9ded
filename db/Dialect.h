// db/Dialect.h
#pragma once

#include <string>
#include <string_view>

/// What a database kind decides in the session and its literals: one row per kind.
struct DialectFacts {
    int kind;
    std::string_view upperFunction;
    std::string_view lowerFunction;
    char likeWildcard;
    /// Literals that contain a bar stay in the statement; else they are sent as parameters.
    bool barsAsWritten;
    /// Dates are 'ddmmyyyy'; else #yyyy-mm-dd#.
    bool compactDates;
    /// The session's date format must be set again after a reconnection.
    bool dateFormatStatement;
    /// The owner in front of the tables is known to the catalogue.
    bool ownerInCatalogue;
};

/// The facts of the current `dbKind`.
const DialectFacts& dialectFacts();

/// `statement` with the case functions and the LIKE wildcards of the dialect that `dbKind` named at
/// the first call in the process.
std::string inDialect(std::string statement);

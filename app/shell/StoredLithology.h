// app/shell/StoredLithology.h
#pragma once

#include <compare>
#include <optional>
#include <string>
#include <vector>

/// A row of the lithology of a well as the database holds it.
struct StoredLithology {
    double top = 0; ///< metres
    double base = 0;
    long lith_id = 0; ///< LITHDESC.lith_id
    // Of qualifiers only.
    char kind = 0;
    char alignment = 0;
    double place = 0; ///< across the column
    std::string text;

    friend auto operator<=>(const StoredLithology&, const StoredLithology&) = default;
};

/// The rows of a table in an order that is always the same; nothing after a failure, which was
/// reported.
using StoredLithologies = std::optional<std::vector<StoredLithology>>;

/// The rock intervals of a well, those included whose rock the dictionary has not got.
StoredLithologies storedRocks(long well_id);
/// The rock intervals of a well whose rock the dictionary has not got: no list loads them.
StoredLithologies storedUnknownRocks(long well_id);
/// What is said of the rocks of a well.
StoredLithologies storedQualifiers(long well_id);

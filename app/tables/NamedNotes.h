// app/tables/NamedNotes.h
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a file has and the tables have no column for is kept in a text column beside it, in a form
// that an export can take apart again:
//
//     abundance=14%; percent=14; seen by two of us
//
// Fields come first, each a name of small letters and underscores, "=" and its value, parted by
// "; ". A value with a semicolon or quotation mark in it, or blanks at its ends, stands in
// quotation marks, those in it doubled. What follows the last field is the text that the column is
// meant for. A text that would itself read as a field becomes the field `note`.
//
// Fields of occurrences (TAXONOCC.comments): `abundance`, as written, unless it is the stored code
// or count; `percent`. Of details (SMPDTL.notes): `category`, `group_abundance`, `preservation`,
// `overgrowth`, `dissolution`, `age`, `oldest_age`, `youngest_age`, `oldest_zone`,
// `youngest_zone`. Of events (EVENTS.comments): `from` and `to`, the depths in metres between which
// the event lies; `age` in Ma; `written` when its kind was translated.

struct NamedNotes {
    std::vector<std::pair<std::string, std::string>> fields;
    std::string text;

    /// Empty values are left out.
    void add(std::string_view name, std::string_view value);
    /// The value of a field; empty without one.
    std::string_view value(std::string_view name) const;
    std::string compose() const;
};

NamedNotes namedNotesOf(std::string_view stored);

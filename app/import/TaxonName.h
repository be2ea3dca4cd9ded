// app/import/TaxonName.h
#pragma once

#include "taxonomy/Taxon.h"

#include <string>
#include <string_view>

// How a written name becomes the slots of a taxon. The readers of Taxon itself are made for typed
// text: they set letter case anew, know no subspecies, or ask the database. A published name must
// come back as it was written.

/// A name in pieces, each as it is written, its marks of open nomenclature in it or, where a file
/// has columns of their own for them, beside it. Empty: absent.
struct NameParts {
    std::string genus;
    std::string subgenus; ///< without brackets
    std::string species;
    std::string subspecies;
    std::string genusMark; ///< "?", "cf.", "s.l.", ...: in front or behind, as the mark is used
    std::string speciesMark;
    std::string subspeciesMark;
    std::string rest; ///< what stands behind the name: "(small)", "dextral", "group"
    std::string author;
    short year = 0;
};

/// The pieces of a name in one text. An author is told by the year that follows.
NameParts partsOfName(std::string_view written);
/// The same for a name above the genus, all of it one word to the slots: "Astrorhizidae indet.".
NameParts partsAboveGenus(std::string_view written);
/// The name that the pieces are of, without author.
std::string nameOfParts(const NameParts& parts);

/// A name in the slots of a taxon, without category and identifiers.
struct NameReading {
    Taxon taxon;
    int fault = 0;      ///< the slot whose qualifiers cannot stand as they are written, or 0
    bool exact = false; ///< reads back as it was written, blanks apart
};

/// Marks go into the qualifier slots in the words that these accept, and stand there as written
/// when they are at fault; a mark without a slot stays in the name beside it. Of a text that is too
/// long for species and subspecies together the rest becomes the author.
NameReading readName(std::string_view written);

/// The name as it is to be stored. `written` is the name in one text, empty when the pieces are all
/// there is. Tries the readings that pieces and text allow and takes the first that reads back
/// exactly, else that of the pieces. With a fault all marks are left in the names.
NameReading storedName(std::string_view written, const NameParts& parts);

/// The name as the system composes it, runs of blanks made one.
std::string composedName(const Taxon& taxon, bool withAuthor = false);

// taxonomy/Disciplines.h
#pragma once

#include "util/FixedText.h"

#include <array>

/// The letters of the disciplines, in the order of their numbers 0..3.
inline constexpr char discLetters[] = "MNPA";
inline constexpr int kDisciplines = 4;

/// The number of a discipline: 0 to 2 for 'M', 'N', 'P', 3 for every other character.
int discIndex(char letter);

/// The disciplines as the database describes them, read when constructed. A failed statement ends
/// the process.
class Discs {
public:
    struct Entry {
        FixedText<30> name;
        FixedText<5> abr;
        FixedText<30> adj; ///< the display word of the discipline
        char letter = 0;   ///< as stored; 0 when the table has no row for this number
    };

    /// Of several rows for one number the last one counts.
    Discs();

    /// By discipline number.
    std::array<Entry, kDisciplines> entries;
    const Entry& operator[](int number) const { return entries[static_cast<std::size_t>(number)]; }
};

/// The name of the discipline with that letter, at most 49 bytes; "Unrecognised ID" when none of
/// the first four rows has it. Read once in the life of the process, for which the text stays
/// valid. A failed statement ends the process; after a restored connection the result is null.
const char* discName(char letter);

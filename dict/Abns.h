// dict/Abns.h
#pragma once

#include "util/FixedText.h"

#include <array>
#include <cstdint>

/// An abundance scheme: a ladder of at most twelve levels, lowest first, that translates between
/// counts and the abbreviations by which abundance is recorded. A value.
///
/// Failed statements are reported and end the process. Null texts count as empty. Texts of levels
/// stay valid until the levels change.
class Abns {
public:
    static constexpr int kMostLevels = 12;

    struct Level {
        FixedText<4> abr;
        FixedText<25> name;
        short min = 0;           ///< lowest count of the level
        std::int32_t output = 0; ///< count that the level stands for; 0: its minimum
    };

    FixedText<25> name;
    long scheme_id = 0; ///< 0: no scheme
    short count = 0;    ///< levels in use [0-12]
    std::array<Level, kMostLevels> levels;

    void clearLevels() { count = 0; }
    /// Appends a level: abbreviation and name without blanks at their ends, the minimum taken as 16
    /// bits, which an `output` of 0 becomes as well. A thirteenth level is refused on the standard
    /// error stream.
    void addLevel(const char* abr, const char* levelName, int min, long output);
    int levelCount() const { return count; }

    /// Reads a scheme with its levels. When it is not in the database only the identifier changes,
    /// to 0.
    void loadByName(const char* schemeName);
    void loadById(long id);
    /// Reads the levels of `scheme_id`, as many as there is room for; nothing when that is 0.
    void loadLevels();

    // Translations. Without levels they give the empty text or 0; an abbreviation that no level has
    // stands for the first level.

    /// The highest level whose minimum the count reaches, levels marked "+" left out; the first
    /// level for a count below all.
    const char* abrForCount(long occurrences) const;
    /// The number that the abbreviation stands for; 0 for "+".
    long valueForAbr(const char* abr) const;
    /// Empty for an empty abbreviation.
    const char* nameForAbr(const char* abr) const;
    /// Empty when no level has that name.
    const char* abrForName(const char* levelName) const;
    /// The level's position, from 1.
    int levelOfAbr(const char* abr) const;
    /// The position, from 1, of the highest level whose minimum is at most `value`; 1 below all.
    int levelOfValue(float value) const;

    // By position, from 0. Outside the levels: "Undefined", the empty text, 0.
    const char* abrAt(int i) const;
    const char* nameAt(int i) const;
    const char* nameOrEmptyAt(int i) const;
    short minAt(int i) const;
    long outputAt(int i) const;

private:
    const Level* levelAt(int i) const;
    const Level* levelWithAbr(const char* abr) const;
    int positionOf(const Level* level) const;
};

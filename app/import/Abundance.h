// app/import/Abundance.h
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

constexpr std::size_t kLongestAbundanceCode = 2; // bytes

/// Words for abundance and the codes that stand for them, in capitals: RARE -> R.
using AbundanceWords = std::map<std::string, std::string>;

/// What an abundance as it is written says.
struct AbundanceReading {
    std::string code;            ///< at most `kLongestAbundanceCode` bytes
    std::optional<double> count; ///< perhaps with halves: half valves are counted
    std::optional<double> percent;
    bool reworked = false;
    bool questionable = false;
    bool caved = false;
    bool absent = false;    ///< looked for and not found
    bool understood = true; ///< else nothing but the marks was read
};

/// Reads the forms of range tables:
///
///     R, VA, +, X    a code of one or two characters that does not begin with a digit
///     RARE           a word of `words`, in any letter case
///     12, 4.5        a count; with a comma as well
///     14%, .6 %      a percentage
///     ?              found, the identification in question
///     R?, ?R, 3 ?    the same with an abundance
///     rT, r1, r+     reworked: a small r in front of a code in capitals, a number or a mark
///     cR, c3         caved: a small c likewise
///     rw, reworked, cv, caved
///     -, 0, 0%       absent
///
/// Anything else ("<1%", "2-5", "(R)", "see text") is not understood: what it means was not said.
AbundanceReading readAbundance(std::string_view written, const AbundanceWords& words);

// well/Smpdtl.h
#pragma once

#include "util/Date.h"
#include "util/FixedText.h"
#include "well/FssList.h"

#include <array>
#include <string_view>

/// By what details name their analyst: the user's abbreviation, followed by a slash and the number
/// of the analysis when that is above 1. Fields hold 7 bytes of it, so it is cut here, before
/// anybody searches with it.
using AnalystKey = FixedText<7>;
AnalystKey analystKey(std::string_view abr, long analy_no);

/// What one analyst recorded about one sample in one discipline, and the taxa found. Known as
/// `Sample::Smpdtl`; a sample has at most a handful of them and owns them.
struct Smpdtl {
    char disc = '\0'; ///< discipline letter
    AnalystKey analyst;
    FixedText<5> picker; ///< who picked the fossils
    FixedText<5> source; ///< who supplied the material
    FixedText<240> notes;
    Date modified;
    FixedText<5> modifier; ///< user abbreviation
    char barren = '\0';    ///< 'Y' or 'N'
    int inDb = 0;          ///< 1 while as read from the database
    float weight = 0;      ///< split weight
    float coarse = 0;      ///< split factors of the three size fractions
    float medium = 0;
    float fine = 0;
    FssList occurrences;
    int occComplete = 0; ///< 1 once the occurrence loader has read all of them
    long proximal = 0;
    long distal = 0;
    unsigned char red = 0; ///< colour of the analysis
    unsigned char green = 0;
    unsigned char blue = 0;
    long abnsch_id = 0; ///< abundance scheme of the analysis

    /// Whether it is of that analyst; the empty text matches any.
    bool isBy(std::string_view key) const { return key.empty() || analyst == key; }
};

/// Whether counts of a discipline are scaled to a reference weight, by discipline index; 1 at
/// start. `Sample::LoadSplitSwitches` reads them.
extern std::array<int, 4> splitSwitches;

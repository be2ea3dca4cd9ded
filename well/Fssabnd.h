// well/Fssabnd.h
#pragma once

#include "util/FixedText.h"
#include "util/RareText.h"

/// One taxon found in one sample by one analyst of a discipline: how it was identified, whether it
/// is in place, how abundant it is. A well has these by the hundred thousand, so the record is kept
/// small. Abundance is given by counts per size fraction or by a code of an abundance scheme.
class Fssabnd {
public:
    /// `status` is 'R' (reworked), anything else becomes 'I'; `ident_type` '?' (questionable),
    /// anything else 'P'; `caved` 'Y', 'y', 'C' or 'c', anything else a blank; `abund` is cut to 2
    /// bytes (null: none). Not `saved`.
    Fssabnd(long samp_id, long spec_id, char status, char ident_type, const char* abund,
        long medium, char caved, long marker, char condition, char maturity);

    // Each of these clears `saved`.
    void SetCounts(long coarseCount, long fineCount);
    void SetMedium(long count);
    void SetCoarse(long count);
    void SetFine(long count);
    void SetAbund(const char* code);
    void SetMarker(long flag);
    /// Empty and null texts leave what is there.
    void SetTexts(const char* preservText, const char* colourText, const char* commentsText);

    bool isReworked() const { return status == 'R'; }
    bool isCaved() const { return caved == 'C'; }

    /// "Status: I,Type P, C, Counts: 12, SIPM: 0", the count being `medium`. Valid until the next
    /// call.
    const char* Text() const;
    /// The code; without one, when `useScheme` is not 0 and there is a medium count, the code that
    /// the scheme has for that count; else empty. Valid until the next call. A scheme is read from
    /// the database when it is not the one asked for last; failure of that: fatal report.
    const char* AbundanceText(long scheme, int useScheme) const;
    /// The sum of the counts; when all are 0, what the scheme has for the code, 0 without a code.
    long CountValue(long scheme) const;
    /// `WeightedCount` when any count is not 0, else `CountValue`.
    long Count(long scheme, float fCoarse, float fMedium, float fFine) const;
    /// The counts by their factors, cut to a whole number; a factor of 0.0001 or less counts as 1.
    long WeightedCount(float fCoarse, float fMedium, float fFine) const;

    /// 1 when taxon, sample, status, identification, condition and maturity are those of `o`.
    int SameRecord(const Fssabnd& o) const;
    /// Adds the counts of `o` and takes over that it is caved, a marker, and its code where this
    /// one has none. Leaves `saved` alone.
    void Merge(const Fssabnd& o);

    /// "Entire", "Component", "Broken" or "Fragment".
    const char* ConditionText() const;
    /// "Adult" or "Juvenile".
    const char* MaturityText() const;

    long samp_id;
    long spec_id;
    char status;
    char ident_type;
    FixedText<2> abund;
    long medium;
    long coarse = 0;
    long fine = 0;
    char caved;
    long marker;    ///< 1 for a marker
    char condition; ///< 'E', 'C', 'B' or 'F'
    char maturity;  ///< 'A' or 'J'
    unsigned char saved = 0;
    long rangeMark = 0; ///< 1 on the records that define an end of their taxon's range
    RareText preserv;
    RareText colour;
    RareText comments;
    long sipm = 0; ///< shown by `Text`
};

/// Whether an occurrence counts for an end of its taxon's range. `mode` 1 is the top, for which
/// `exclude` not 0 rules out reworked ones; 2 the base, for which it rules out caved ones; in modes
/// from 3 on each counts, below 1 none.
bool countsForRange(const Fssabnd& o, int mode, int exclude);

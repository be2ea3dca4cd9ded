// well/Sample.h
#pragma once

#include "util/Date.h"
#include "util/FixedText.h"
#include "well/Watched.h"

#include <array>
#include <string_view>

struct SampleRow;

/// Whether a depth (in whatever unit) counts as zero, which means: not given.
bool isAbsentDepth(float depth);

/// One rock sample of a well: a depth or depth interval, a type code, a label, its grid position
/// and who made and changed it when. Depths are metres. What a sample's depth is, for order,
/// matching and display: its base, or its top when it has no base. A sample belongs to the list
/// that it is put into; that list's owner destroys it.
class Sample {
public:
    /// A sample made in memory, in no table yet: `samp_id` 0, `saved` 0. Depths in `units` ('F' is
    /// feet), a missing one taken from the other; the type as `enteredSampleType` reads it (null:
    /// "CU"). Created and changed by the current user, at no date.
    Sample(float topDepth, float baseDepth, const char* typeText, char units);

    /// A sample with values read from its row: metres, the type as `storedSampleType` reads it,
    /// `saved` 1. The user and the dates are as for a new sample until the caller sets them.
    Sample(long wellId, long sampId, float topDepth, const char* typeText, long gridX, long gridY,
        float baseDepth);

    /// Reads one sample of a well from SAMPLES. Without such a row: `samp_id` 0, no depths, "CU",
    /// `saved` 0. Failure: fatal report; when a lost connection was restored, as without a row.
    Sample(long wellId, long sampId);

    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;

    // --- depths: `units` 'F' is feet, any other letter metres ---

    /// The stored value, with `shift` when `withShift` is not 0, in `units`, negated when `negate`
    /// is not 0.
    float GetTop(char units, int negate, int withShift) const;
    float GetBase(char units, int negate, int withShift) const;
    float GetDepth(char units, int negate, int withShift) const;
    /// Stores a value given in `units` and clears `saved` when it is more than 0.001 m off the
    /// stored one. Whether it was stored.
    bool SetTop(float depth, char units);
    bool SetBase(float depth, char units);
    /// The top of a "CU" sample, whose cuttings name the depth they were drilled at; the base of
    /// any other.
    bool SetDepth(float depth, char units);
    /// A missing base becomes the top, a missing top the base. Leaves `saved` alone.
    void FixDepths();
    /// Metres.
    void SetShift(float metres);
    /// 1 when top and base are given and more than 0.001 m apart, else 0.
    int IsInterval() const;
    /// How labels write the depth: 0 for "CU" (whole numbers), 1 for "SC" (tenths), 2 for others.
    int DepthKind() const;

    // --- other fields ---

    const char* GetType() const { return type; }
    long GetTypeBit() const { return typeBit; }
    /// Takes the text as the type as it stands, cut to 5 bytes, with the bit that `TypeBitOf` gives
    /// it, and clears `saved`; nothing when it is the type already.
    void SetType(const char* text);
    /// Cut to 15 bytes; clears `saved` unless it is the label already.
    void SetLabel(const char* text);
    /// Each value that differs is stored and clears `saved`.
    void SetGrid(long x, long y);
    /// An empty abbreviation leaves the one that is there. `saved` stays: these two travel with the
    /// row.
    void SetCreated(Date date, const char* userAbr);
    void SetModified(Date date, const char* userAbr);
    void ClearMarks();

    // --- the row ---

    /// Reads the label again; no row empties it. Failure: fatal report, the label stays.
    void ReloadLabel();
    /// Completes the depths; then, unless `saved`, dates the change today and writes the row with
    /// that `samp_id`, the change being the current user's. A failure is reported, not fatal. Does
    /// not commit, and leaves `saved` to the caller, who knows when the change is permanent.
    void Update();

    // --- texts, each valid until the next call of the same function ---

    /// Depth, type and label in one line: "1000.00-1010.00m CU label" in the long form,
    /// "1000-1010 label" in the short one (`shortForm` not 0), whose decimals follow `DepthKind`.
    /// `showRange` not 0 writes an interval as top and base. An "OC" sample's long form is its
    /// label alone unless `forceUnits` is not 0. `withLabel` -1 means: as the form does by itself
    /// (long yes, short no).
    const char* DepthLabel(char units, int shortForm, int showRange, int forceUnits, int withShift,
        int withLabel) const;
    /// "1000.00-1010.00m", or "1000.00m" without an interval.
    const char* DepthRangeText(char units, int withShift) const;

    /// The bit of a type code (1, 2, 4, 8, 16), 1 for an unknown one. Letter case counts.
    static long TypeBitOf(const char* code);
    /// 1 when `code` is one of the five type codes, else 0.
    static int IsKnownType(const char* code);

    // --- members; indices are kept by identifier and depths, so these tell of their changes ---

    using Identifier = Watched<long, struct SampleIdentifiers>;
    using Depth = Watched<float, struct SampleDepths>;

    long well_id = 0;   ///< 0 when made in memory
    Identifier samp_id; ///< 0 when not in the database
    Depth top;          ///< metres, column top_depth
    Depth base;         ///< metres, column base_depth
    FixedText<5> type;
    long typeBit = 1;
    long grid_x = 0;
    long grid_y = 0;
    Date created;
    Date modified;
    FixedText<5> creator; ///< user abbreviation
    FixedText<5> modifier;
    std::array<int, 4> detailsLoaded{}; ///< per discipline index
    FixedText<15> label;
    int lithLoaded = 0;
    unsigned char saved = 0; ///< 1 while the members equal the row; setters clear it
    std::array<unsigned char, 4> occSaved{1, 1, 1, 1};
    std::array<int, 4> marks{1, 1, 1, 1};
    float shift = 0; ///< metres
    unsigned char shiftSet = 0;

private:
    // All members that indices are made from get their values here and are not assigned afterwards:
    // a list that is being loaded keeps its indices that way.

    /// Top and base, each taken from the other when absent.
    struct Interval {
        Interval(float topDepth, float baseDepth);
        float top;
        float base;
    };
    Sample(long wellId, long sampId, Interval depths, std::string_view code);
    Sample(long wellId, const SampleRow& row);

    float shown(float metres, char units, int negate, int withShift) const;
    bool store(Depth& depth, float metres);
};

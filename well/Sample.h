// well/Sample.h
#pragma once

#include "util/Date.h"
#include "util/FixedText.h"
#include "util/OwningList.h"
#include "well/SlithList.h"
#include "well/Smpdtl.h"
#include "well/SrAge.h"
#include "well/Watched.h"

#include <array>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct SampleRow;
class TaxonList;

/// Whether a depth (in whatever unit) counts as zero, which means: not given.
bool isAbsentDepth(float depth);

/// One rock sample of a well: a depth or depth interval, a type code, a label, its grid position
/// and who made and changed it when. Depths are metres. What a sample's depth is, for order,
/// matching and display: its base, or its top when it has no base. A sample belongs to the list
/// that it is put into; that list's owner destroys it. It owns its details with their occurrences,
/// its lithologies and its ages.
///
/// Null texts count as empty. A detail record is named by the letter of its discipline and an
/// analyst key; the empty key stands for any analyst, and the first record of the discipline is
/// meant then.
class Sample {
public:
    using Smpdtl = ::Smpdtl;

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
    /// row. The first also dates the change of the details: those of discipline `disc`, of all
    /// when that is 0.
    void SetCreated(Date date, const char* userAbr, char disc);
    void SetModified(Date date, const char* userAbr);
    void ClearMarks();

    // --- the row ---

    /// Reads the label again; no row empties it. Failure: fatal report, the label stays.
    void ReloadLabel();
    /// Completes the depths; then, unless `saved`, dates the change today and writes the row with
    /// that `samp_id`, the change being the current user's. A failure is reported, not fatal. Does
    /// not commit, and leaves `saved` to the caller, who knows when the change is permanent.
    void Update();

    // --- details ---

    /// The first such record, or null.
    Smpdtl* FindDetails(char disc, const char* analyst) const;
    /// 1 when a record of any discipline is that analyst's.
    int HasAnalyst(const char* analyst) const;
    /// 1 when any record of the discipline is barren.
    int IsDisciplineBarren(char disc) const;
    /// A record made by the user in place of the one there, which is destroyed with its
    /// occurrences: changed today by the current user, not `inDb`. Clears `saved`.
    Smpdtl* AddDetails(char disc, const char* analyst, const char* picker, const char* source,
        const char* notes, char barren);
    /// The same by a loader: without notes, `inDb`; the details of the discipline count as loaded.
    Smpdtl* AddDetailsFromDb(char disc, const char* analyst, const char* picker, const char* source,
        char barren, Date changed, const char* changedBy);
    /// Fields of the record that is there, weight, factors and notes emptied. Without one: fatal
    /// report.
    void UpdDtl(char disc, const char* analyst, const char* picker, const char* source, char barren,
        Date changed, const char* changedBy);
    /// Cut to 240 bytes. Without the record one of no analyst is made, changed today, `inDb`, and
    /// the details of the discipline count as loaded.
    void SetNotes(char disc, const char* analyst, const char* notes);
    /// Appends a blank and as much of the text as fits; nothing when not even one byte would, and
    /// without the record.
    void AppendNotes(char disc, const char* analyst, const char* text);
    void SetWeight(char disc, const char* analyst, float weight);
    /// Without the record: a report.
    void SetSplitFactors(char disc, const char* analyst, float coarse, float medium, float fine);
    /// The record, which is no longer `inDb`, or null.
    Smpdtl* SetBarren(char disc, const char* analyst, int flag);
    /// Date and user, each only where there is none yet unless `force` is not 0. The record is no
    /// longer `inDb` either way.
    void SetDetailsModified(
        char disc, const char* analyst, Date date, const char* userAbr, int force);
    /// Destroys all such records with their occurrences; the details of the discipline count as
    /// not loaded.
    void RemoveDetails(char disc, const char* analyst);
    /// Moves the record to another discipline; the occurrences of both are no longer saved.
    void ChangeDiscipline(char oldDisc, char newDisc, const char* analyst);
    /// Reads the record from SMPDTL, unless `analyst` is given and it is there; with an empty
    /// `analyst` the first row of the discipline becomes a record of no analyst. Failure: fatal
    /// report of the database's text; when a lost connection was restored, nothing is read.
    void LoadDetails(char disc, const char* analyst);
    /// The analyst keys that SMPDTL has for the sample in the discipline (0: in any), in place of
    /// what is in `out`. A failure is reported and leaves `out`.
    void ListAnalysts(char disc, std::vector<std::string>& out) const;
    /// Over all records the smallest positive `proximal` and the largest positive `distal`, each 0
    /// when there is none.
    void ProximalDistal(long* minProximal, long* maxDistal) const;
    /// `count` scaled from the record's weight to the weight `reference`; as it is when `apply` or
    /// the split switch of the discipline is 0, and without a record or a weight.
    float ScaledCount(char disc, const char* analyst, int apply, float reference, int count) const;
    /// Reads the split switches from the current user's preferences; on where there is none.
    static void LoadSplitSwitches();

    // --- occurrences; here a discipline of 0 stands for every one, unless said otherwise ---

    /// Takes `f` over into the record. `markChanged` not 0: the occurrences of the discipline are
    /// no longer saved. Without the record: fatal report. Discipline 0 names none.
    void AddOccurrence(Fssabnd* f, char disc, const char* analyst, int markChanged);
    /// Destroys the record's occurrences; they count as saved and as not completely loaded. Without
    /// the record: a report. Discipline 0 names none.
    void ClearOccurrences(char disc, const char* analyst);
    /// Over all such records. Discipline 0 names none.
    int CountOccurrences(char disc, const char* analyst) const;
    /// Writes a line break and the text of each occurrence of the record. Without it: a report.
    /// Discipline 0 names none.
    void PrintOccurrences(char disc, const char* analyst, std::ostream& stream) const;
    /// 1 when an occurrence of the taxon counts: with `suspectOnly` not 0 a reworked or caved one,
    /// else one that `countsForRange`.
    int HasTaxon(
        long spec_id, int mode, int exclude, char disc, const char* analyst, int suspectOnly) const;
    /// Marks the taxon's occurrences that count for that end of its range, in modes 1 and 2; the
    /// others keep their mark. In higher modes takes the mark off all.
    void MarkRange(long spec_id, int mode, int exclude, char disc);
    /// Adds the taxa found, those that the list has not: in its order when it has one, else at the
    /// end. Each is read from the dictionary.
    void CollectTaxa(char disc, TaxonList& taxa) const;
    /// Appends the identifiers found that are not among the first `*count` entries and raises
    /// `*count`; the caller has made room for all.
    void CollectSpecIds(char disc, long* ids, int* count) const;
    /// Orders the record's occurrences as their taxa stand in `taxa` (a missing taxon behind them),
    /// then, when `byCount` is not 0, by decreasing count; equal ones keep their order.
    void SortOccurrences(char disc, const char* analyst, const TaxonList& taxa, int byCount);
    /// In the record the last occurrence of one taxon becomes one of the other, or is merged into
    /// the last one that is there. Nothing when both are the same taxon.
    void ReplaceTaxon(char disc, const char* analyst, long oldSpec, long newSpec);
    /// 1 when any occurrence of the record has an abundance code.
    int HasAbundanceText(char disc, const char* analyst) const;

    // --- lithology and ages ---

    /// Reads the sample's lithologies in place of those there. A failure is reported.
    void LoadLithology();
    /// 1 when it has any; they are read first unless they were.
    int HasLithology();
    void ClearLithology();
    /// Takes `s` over.
    void AddSlith(Slith* s);
    /// Reads the age of an interpretation in place of the one there; zeroes without a row. A
    /// failure is reported and leaves none.
    void LoadSrAge(long interp_id);
    /// The first age of the interpretation; zeroes are added when there is none. Stays the
    /// sample's.
    SrAge* GetSrAge(long interp_id);
    /// 1 when an age of the interpretation has a ratio, an age or an age below.
    int HasSrAge(long interp_id) const;
    /// Writes the age of the interpretation in place of the row. A failure is reported. Does not
    /// commit.
    void SaveSrAge(long interp_id);

    // --- texts, each valid until the next call of the same function ---

    /// Depth, type and label in one line: "1000.00-1010.00m CU label" in the long form,
    /// "1000-1010 label" in the short one (`shortForm` not 0), whose decimals follow `DepthKind`.
    /// `showRange` not 0 writes an interval as top and base. An "OC" sample's long form is its
    /// label alone unless `forceUnits` is not 0. `withLabel` -1 means: as the form does by itself
    /// (long yes, short no).
    const char* DepthLabel(char units, int shortForm, int showRange, int forceUnits, int withShift,
        int withLabel) const;
    /// How reports name the sample: the long label with its range, in metres.
    const char* DepthLabelInReports() const { return DepthLabel('M', 0, 1, 0, 0, -1); }
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
    OwningList<Smpdtl> details;
    SlithList lithology;
    SrAgeList ages;

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

    Smpdtl* replaceDetails(std::unique_ptr<Smpdtl> made, const char* analyst);

    float shown(float metres, char units, int negate, int withShift) const;
    bool store(Depth& depth, float metres);
};

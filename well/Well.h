// well/Well.h
#pragma once

#include "util/Date.h"
#include "util/FixedText.h"
#include "util/OwningList.h"
#include "well/CoredInt.h"
#include "well/EVtList.h"
#include "well/LithoList.h"
#include "well/SampleList.h"
#include "well/TVDepth.h"

#include <array>
#include <iosfwd>
#include <memory>
#include <string>

class EVdictList;
class Sample;
class TaxonList;

/// One well or measured section: its identity in the database, its header, and the collections that
/// the loaders fill, which it owns: what is in them is destroyed with the well.
/// A failed statement is reported by the operation that ran it, unless said otherwise.
class Well {
public:
    Well();
    /// Identifies by WELL_IDENT.well_id, then `ReadHeader`. Without such a well `well_id` is kept
    /// and name and code are "**Unnamed well ID=n" and "**No well code for ID=n", cut to 25 bytes.
    explicit Well(long id);
    /// Identifies by code (cut to 25 bytes), then `ReadHeader`. Without such a well `well_id` is 0.
    explicit Well(const char* code);
    ~Well();
    Well(const Well&) = delete;
    Well& operator=(const Well&) = delete;

    /// Every header field and load flag to its initial value, and no `tvd`; what the collections
    /// hold stays.
    void Reset();

    // --- identity ---

    /// Looks a name up: its first `length` bytes, at most 25, without trailing blanks. Sets
    /// `well_id` to 0 and, when found, identifier, code and description; everything else of the
    /// object stays, so a code from an earlier use does too. A well that has no WELL_IDENT row gets
    /// its code only. Reports nothing when the first lookup fails, the statement alone when the
    /// second does.
    void FindByName(const char* name, int length);
    /// Looks a code up: its first `length` bytes, at most 25, without trailing white space. Sets
    /// `well_id` to 0 and, when found, identifier, name, units, description and header; a name that
    /// is still empty becomes the code. Returns `well_id`: 0 when not found. Returns 1 when the
    /// statement could not be run, which was reported then.
    long FindByCode(const char* code, int length);
    const char* GetName() const { return well_name; }
    /// `well_name` as WELLS has it; empty when it has none or the query failed, which is not
    /// reported. Rolls back. Valid until the next call.
    const char* StoredName() const;
    /// Name and code of a well into texts with room for 26 bytes each; "no name, id=n" and "no
    /// code, id=n" without such a well or after a reported failure. 1 when found, else 0.
    static int GetWellNames(long id, char* nameOut, char* codeOut);

    // --- header ---

    /// Reads the header of WELLS by `well_code`, then `RefreshFromMaster(1)`. Nothing while
    /// `well_id` is 0. Ends at the first statement that fails; what was read stays.
    void ReadHeader();
    /// Writes the header to the row that has `oldCode`, in four updates, and returns 1. Each is
    /// keyed by `oldCode`, and the first also writes `well_code`: to rename a well, call with the
    /// old code, then again with the new one, and change WELL_IDENT yourself. Does not commit.
    /// Failure: fatal report; when a lost connection was restored, the updates after it still run.
    int WriteHeader(const char* oldCode);

    /// Takes over what WELLS_MASTER says differently, while `useWellsMaster` is on. When something
    /// changed and `write` is not 0: `WriteHeader`, returns 1; else 0. Failure: fatal report.
    /// `ProbeMasterColumns` must have run, since only available columns are asked for.
    int RefreshFromMaster(int write);
    /// Finds out which of `masterColumns` the database has.
    static void ProbeMasterColumns();

    // --- units ---

    /// "'", 'F' and 'f' mean feet, any other character metres.
    void SetUnits(char c);
    /// Form 2: "m" or "'"; 3: "metres" or "feet"; 4: "M" or "FT"; others: the units letter. Valid
    /// until the next call.
    const char* UnitsText(int form) const;

    // --- samples ---

    /// Takes `s` over, in depth order. A sample whose identifier (other than 0) is in the list
    /// already stays the caller's.
    void AddSample(Sample* s);
    /// Reads the samples of the well, once unless `reload` is not 0. New rows become samples; one
    /// that is in the list takes over depths, type and label when they differ (a base only when it
    /// is above 0) and moves to its new place; one whose row is gone stays. Moves the cursor of
    /// `samples`. Failure: fatal report; when a lost connection was restored, nothing is loaded.
    void LoadSamples(int reload);
    /// `SampleList::FindOrAdd`; the well owns the result.
    Sample* FindOrAddSample(float depth, const char* type, const char* defaultType);
    /// Multiplies the stored depths of all samples by the factor from metres to feet when `c` is
    /// 'M', else by the one from feet to metres: repairs values that were entered in the other
    /// unit. Samples that change are no longer `saved`.
    void ConvertSampleDepths(char c);

    // --- details and occurrences, by discipline letter ---
    // The order of loading: `LoadSamples`, then for each discipline `LoadSampleDetails`, then
    // `loadFss`. Analyst keys as `Sample` takes them. A fatal report returns when a lost connection
    // was restored: then nothing counts as loaded.

    /// Reads the details of a discipline into the samples, once, each in place of the record that
    /// is there. Without samples loaded: a report and nothing else. They count as loaded when at
    /// least one row met a sample; a row that meets none is reported. `analyst` should be empty: it
    /// is compared with the number of the user, and reported. Failure: fatal report.
    void LoadSampleDetails(char disc, const char* analyst);
    /// Reads the occurrences of a discipline by the user with abbreviation `analyst` (empty: by
    /// all) into the details of the samples, once unless `reload` is not 0; records that were read
    /// completely take none in again. A sample of the list must have its details: without them a
    /// fatal report. A sample that is not in the list is read with its details and joins it; rows
    /// without such a sample, or without details, are reported. Failure: fatal report.
    /// A reload suits a discipline with one analyst: of several some records stay incomplete.
    void loadFss(char disc, const char* analyst, int reload);
    /// Drops the details of a discipline from all samples; they and the occurrences count as not
    /// loaded.
    void UnloadDiscipline(char disc, const char* analyst);
    /// `Sample::ChangeDiscipline` for all samples.
    void ChangeDiscipline(char oldDisc, char newDisc, const char* analyst);
    /// `Sample::CollectTaxa` over all samples.
    void CollectTaxa(char disc, TaxonList& taxa) const;
    /// Appends copies of those taxa of `from` that `to` has not and that occur from `top` to `base`
    /// (as `SampleList::HasOccurrenceInRange`). Their number.
    int TaxaInWindow(
        TaxonList& from, TaxonList& to, char disc, const char* analyst, float top, float base);
    /// Orders taxa by the depths at which their ranges start or end and marks the occurrences
    /// there: mode 1 by tops, shallowest first, 2 by bases, deepest first; 3 and 4 find tops and
    /// bases without reordering, 5 does nothing. In a well of type 'O' 1 and 2, 3 and 4 change
    /// places, and the window is mirrored. `exclude` not 0 prefers ends without reworked (tops) or
    /// caved (bases) occurrences. Window in `units`; the rest as in `SampleList::FindRangeSample`.
    /// The number of leading taxa that have such a sample. All taxa when there are fewer than two,
    /// in mode 5, and when the list was ordered last with the same mode, well, `exclude` and
    /// discipline: it is left as it is then. The list's cursor goes to the front.
    int RangeOrder(TaxonList& taxa, int mode, char disc, int exclude, int useWindow, float top,
        float base, char c, int requireAnalyst, const char* analyst);

    // --- events, comments, lithology ---

    /// Reads the events of an interpretation into `events`, beside those there, each by its place
    /// (`EVtList::insertSorted`), after grouping the list by `mode`. `dictionary` gets the entries
    /// that it has not and must outlive the events. Failure: fatal report.
    void LoadEvents(long interp_id, EVdictList& dictionary, int mode, int reverse);
    /// Destroys the events with that identifier.
    void RemoveEvent(long ev_id);
    /// The comment on a sample under an interpretation (0: under none) into `out`; 0, or 1 and the
    /// empty text when there is none. `out` must have room for 1024 bytes; a longer comment is cut.
    /// Failure: fatal report, and 1 when a lost connection was restored.
    int LoadComment(char disc, long usamp_id, const char* analyst, char* out, long interp_id) const;
    /// The same, whole.
    int LoadComment(
        char disc, long usamp_id, const char* analyst, std::string& out, long interp_id) const;
    /// 1 when there are lithostratigraphic codes.
    int HasLithologyIntervals() const;
    /// Each code saves itself; then commits.
    void SaveLithologyIntervals();
    /// Reads the lithologies of all samples beside those there, once unless `reload` is not 0.
    /// Nothing in a database that has no table for them. Rows without sample, and a failure, are
    /// reported.
    void LoadSampleLithology(int reload);
    /// The depths (metres) at which the interpreted chronostratigraphy first and last reaches the
    /// ages from `youngAge` to `oldAge` (Ma), 0.1 Ma beyond allowed; 0 each when it does not.
    /// Samples that the list lacks are read into it. A failure is reported and leaves the rest 0.
    void AgeRangeDepths(float youngAge, float oldAge, float* topDepth, float* baseDepth);

    // --- cores ---

    /// Reads cores and their shifts, once unless `reload` is not 0, which destroys those there. A
    /// failure is reported.
    void LoadCores(int reload);
    /// Takes `c` over, by its top, behind those of the same top; the cores are read first unless
    /// they were.
    void AddCore(CoredInt* c);

    // --- reports; depths in the units of the well ---

    /// Writes every sample with the occurrences of each analyst that the database lists for it.
    /// Samples stay in the list; its cursor goes to the front.
    void ListSamples(std::ostream& stream);
    /// Number of samples, their depth range and the number of occurrences per discipline, which
    /// also go to `totals`. `c` not 0 becomes the units of the well. `compact` not 0 leaves
    /// disciplines without occurrences out. Sets `sampleCount`. `out` must have room for 600 bytes.
    void Summary(char* out, int totals[4], char c, int compact);
    /// Writes the same to a stream.
    void WriteSummary(std::ostream& stream, int totals[4], char c, int compact);
    /// Writes the number of lithostratigraphic codes and the range of their depths in one line;
    /// nothing when there are none.
    void ListLithologyIntervals(std::ostream& stream) const;

    // --- members ---

    long well_id; ///< 0 while not known
    FixedText<25> well_name;
    FixedText<25> well_code; ///< key of WELLS
    FixedText<50> operator_; ///< column operator
    FixedText<25> country;
    FixedText<20> field;
    long grid_x;
    long grid_y;
    Date spud_date;
    Date comp_date;
    float td; ///< this and the next four in the well's units
    float sl;
    float sb;
    float rte;
    float kicko;
    char type;  ///< 'O': samples run deepest first; 'W' or any other: shallowest first
    char units; ///< 'F' is feet, any other metres; how depths are shown, not how they are kept
    FixedText<10> ocs;
    FixedText<30> county;
    SampleList samples;  ///< in depth order
    int sampleCount = 0; ///< as the last summary counted
    int samplesLoaded;
    std::array<int, 4> detailsLoaded; ///< per discipline index
    std::array<int, 4> occurrencesLoaded;
    EVtList events;
    LithoList lithology;
    unsigned char identified; ///< 1 once identifier, code and description were found together
    int slithLoaded;
    int coresState; ///< 0: not read, 1: read, 2: changed since
    std::string descrip;
    OwningList<CoredInt> cores;   ///< by their tops
    std::unique_ptr<TVDepth> tvd; ///< null while not read
    signed char datum;
    double lat_dec; ///< decimal degrees
    double long_dec;
    std::string geoDatum;
};

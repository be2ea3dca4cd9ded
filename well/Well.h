// well/Well.h
#pragma once

#include "util/Date.h"
#include "util/FixedText.h"
#include "well/SampleList.h"

#include <array>
#include <string>

class Sample;

/// One well or measured section: its identity in the database, its header, and the collections that
/// the loaders fill, which it owns: what is in `samples` is destroyed with the well.
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

    /// Every header field and load flag to its initial value; what the collections hold stays.
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
    unsigned char identified; ///< 1 once identifier, code and description were found together
    int slithLoaded;
    int coresState; ///< 0: not read, 1: read, 2: changed since
    std::string descrip;
    signed char datum;
    double lat_dec; ///< decimal degrees
    double long_dec;
    std::string geoDatum;
};

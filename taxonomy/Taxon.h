// taxonomy/Taxon.h
#pragma once

#include "taxonomy/NameSlots.h"
#include "util/FixedText.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class TaxonList;

/// Not 0: display names that ask for it start with the code. Off at start.
extern int showTaxonCodes;
void clearShowTaxonCodes();

/// Not 0: the host's dictionary names the column of its texts `txt`. Off at start.
extern int altColumnNames;

/// One name of the taxonomic dictionary: genus, subgenus, species and subspecies, each with a
/// qualifier in front and behind, author, year and codes. A value: it holds no cursor.
///
/// Every slot may be empty. Texts longer than their slot are cut at a character border. Null texts
/// count as empty. Identifiers and codes are 32-bit values, 0 means none.
///
/// The dictionary is only read. A name that is not in it is never inserted: asking to add one is
/// refused with a message.
class Taxon {
public:
    Taxon() = default;
    /// The taxon of an identifier, read with `loadById`.
    explicit Taxon(long spec_id);
    explicit Taxon(int spec_id)
        : Taxon(static_cast<long>(spec_id))
    {
    }
    /// The four parts as passed, then their identifiers as by `getAddGenus(1, 1)` and
    /// `getAddSpecies(1, 1)`.
    Taxon(const char* category, const char* genus, const char* species, const char* subspecies);
    /// Free texts as people type them: a qualifier in front of and behind each is recognised, a
    /// text of more than 30 bytes is split into name and subname, letter case is set right. Then
    /// the identifiers are looked up.
    Taxon(const char* genusText, const char* speciesText, const char* category);
    /// A line of tab-separated slots in slot order, with the year behind the author. A category
    /// that the category list does not know is cleared and stays in `givenCategory` only.
    explicit Taxon(const char* line);
    /// A blank-separated name, qualifiers as whole words. No identifiers: `lookup` not 0 is
    /// answered with a report.
    Taxon(const char* sentence, int lookup);
    /// Pairs of a field name (the slot table's, "Year" or "Code", letter case ignored) and its
    /// value; unknown names are ignored, of several values for a field the last one counts. An
    /// unknown category is cleared.
    Taxon(const char* const* fieldNames, const char* const* values, int count);

    /// All but the given category and the second preferred taxon, of which the copy keeps its own.
    Taxon(const Taxon& other) { *this = other; }
    Taxon& operator=(const Taxon& other);
    ~Taxon() = default;

    // --- Fields ---

    /// The text of a slot [0-13]; valid until the slot is set.
    const char* field(int number) const { return slots_.text(number); }
    bool has(int number) const { return *field(number) != '\0'; }
    void setField(int number, std::string_view text);
    void setField(int number, const char* text);

    const char* category() const { return field(slot::category); }
    const char* genus() const { return field(slot::genus); }
    const char* subgenus() const { return field(slot::subgenus); }
    const char* species() const { return field(slot::species); }
    const char* subspecies() const { return field(slot::subspecies); }
    const char* author() const { return field(slot::author); }

    long spec_id() const { return spec_id_; }
    void setSpecId(long spec_id);

    FixedText<5> givenCategory; ///< as the line reader met it, known or not
    short year = 0;             ///< 0: none
    long sipm_code = 0;         ///< the code last read, of code system `ccode`
    int ccode = 0;
    std::string alphaCode;
    long gen_id = 0;
    long donor_id = 0; ///< named by the display name of an empty taxon

    void setAlphaCode(const char* text);
    /// The alphabetic code; with `afterColon` not 0 what stands behind its first ":", if it has
    /// one.
    std::string alphaCodeText(int afterColon) const;

    /// At most 240 bytes each; null when absent. Valid until the text is set or loaded.
    const char* references() const { return textOrNull(references_); }
    const char* notes() const { return textOrNull(notes_); }
    void setReferences(const char* text);
    void addReferences(const char* text);
    void setNotes(const char* text);
    void addNotes(const char* text);

    // --- Names ---

    /// The printable name, at most 255 bytes. A qualifier in front, or "sensu" behind a species or
    /// subspecies, shows the author also with `showAuthor` 0. `italicMarks` not 0 puts a backslash
    /// wherever upright and italic text change. `withCode` not 0 starts with the code while
    /// `showTaxonCodes` is on. An empty name is replaced by a placeholder. Valid until the next
    /// call for any taxon; `shortName` is such a call.
    const char* displayName(int showAuthor, int italicMarks, int abbreviateGenus, int withCode);
    /// The display name when it has at most `maxLen` bytes, else qualifier, first letter and point
    /// of the genus and what fits of the species (of the genus for "spp."), without blanks. At most
    /// 255 bytes, valid until the next call for any taxon.
    const char* shortName(int maxLen);
    /// Writes " author year" into `out`, which must have room for 88 bytes: nothing unless `always`
    /// when a qualifier stands in front of any part, the year alone when there is no author.
    void authorYearText(char* out, int always) const;

    /// Rewrites every qualifier slot with the words that it accepts, in their order. The number of
    /// the first slot with two exclusive words, which stays as it was; 0 when there is none.
    int normaliseQualifiers();
    /// Normalises, then checks that quotes come in one pair from a slot in front to one behind, and
    /// that fewer than four question marks are set. The number of the slot at fault, or 0.
    int checkQualifiers();
    /// Makes the species "spp." when it is exactly "sp." or "sp", in either case. 1 when it did.
    int makeSpp();
    /// "spp." makes the taxon a species group; any other text becomes the qualifier in front of the
    /// species. Either way what stood behind the species and its identifier are cleared.
    void setSpeciesPart(const char* text);

    /// 1 when species or subspecies carry a mark of coiling direction, letter case ignored.
    int hasCoilingMark() const;
    int isSinistral() const;
    int isDextral() const;

    // --- Dictionary ---
    // A `sch_id` of 0 means any synonymy scheme. Failed statements were reported; they end the
    // process where that is said.

    /// Finds the genus by name, category and qualifiers; a row must have no value where this taxon
    /// has none. `gen_id`, which is not looked up again once known; 0 not found, -2 no genus, -99
    /// failed. The category becomes that of the row; with `fetchNames` the spelling does as well.
    /// With `add` a missing genus is refused with a report when the category is known.
    long getAddGenus(int add, int fetchNames);
    /// The same for the species of `gen_id`; takes author, year and alphabetic code where this
    /// taxon has none. `spec_id`; 0 not found, -1 no species, -2 no `gen_id`, -99 failed.
    long getAddSpecies(int add, int fetchNames);
    /// Both without adding: `spec_id`, or 0 unless both were found.
    long lookupIds();
    /// Fills slots, year, `gen_id` and alphabetic code from `spec_id`; nothing when that is 0. What
    /// has no row keeps its values.
    void loadById();

    /// The preferred name of this taxon, null until loaded. The pointer is shared with the copies
    /// of this taxon and is good as long as one of them holds it.
    Taxon* preferred() const { return preferred_.get(); }
    Taxon* secondPreferred() const { return secondPreferred_.get(); }
    void clearPreferred() { preferred_.reset(); }
    void clearSecondPreferred() { secondPreferred_.reset(); }
    /// Loads the preferred taxon unless one is loaded.
    void loadPreferred(long sch_id);
    /// Loads the preferred name of the preferred taxon, or of this one when none is loaded.
    void loadSecondPreferred(long sch_id);
    /// The first `spec_id` whose preferred name this taxon is, or 0.
    long firstSynonym(long sch_id) const;
    /// All taxa whose preferred name is `pref`, in the order of the rows. New: the caller deletes
    /// it. Null when there are none.
    static TaxonList* synonymsOf(long sch_id, long pref);

    /// The taxa that match the LIKE patterns ("%" matches everything, as null does, an empty
    /// pattern nothing) and have a code from `codeFrom` to `codeTo` (both 0: any; one 0: the
    /// other), in order of their names. Species that are a synonym in any scheme are left out
    /// unless `includeSynonyms`. The patterns lose trailing blanks, and that of the category
    /// becomes upper case. New: the caller deletes it. A failed search ends the process.
    static TaxonList* searchTaxa(char* category, char* genus, char* subgenus, char* species,
        char* subspecies, int includeSynonyms, long codeFrom, long codeTo);

    /// The code in a code system, 0 when there is none. The last system's code is kept and not read
    /// again. A failed statement ends the process.
    long sipmCode(int codeSystem);
    /// The code system of a dictionary text, 0 when there is none.
    static int sipmDictCode(const char* text);
    /// The text, read when there is none yet or it is empty; null when there is no row. A failed
    /// statement ends the process.
    const char* loadReferences();
    const char* loadNotes();

private:
    friend class TaxonIndex;

    using LongText = std::optional<std::string>;
    static const char* textOrNull(const LongText& text) { return text ? text->c_str() : nullptr; }

    void changed();

    NameSlots slots_;
    long spec_id_ = 0;
    LongText references_;
    LongText notes_;
    // Shared, because copies point at the same preferred taxon and lists let go of it.
    std::shared_ptr<Taxon> preferred_;
    std::shared_ptr<Taxon> secondPreferred_;
    bool listed_ = false; ///< some list keeps an index of its names and identifier
};

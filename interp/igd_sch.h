// interp/igd_sch.h
#pragma once

#include "interp/igdDict.h"
#include "util/Date.h"
#include "util/FixedText.h"
#include "util/GList.h"

#include <array>
#include <cstddef>
#include <string>

/// An interpretation scheme: a named dictionary of terms of one interpretation type, such as a
/// chronostratigraphic chart or a biozonation. It knows its header and its span of ages, and, once
/// they are loaded, its terms, which it owns and destroys.
///
/// Ages are Ma. Failed statements are reported; those that read a scheme end the process, and when
/// a lost connection was restored the operation leaves what it had so far.
class igd_sch {
public:
    /// A new scheme that is not stored, made today.
    explicit igd_sch(int igd_type);
    /// As `load`.
    igd_sch(long sch_id, int loadTerms);
    /// The stored scheme of that name (cut to 80 bytes), of whatever type, as `load` reads it; when
    /// there is none, one of that type that is not stored.
    igd_sch(const char* name, int igd_type, int loadTerms);
    ~igd_sch();
    igd_sch(const igd_sch&) = delete;
    igd_sch& operator=(const igd_sch&) = delete;

    /// Reads the header, then the terms, or, with `withTerms` 0, the span of ages alone. Terms from
    /// before are destroyed. Without such a row `sch_id` is 0.
    void load(long id, int withTerms);
    /// Reads the terms, unless they are loaded: a query for their keys, then one for each. The
    /// places of a term are found without walking the lists.
    void loadTerms();
    /// Deletes the terms from the database and commits, then the scheme, and commits. 1, or 0 after
    /// a failure, which is reported, not fatal; the terms may be gone then. What is in memory
    /// stays.
    int removeFromDB();

    void setName(const char* text) { name = text; }
    void setCreator(const char* text) { creator = text; }
    /// As `dateInLocale` reads it.
    void setCreated(const char* text);

    /// The first term with that key, in the order of names, or null.
    igdDict* findTermById(long igd_id) const;
    /// The first term of that very name, in the order of `terms`, or null.
    igdDict* findTermByName(const char* termName) const;
    /// The key of the first term of that name, ignoring case; 0 when there is none.
    long termIdByName(const char* termName) const;
    /// The key of the first term with that abbreviation, ignoring case, and its name into `nameOut`
    /// when `wantName` is not 0; 0, and no name, when there is none.
    long termIdByAbr(const char* abr, std::string& nameOut, int wantName) const;
    /// The term of the finest rank that holds the ages from `top` (younger) to `base` (older), both
    /// ends included; null when there is none, and when `base` is the younger one.
    igdDict* findTermForAges(float top, float base) const;
    /// That term as `*first`, and null as `*second`. Where its rank is too wide for the type of the
    /// scheme to be of use: the terms at both ends. Null when no term holds all the ages.
    void findTermsForAges(float top, float base, igdDict** first, igdDict** second) const;

    FixedText<80> name;
    int igd_type = 0;
    Date created;
    FixedText<5> creator; ///< user abbreviation
    long sch_id = -2;     ///< -2: not stored; 0: not in the database
    bool termsLoaded = false;
    static constexpr std::size_t kLevels = 8;
    std::array<igdDictList, kLevels> levels; ///< by rank from 1 on; wider ranks stand in none
    igdDictList terms;                       ///< every term; owns them
    igdDictList nameOrder;                   ///< the same, by name ignoring case
    float youngestAge = 0;
    float oldestAge = 0;
    int nLevels = 0; ///< the highest rank number of the terms, above 8 too

private:
    struct Places;

    void clearTerms();
    void loadAgeSpan();
    void take(igdDict* term, Places& places);
};

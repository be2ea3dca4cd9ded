// interp/LithDictionary.h
#pragma once

#include "util/FixedText.h"
#include "util/OwningList.h"

#include <unordered_map>

/// One entry of the lithology dictionary.
class LithDicTerm {
public:
    LithDicTerm(long lithId, char termKind, const char* description, const char* abbreviation)
        : lith_id(lithId)
        , kind(termKind)
        , descr(description)
        , abr(abbreviation)
    {
    }
    void setActive(int flag) { active = flag; }

    static constexpr char kMainLithology = 'N';
    static constexpr char kQualifier = 'Q';

    const long lith_id;
    char kind; ///< `kMainLithology`, 'A' accessory, `kQualifier`, 'S' stringer
    FixedText<81> descr;
    FixedText<9> abr;
    int active = 1; ///< 0: not offered under the active scheme
};

/// The lithology dictionary by description, and which of its terms are offered: all of them, until
/// a scheme selects the main lithologies.
class LithDictionary {
public:
    /// Reads the terms; numbers up to 999 are none. A failure is reported as fatal; when a lost
    /// connection was restored, there are no terms.
    LithDictionary();

    /// The first term with that number, or null. No walk.
    LithDicTerm* findTerm(long lith_id) const;
    /// Offers the main lithologies that are members of that scheme, and no others; terms of other
    /// kinds keep their flag. A failure is reported: of the first statement it changes nothing, of
    /// the second it leaves no main lithology offered.
    void setScheme(long id);

    int count() const { return terms.count(); }

    long lthsch_id = 0; ///< 0: no scheme
    FixedText<41> schemeName;
    OwningList<LithDicTerm> terms; ///< in the order of loading

private:
    bool nameScheme(long id);
    void offerNoMainLithology();
    void offerMembers(long id);

    mutable std::unordered_map<long, LithDicTerm*> firstOf_;
    mutable unsigned long revision_ = 0;
};

// taxonomy/TaxonList.h
#pragma once

#include "taxonomy/Taxon.h"
#include "taxonomy/TaxonIndex.h"
#include "util/GList.h"

/// Taxa in a list of its own order. Owns them: destroying the list destroys each once, even when it
/// is listed twice. Lookups by identifier give the first taxon from the front and leave the list's
/// cursor alone.
class TaxonList : public TypedList<Taxon> {
public:
    TaxonList() = default;
    ~TaxonList();

    void push(Taxon* taxon);
    /// Puts the taxon in front of the first that sorts behind it: in mode 1 by genus, species,
    /// subspecies, in mode 3 by species, genus, in any other by category first; mode 0 becomes 1.
    /// Equal ones keep the order of their arrival. Moves the cursor to the taxon unless it goes to
    /// the back. The number of entries compared, from the front on; -1 and no insertion when
    /// `rejectDuplicate` is not 0 and its identifier is listed (the caller keeps the taxon then).
    int insertSorted(Taxon* taxon, int rejectDuplicate);
    /// Sorts as `insertSorted` orders and keeps the mode; mode 4 sorts by the code of code system
    /// 1, smallest first. With `usePreferred` 0 or more a preferred taxon stands for its taxon. The
    /// cursor goes to the front.
    void sortBy(int mode, int usePreferred);
    /// Adds the taxa that are recorded in a well for a discipline and not yet listed.
    void addWellTaxa(long well_id, char disc);

    int contains(long spec_id);
    /// The taxon, or null.
    Taxon* find(long spec_id);
    /// The display name, of the preferred taxon if there is one and `usePreferred` is not negative;
    /// "(not found)" when not listed. As short-lived as `Taxon::displayName`.
    const char* nameOf(long spec_id, int usePreferred, int showAuthor, int abbreviateGenus);
    /// "???" when not listed. Valid until the next call for any list.
    const char* categoryOf(long spec_id);

    /// Loads the preferred taxa of all taxa anew, unless they are loaded: for any scheme when
    /// `sch_id` is 0, else for that one. `force` not 0 loads in any case.
    void loadPreferred(long sch_id, int force);
    void loadSecondPreferred(long sch_id, int force);
    /// The name of a synonymy scheme, at most 49 bytes, empty when there is none; after a failed
    /// statement, which is reported, that of the call before. Valid until the next call.
    static const char* synonymySchemeName(long sch_id);

    int sortMode = 0;
    /// What the preferred taxa were loaded for: 0 not loaded, 1 any scheme, else the scheme.
    long preferredScheme = 0;
    long secondPreferredScheme = 0;

    /// The request that the list was last ordered for by the ranges of its taxa in a well.
    struct RangeRequest {
        int mode = -1; // no request has these values
        long well_id = -1;
        int exclude = -1;
        char disc = '\0';
        bool operator==(const RangeRequest&) const = default;
    };
    RangeRequest lastRangeRequest;

private:
    void place(Taxon* taxon, std::size_t place);
    void reload(
        long& scheme, long sch_id, int force, void (Taxon::*clear)(), void (Taxon::*load)(long));

    TaxonIndex index_;
};

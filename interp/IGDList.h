// interp/IGDList.h
#pragma once

#include "interp/IGDKind.h"
#include "interp/PlaceIndex.h"
#include "util/FixedText.h"
#include "util/GList.h"

class IGDSchemeList;
class IGDZone;
class ItemList;
class Well;
struct SQPick;

/// The interpretation of one type of one well: its records, ordered by depth as far as they came in
/// by `insert`. Owns its records and destroys them. No operation moves the list's own cursor,
/// except that `insert` does as `GList::insert`. The list operations of `GList` may be used beside
/// these at any time; who takes a record out owns it then.
class IGDList : public TypedList<IGDBase> {
public:
    /// Loads the records of a well that have that type, where it has a loader: those of ranks
    /// `hierMin` to `hierMax` and interpretation `interp_id` (0: the default one). `unit` 'F' gives
    /// depths in feet, any other letter in metres. `envsch_id` above 0 restricts palaeoenvironments
    /// to one scheme, `schemeIds` (null, or four, ended early by a 0 behind the first) biozones.
    /// Without a well (null) the list stays empty.
    /// A failed statement is reported, not fatal, and leaves what was read before: `isComplete`.
    /// Samples that the well lacks are read into it on the way.
    IGDList(int igd_type, int hierMin, int hierMax, Well* well, char unit, long envsch_id,
        long interp_id, const long* schemeIds);
    /// Which scheme covers which depths in `n` lists of zones, some of which may be null: zones of
    /// type 4, named after their schemes, neighbours of one scheme joined. The well, the unit and
    /// the title are those of the first list.
    IGDList(const IGDList* const* lists, int n);
    /// The sequences of one rank (1 to 8; any other has none) that picks bound: every term of the
    /// schemes of their surfaces whose upper age one pick has, and whose lower age another one of
    /// that scheme, the first of them, is a zone between their samples. Metres, not negated. Picks
    /// without a sample or an age bound nothing. Failed statements are those of `igd_sch`.
    IGDList(const TypedList<SQPick>& picks, const Well& well, int hier);
    ~IGDList();

    using TypedList::insert;
    /// Takes `record` over, at its depth.
    void insert(IGDBase* record);
    /// The record at a position from 0 on, or null.
    IGDBase* at(int index) const;
    /// Whether this very record is in the list.
    bool contains(const IGDBase* record) const;

    /// The first record that `record` cannot stand beside, or null; `exclude` (null: none) is not
    /// looked at. `*kind` becomes -1 when the two overlap or are points at one depth, -2 when they
    /// meet at a boundary to which they give different qualities, which matters between zones
    /// only, else 0. Depths are compared as whole hundredths.
    IGDBase* findConflict(const IGDBase* record, int* kind, const IGDBase* exclude) const;
    /// The first record that holds `depth` between its ends, or null; in a list of zones, the first
    /// of rank `hier`. `depthUnit` 'F' is feet, any other letter metres. With `negate` not 0 the
    /// depths of the records are taken negated. A depth on a boundary is in no record.
    IGDBase* findAt(
        float depth, char depthUnit, const IGDBase* exclude, int hier, int negate) const;

    /// Whether the zone's upper (`upper` not 0) or lower term is one of the zone's scheme. True
    /// without a list of schemes (null) or without a term. Loads the scheme's terms.
    static bool termInScheme(const IGDZone& zone, int upper, const IGDSchemeList* schemes);

    /// Removes and destroys the records of which the well has not got both samples, and reports
    /// them in one message. Nothing without a well (null), or for records that stand at depths.
    void removeMissingSamples(const Well* well);
    /// Adds the samples, by their depth labels, and the schemes ("I" of zones, "E" of
    /// palaeoenvironments) that the list refers to, each unless it is there already.
    void collectReferences(const Well& well, ItemList& sampleItems, ItemList& schemeItems) const;

    /// Replaces the well's rows by the list, and commits, when it has changed or `unit` (0: the
    /// list's) is not its own: the depths are then read as being in that unit. Nothing for types
    /// that are not saved. After a failure, which is reported, nothing is committed and the caller
    /// rolls back. All cursors must be closed. Free texts of lithology qualifiers are not stored,
    /// and rows of interval lithology whose rock the dictionary has not got, which are never
    /// loaded, are gone: who must not lose them asks the database first.
    void save(char unit, int negate);

    int igd_type() const { return igd_type_; }
    long well_id() const { return well_id_; }
    char unit() const { return unit_; }
    long envsch_id() const { return envsch_id_; }
    long interp_id() const { return interp_id_; }
    const char* title() const { return title_; }
    void setTitle(const char* title) { title_ = title; }
    /// 1 after an `insert` until the list is saved; 0 after loading. Removals do not count.
    int changed() const { return changed_; }
    void setChanged(int flag) { changed_ = flag; }
    /// False when a failed statement or fetch kept records from being read: saved, the list would
    /// replace them.
    bool isComplete() const { return complete_; }

private:
    const IGDKind& igdKind() const { return igdKindOf(igd_type_); }
    void refresh() const;
    void noteState() const;
    void addCoverage(const IGDList& list);
    void joinSchemes();

    int igd_type_;
    long well_id_ = 0;
    char unit_ = 'M';
    long envsch_id_ = 0;
    long interp_id_ = 0;
    FixedText<79> title_;
    int changed_ = 0;
    bool complete_ = true;

    mutable PlaceIndex<DepthOrder> places_;
    mutable unsigned long revision_ = 0;
    mutable unsigned long changes_ = 0;
};

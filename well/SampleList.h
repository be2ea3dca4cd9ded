// well/SampleList.h
#pragma once

#include "util/GList.h"
#include "well/SampleIdIndex.h"
#include "well/SampleOrderIndex.h"

class Sample;

/// The samples of one well, in depth order as far as they came in by `InsertOrdered`. Points only:
/// the `Well` destroys them. Depths are metres as stored, without shift. No operation moves the
/// list's own cursor, except that taking in and out does as `insert` and `remove` do.
/// The list operations of `GList` may be used beside these at any time.
class SampleList : public TypedList<Sample> {
public:
    SampleList()
        : ids_(*this)
        , order_(*this)
    {
    }

    /// Puts `s` before the first sample deeper than it (`wellType` 'O': shallower), at the end when
    /// there is none: equal depths keep their order of arrival. No walk.
    void InsertOrdered(Sample* s, char wellType);
    /// Takes `s` out without destroying it; nothing when it is not in the list.
    void TakeOut(const Sample* s);

    /// The first sample with that identifier, or null. No walk, except for the identifier 0, which
    /// finds a sample that is not in the database yet.
    Sample* FindById(long samp_id) const;
    /// Its type code, or the empty text when absent. Lives as long as the sample.
    const char* TypeOf(long samp_id) const;
    /// The neighbour in list order; null at that end and when `s` is not in the list.
    Sample* Next(const Sample* s) const;
    Sample* Previous(const Sample* s) const;
    /// The first sample within 0.01 m of `depth` and of that type (null or empty: any), or null.
    Sample* FindAtDepth(float depth, const char* type) const;
    /// The first sample within 0.001 m of the depth of `s` and of its type; `s` itself when it is
    /// in the list and no other comes before it. Null when there is none.
    Sample* FindSameDepth(const Sample* s) const;
    /// A sample within 0.001 m of `depth`: the first of that type, or, without a type (null or
    /// empty), the last of any. When there is none, a new one with base `depth` and that type, or
    /// else `defaultType`, is appended at the end, out of depth order, and belongs to the list's
    /// owner.
    Sample* FindOrAdd(float depth, const char* type, const char* defaultType);
    /// `Sample::GetDepth` of that sample. One that the list lacks is read from the database and put
    /// in its place, `negate` not 0 meaning a list that runs deepest first; 0.0 when the well has
    /// no such sample. Failure of that read: fatal report.
    float DepthOf(long well_id, long samp_id, char units, int negate, int withShift);
    /// The sample's long label with its range, an "OC" sample's label alone; "no sample" when the
    /// identifier is not in the list. Valid until the next `Sample::DepthLabel`.
    const char* DepthLabelOf(long samp_id, char units) const;

    /// The sample that holds the top (`mode` 1) or base of the taxon's range: the shallowest, or
    /// deepest, by its shifted depth in which an occurrence of the taxon in the discipline (0: any)
    /// by the analyst (empty: any) counts as `countsForRange` has it with `exclude`; when there is
    /// none, with `fallbackExclude`. Its occurrences are marked (`Sample::MarkRange`). Null when
    /// there is none either. `typeMask` has the bits of the sample types that may hold it;
    /// `useWindow` not 0 leaves samples more than 0.01 m outside `top` to `base` (metres) out,
    /// `requireAnalyst` not 0 those without any details by the analyst.
    Sample* FindRangeSample(long spec_id, int mode, int exclude, long typeMask, char disc,
        int fallbackExclude, int useWindow, float top, float base, int requireAnalyst,
        const char* analyst) const;
    /// 1 when a sample from `top` to `base` (metres, shifted depths, 0.01 m beyond allowed) has the
    /// taxon in the discipline (0: any) by the analyst (empty: any).
    int HasOccurrenceInRange(
        long spec_id, char disc, const char* analyst, float top, float base) const;

private:
    /// Puts `s` before that node (null: at the end), whose place it is, and lets the indices
    /// follow.
    void put(GList::ListNode* before, std::size_t place, Sample* s);

    mutable SampleIdIndex ids_;
    SampleOrderIndex order_;
};

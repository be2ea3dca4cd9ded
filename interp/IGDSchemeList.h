// interp/IGDSchemeList.h
#pragma once

#include "interp/igd_sch.h"
#include "util/GList.h"

/// All interpretation schemes of the database by name, ignoring case; equal names in the order in
/// which the database gave them. Owns its schemes.
class IGDSchemeList : public TypedList<igd_sch> {
public:
    /// Loaded, unless `loadNow` is 0.
    explicit IGDSchemeList(int loadNow = 1);
    ~IGDSchemeList();

    /// Reads the schemes, without their terms: a query for their keys, then two for each. Schemes
    /// from before are destroyed. A failure of the first is reported, not fatal, and leaves none.
    void load();
    /// The first scheme with that key, or null.
    igd_sch* findScheme(long sch_id) const;

private:
    void clear();
};

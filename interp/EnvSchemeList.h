// interp/EnvSchemeList.h
#pragma once

#include "interp/env_scheme.h"
#include "util/OwningList.h"

/// All palaeoenvironment schemes of the database by the bytes of their names; equal names in the
/// order in which the database gave them. Owns its schemes.
class EnvSchemeList : public OwningList<env_scheme> {
public:
    /// Reads the schemes: a query for their keys, then two for each. A failure of the first is
    /// reported, not fatal, and leaves none.
    EnvSchemeList();

    /// The scheme with that key; the first of all for a key below 1. Null when there is none.
    env_scheme* findScheme(long envsch_id) const;
};

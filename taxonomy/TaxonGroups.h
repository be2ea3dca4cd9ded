// taxonomy/TaxonGroups.h
#pragma once

// Taxon groups and sets of groups. Names have at most 30 bytes.

/// The names of the taxon groups in their order, at most 2000, ended by a null pointer. Read when
/// first asked for and whenever `reload` is not 0, which rewrites the texts in place. A failed
/// statement is reported and ends the process with status 0.
const char* const* taxonGroupList(int reload);

/// The same for the group sets, at most 250. After a failed statement, which is reported, the list
/// is empty.
const char* const* groupSetList(int reload);

/// Writes the name of a group set into `out`, which must have room for 31 bytes: empty when there
/// is none or the statement failed, which is reported.
void groupSetName(long grpset_id, char* out);

/// The identifier of the group set of that name; 0 when there is none or the statement failed,
/// which is reported.
long groupSetId(const char* name);

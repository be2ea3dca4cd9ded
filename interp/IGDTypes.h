// interp/IGDTypes.h
#pragma once

// Codes of the interpretation and their names: types (`igd_type`), ranks within a type (`hier`) and
// the qualities of boundaries. Names that the functions return stay valid until the same function
// is called again.

/// The name of a type; "****UNKNOWN TYPE****" for one that has none. Types 41 to 44 are "Biozone",
/// or, when `withDiscipline` is not 0, the adjective of their discipline and " Biozone": reads
/// DISCS, of which a failed statement ends the process.
const char* typeName(int igd_type, int withDiscipline);
/// The type of that very name; 0 when there is none. "Biozone" is 4, and a discipline's biozone 41
/// to 44: a name that is no other type's reads DISCS. Comments have names only.
int typeCode(const char* name);

/// The name of a rank; "****UNKNOWN COLUMN****" when it has none. `longForm` not 0 tells all ranks
/// of chronostratigraphy apart, the short form "Period/Epoch" and "Age" only.
const char* columnName(int igd_type, int hier, int longForm);
/// The first rank of that name, ignoring case, in a type or, for `igd_type` 0, in any; 0 when there
/// is none. "Age" is rank 2 in the short form.
int columnRank(int igd_type, const char* name, int longForm);

/// The name of a boundary quality; "***BOUNDARY TYPE ERROR****" outside 1 to 7.
const char* boundaryName(int code);
/// The quality of that name, ignoring case; 0 when there is none.
int boundaryCode(const char* name);

/// Whether a type is one of 41 to 44, which follow the order of the discipline letters.
bool isDisciplineBiozone(int igd_type);

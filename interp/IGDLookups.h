// interp/IGDLookups.h
#pragma once

// Single questions to the dictionaries of the interpretation, for callers that do not load a
// scheme, and one removal. A failed statement is reported, not fatal, and answers as a missing row
// does: 0, with the results left as they were. Results may be null where they are not wanted.

/// The scheme of that type and name.
long schemeIdByName(int igd_type, const char* name);
/// The term of a scheme with that abbreviation; its name into room for 81 bytes.
long termByAbr(long sch_id, const char* abr, char* nameOut, int* hierOut);
/// `igd_id` when there is such a term; its name into room for 81 bytes.
long termNameAndRank(long igd_id, char* nameOut, int* hierOut);
/// An age of a term in Ma: the lower (older) one for 'B', the upper (younger) one for any other
/// letter. 0.0 without such a term.
float termAge(long igd_id, char end, long* schIdOut);

/// Deletes the interval lithology (12) or the lithology qualifiers (13) of a well; nothing for
/// other types. Does not commit.
void deleteWellRows(int igd_type, long well_id);

// dict/AbundanceSchemes.h
#pragma once

#include "dict/Abns.h"

class ItemList;

// The abundance schemes of the process. Failed statements are reported and end the process.

/// The scheme of an identifier, loaded when first asked for and kept to the end of the process. One
/// that is not in the database has identifier 0 and no levels. Never null.
Abns* schemeById(long scheme_id);

/// `abrForCount` and `valueForAbr` of a scheme, from a cache each that holds the scheme it was
/// asked for last: changed tables are seen only after another scheme was asked for. The text stays
/// valid until the next call.
const char* cachedAbrForCount(long occurrences, long scheme_id);
long cachedValueForAbr(const char* abr, long scheme_id);

/// All schemes, sorted by name. New: the caller deletes it.
ItemList* allSchemes();

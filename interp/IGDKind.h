// interp/IGDKind.h
#pragma once

#include "interp/DepthOrder.h"

#include <string>

class IGDList;
class Well;

/// What a list is loaded from.
struct IGDLoad {
    Well& well;
    int hierMin; ///< ranks, both included
    int hierMax;
    const long* schemeIds; ///< null, or four, of which the first counts and the rest up to a 0
};

/// How to read the records of a type that stand between two samples, and the scheme of their terms.
/// All records of a list of that type must be of its class.
struct SampledRecords {
    struct Ends {
        long top_id;
        long base_id;
    };
    Ends (*ends)(const IGDBase& record);
    std::string (*name)(const IGDBase& record);
    const char* heading; ///< before the name of a record that is removed
    long (*scheme)(const IGDBase& record);
    const char* schemeMark; ///< the text of a scheme in a list of references
    bool anyScheme;         ///< identifiers below 1 are schemes too
};

/// What an `IGDList` knows of one type of record. To add a type: a file with its loader, and a row
/// in the table.
struct IGDKind {
    int igd_type;
    /// Sets the title and inserts the records that the database has. False when a failed statement,
    /// which was reported, kept it from reading all of them. Null: nothing is loaded.
    bool (*load)(IGDList& list, const IGDLoad& from);
    /// Replaces the well's rows by the list, whose depths are in `unit`, negated when `negate` is
    /// not 0, without committing. False after a reported failure. Null: is never saved.
    bool (*save)(const IGDList& list, char unit, int negate);
    SameTop sameTop;
    /// Its records have ranks, and boundary qualities that neighbours must share.
    bool zones;
    /// Null for records that stand at depths.
    const SampledRecords* sampled;
};

/// The row of a type; one that does nothing for types that have none.
const IGDKind& igdKindOf(int igd_type);

// Loaders, each in a file of its own.
bool loadCasings(IGDList& list, const IGDLoad& from);
bool loadEnvironments(IGDList& list, const IGDLoad& from);
bool loadIntLithology(IGDList& list, const IGDLoad& from);
bool loadLithQualifiers(IGDList& list, const IGDLoad& from);
bool loadSeismicMarkers(IGDList& list, const IGDLoad& from);
bool loadZones(IGDList& list, const IGDLoad& from);

// How the types that are saved are saved, beside their loaders.
bool saveIntLithology(const IGDList& list, char unit, int negate);
bool saveLithQualifiers(const IGDList& list, char unit, int negate);

extern const SampledRecords kSampledEnvironments;
extern const SampledRecords kSampledZones;

// store/WellWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <array>
#include <string>

/// The columns of WELLS besides its key, in the writer's order.
enum class WellColumn {
    Name,
    Operator,
    Country,
    County,
    Ocs,
    Field,
    GridX,
    GridY,
    Latitude,
    Longitude,
    GeoDatum,
    SpudDate,
    CompDate,
    Td,
    Sl,
    Sb,
    Rte,
    Kicko,
    Datum,
    Type,
    Units,
    Count
};
inline constexpr std::size_t kWellColumns = static_cast<std::size_t>(WellColumn::Count);

/// A well as it shall stand in the database. Entries that are not set leave an existing well's
/// column alone; a NULL empties it.
struct WellRecord {
    std::string code; ///< the natural key, at most 25 bytes, never empty
    Row columns = Row(kWellColumns);
    std::optional<Value> description;

    void set(WellColumn column, Value value);
    /// A depth or level with its own unit: 'M', 'F', or 0 for the unit of the well. The writer
    /// stores it in the unit of the well.
    void setDepth(WellColumn column, double depth, char units);
    const std::optional<Value>& get(WellColumn column) const;
    char depthUnits(WellColumn column) const
    {
        return depthUnits_[static_cast<std::size_t>(column)];
    }

private:
    std::array<char, kWellColumns> depthUnits_{};
};

/// What the database knows of a well code.
struct StoredWell {
    bool inWells = false; ///< has a row in WELLS
    long id = 0;          ///< WELL_IDENT.well_id; 0 without a row there
    Row columns = Row(kWellColumns);
    Value description;

    char units() const; ///< 'M' when not known
    char type() const;  ///< 'W' when not known
};

/// Brings wells in: WELLS and WELL_IDENT together, found by their code. Metres and well type W are
/// what a new well gets when the record does not say.
class WellWriter {
public:
    explicit WellWriter(Writing writing);

    /// False: `error`. A code that is not there gives a StoredWell with nothing in it.
    bool find(const std::string& code, StoredWell* out);
    /// Inserts the well, or changes what differs. `*wellId` is its identifier then.
    Outcome put(const WellRecord& record, long* wellId);

    const std::string& error() const { return error_; }

private:
    Outcome insertWell(const WellRecord& record);
    Outcome updateWell(const WellRecord& record, const StoredWell& stored);
    Outcome insertIdentity(const WellRecord& record, long* wellId);
    Outcome updateIdentity(const WellRecord& record, const StoredWell& stored);
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter wells_;
    TableWriter identities_;
    IdAllocator ids_;
    std::string error_;
};

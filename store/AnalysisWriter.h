// store/AnalysisWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"
#include "store/UserWriter.h"

#include <functional>
#include <string>

/// One run of an analyst over a well in one discipline, from the database or announced.
struct Analysis {
    long id = 0; ///< ANALY_HDR.analy_id
    char discipline = 0;
    User* user = nullptr;
    long number = 1;   ///< 1 for the first run
    std::string label; ///< what tells the runs apart for an import: a category, or empty
    bool isStored = false;
};

/// Brings the headers of analyses in.
class AnalysisWriter {
public:
    explicit AnalysisWriter(Writing writing);

    /// A header of the database: analysis, discipline, user, number.
    using TakeHeader = std::function<void(long id, char discipline, long userId, long number)>;
    /// Notes of a sample's details.
    using TakeNotes = std::function<void(long analysisId, const std::string& notes)>;
    /// Reads the headers of a well, then the notes of its details. False: `error`.
    bool read(long wellId, const TakeHeader& header, const TakeNotes& notes);

    /// Stores an announced analysis, its user first, or gives a stored one the abundance scheme.
    /// Without a scheme the stored one stays.
    Outcome put(
        long wellId, Analysis& analysis, const std::optional<long>& scheme, UserWriter& users);

    const std::string& error() const { return error_; }

private:
    bool readHeaders(long wellId, const TakeHeader& header);
    bool readNotes(long wellId, const TakeNotes& notes);
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter table_;
    IdAllocator ids_;
    std::string error_;
};

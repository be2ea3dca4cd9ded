// app/import/ImportContext.h
#pragma once

#include "app/import/Abundance.h"
#include "app/import/Analyses.h"
#include "app/import/Dictionary.h"
#include "app/import/InputFile.h"
#include "app/import/Interpretation.h"
#include "app/import/TableNumbers.h"
#include "store/AbundanceWriter.h"
#include "store/EventWriter.h"
#include "store/WellWriter.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

/// Where a row stands, to name the other one of two that are alike.
struct RowPlace {
    const InputFile* file = nullptr;
    long line = 0;

    bool operator==(const RowPlace&) const = default;
    /// "line 12" or, seen from another file, "samples.csv:12".
    std::string seenFrom(const InputFile& other) const;
};

/// A well that rows of other files may refer to.
struct KnownWell {
    long id = 0; ///< WELL_IDENT.well_id; 0 until the well is stored
    char type = 'W';
    char units = 'M';
};

/// What a file's own number of a row stands for. Files number their rows as they like, so the
/// numbers count within one set of files and one import only.
struct FileId {
    RowPlace place;
    long databaseId = 0;              ///< 0 until the row is stored
    const KnownWell* well = nullptr;  ///< of a sample
    long ordinal = 0;                 ///< of a sample: rows that are the same sample share it
    std::optional<double> depth = {}; ///< of a sample, in metres
};
using FileIds = std::unordered_map<std::string, FileId>;

/// What the loaders of one import share.
class ImportContext {
public:
    explicit ImportContext(Writing mode)
        : writing(mode)
        , dictionary(mode)
        , abundances(mode)
        , analyses(mode)
        , events(mode)
        , interpretation(mode)
        , stored_(Writing::Check)
    {
    }

    const Writing writing;
    ImportPhase phase = ImportPhase::Checking;

    Dictionary dictionary;
    AbundanceWriter abundances;
    Numbered<AbundanceScheme> numberedSchemes;
    Analyses analyses;
    EventDictionaryWriter events;
    Numbered<EventEntry> numberedEvents;
    Interpretation interpretation;
    TableNumbers tableNumbers;

    /// What a set of files says about its abundances.
    struct SetAbundances {
        AbundanceScheme* scheme = nullptr; ///< null: none is given
        AbundanceWords words;
    };
    SetAbundances& abundancesOf(const std::string& set) { return setAbundances_[set]; }

    /// What the database has of a well code; false: `error`.
    bool storedWell(const std::string& code, StoredWell* out);
    /// Tells that a row of this import brings the well.
    void announceWell(const std::string& code, const KnownWell& well);
    /// The well of that code from this import or the database, or null without one (`*out`).
    /// False: the database could not be asked (`error`).
    bool findWell(const std::string& code, const KnownWell** out);

    /// The numbers of the rows of one kind of file ("samples") within one set of files.
    FileIds& ids(std::string_view shape, const std::string& set);

    const std::string& error() const { return stored_.error(); }

private:
    WellWriter stored_;
    std::unordered_map<std::string, std::optional<KnownWell>> wells_;
    std::map<std::string, SetAbundances> setAbundances_;
    std::map<std::pair<std::string, std::string>, FileIds> ids_;
};

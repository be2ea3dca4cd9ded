// app/import/DetailZones.h
#pragma once

#include "app/import/ImportContext.h"

#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

class CellReader;

/// The zones that details of samples name become biozones of the well: one for each run of samples
/// that an analyst put into the same zones, from its first sample to its last one. Rows that name
/// one end only end a run and make none.
class DetailZones {
public:
    explicit DetailZones(ImportContext& context)
        : context_(context)
        , all_(context.interpretation)
    {
    }

    struct Details {
        const FileId* sample;
        char discipline;
        std::string category; ///< may be empty
        std::string analyst;
    };
    /// Takes the zones of a row that is not refused, while rows are checked. False: `error`.
    bool note(CellReader& cells, const Details& details);
    /// Stores the zone that begins with the row, if one does; its sample must be stored.
    Outcome store(const RowPlace& place);

    const std::string& error() const { return error_; }

private:
    struct Look {
        double depth;
        const FileId* sample;
        RowPlace place;
        TermEntry* youngest; ///< null: the row makes no zone
        TermEntry* oldest;

        bool sameZones(const Look& other) const
        {
            return youngest && youngest == other.youngest && oldest == other.oldest;
        }
    };
    struct Run {
        const Look* first;
        const Look* last;
    };
    using Looks = std::vector<Look>;

    NamedEntry* scheme(CellReader& cells, const Details& details);
    TermEntry* term(NamedEntry& scheme, const std::string& name);
    void findRuns();
    void addRuns(Looks& looks);
    bool ensure(TermEntry& term);

    ImportContext& context_;
    Interpretation& all_;
    std::map<std::string, Looks> looks_; // by well, discipline, category and analyst
    std::map<std::pair<const InputFile*, long>, Run> runs_; // by the row of their first sample
    bool found_ = false;
    std::string error_;
};

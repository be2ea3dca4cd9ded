// store/SynonymyWriter.h
#pragma once

#include "store/IdAllocator.h"
#include "store/Outcome.h"
#include "store/TableWriter.h"

#include <map>
#include <string>

/// Brings preferred names in: which name to use for a taxon under a synonymy scheme. Schemes are
/// known by their names and made when they are first needed.
class SynonymyWriter {
public:
    explicit SynonymyWriter(Writing writing);

    /// Makes `preferred` the name to use for `specId` in the scheme; both are SPECIES.spec_id.
    Outcome put(const std::string& scheme, long specId, long preferred);

    const std::string& error() const { return error_; }

private:
    bool loadSchemes();
    bool ensureScheme(const std::string& name, long* id);
    Outcome failed(const std::string& error);

    Writing writing_;
    TableWriter schemes_;
    TableWriter synonymy_;
    IdAllocator ids_;
    std::map<std::string, long> schemeIds_;
    bool loaded_ = false;
    std::string error_;
};

// app/shell/SynonymySchemes.h
#pragma once

#include <optional>
#include <string>
#include <vector>

/// A synonymy scheme as people read it.
struct SynonymyScheme {
    long id = 0; ///< SYNSCH.sch_id
    std::string name;
};

/// All of them by name. Nothing when they could not be read; `*error` tells why then.
std::optional<std::vector<SynonymyScheme>> synonymySchemes(std::string* error);

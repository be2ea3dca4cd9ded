// app/shell/TaxonPatterns.h
#pragma once

#include <optional>
#include <string>
#include <vector>

/// The patterns of a search for taxa, in buffers that the search may write to.
struct TaxonPatterns {
    std::string category, genus, subgenus, species, subspecies;
};

/// What a user asks for by the words of a name: genus, species, subspecies, and a subgenus in
/// brackets. "*" and "%" stand for any letters, and so do parts and a `category` that are not
/// given. None when there are more words than a name has parts.
std::optional<TaxonPatterns> taxonPatterns(
    const std::vector<std::string>& words, const std::string& category);

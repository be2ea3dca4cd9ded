// platform/desktopdb/LikePattern.h
#pragma once

#include <string>
#include <string_view>

namespace desktopdb {

/// Whose SQL arrives. Auto takes both and decides by what a statement holds.
enum class Dialect { Auto, Access, Oracle };

/// The character that takes a wildcard's meaning away in every pattern handed to the engine.
constexpr char kLikeEscape = '\\';

/// Whether a pattern is meant with * and ? as its wildcards.
bool isAccessPattern(std::string_view pattern, Dialect dialect);

/// A pattern with * and ? as one with % and _. The characters % and _ of the original stand for
/// themselves, so they come out behind the escape character.
std::string accessPattern(std::string_view pattern);

/// A pattern with % and _ that keeps its meaning when the escape character is in force.
std::string escapedPattern(std::string_view pattern);

} // namespace desktopdb

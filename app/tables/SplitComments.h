// app/tables/SplitComments.h
#pragma once

#include <optional>
#include <string>

/// Comments of an occurrence with what its columns do not hold taken off their front.
struct SplitComments {
    std::optional<std::string> abundance; ///< as written
    std::optional<std::string> percent;
    std::optional<std::string> text;
};

/// Comments that joining would not give back byte by byte stay whole.
SplitComments splitComments(const std::optional<std::string>& comments);
std::optional<std::string> joinedComments(const SplitComments& parts);

// app/import/Analyses.h
#pragma once

#include "store/AnalysisWriter.h"

#include <deque>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>

struct KnownWell;

/// The analyses of the database and those that the rows of an import bring.
///
/// An analyst who examined a sample more than once in a discipline did so in several analyses,
/// numbered 1, 2, ... in the order in which a well's rows first show them. Files tell them apart by
/// the category of fossils, or not at all; that label is kept with the details of the samples, so
/// that a later import finds the same analysis.
class Analyses {
public:
    explicit Analyses(Writing writing)
        : users(writing)
        , writer_(writing)
    {
    }

    UserWriter users;

    /// The analysis of that label, announced when there is none yet. Null: `error`.
    Analysis* labelled(
        const KnownWell& well, char discipline, User& user, const std::string& label);
    /// The one that occurrences of a category belong to: of that label, else without any. An
    /// analyst without other analyses needs no label.
    Analysis* forCategory(
        const KnownWell& well, char discipline, User& user, const std::string& category);
    /// The analysis of that number, announced when there is none yet. Null: `error`.
    Analysis* numbered(
        const KnownWell& well, char discipline, User& user, long number, const std::string& label);

    /// Stores what is new of it, once for each scheme. The well must be stored.
    Outcome put(const KnownWell& well, Analysis& analysis, const std::optional<long>& scheme);

    /// Tells that a row of this import brings the details of a sample, known by its ordinal.
    void announceDetails(long sample, const Analysis& analysis);
    bool hasDetails(long sample, const Analysis& analysis) const;

    const std::string& error() const { return error_; }

private:
    using WellAnalyses = std::deque<Analysis>;

    WellAnalyses* of(const KnownWell& well);
    bool read(long wellId, WellAnalyses* out);

    AnalysisWriter writer_;
    std::unordered_map<const KnownWell*, WellAnalyses> wells_;
    std::set<std::pair<const Analysis*, long>> put_;
    std::set<std::pair<const Analysis*, long>> details_; // with the sample
    std::string error_;
};

// app/import/Analyses.cpp
#include "app/import/Analyses.h"

#include "app/import/ImportContext.h"
#include "app/tables/NamedNotes.h"

#include <algorithm>

namespace {

template <typename Analyses, typename Test> Analysis* first(Analyses& analyses, const Test& test)
{
    const auto found = std::ranges::find_if(analyses, test);
    return found == analyses.end() ? nullptr : &*found;
}

auto isOf(char discipline, const User& user)
{
    return [discipline, &user](const Analysis& analysis) {
        return analysis.discipline == discipline && analysis.user == &user;
    };
}

} // namespace

bool Analyses::read(long wellId, WellAnalyses* out)
{
    const auto takeHeader = [&](long id, char discipline, long userId, long number) {
        // Headers of unknown users are nobody's that a row could name.
        if (User* user = users.withId(userId))
            out->push_back({id, discipline, user, std::max(number, 1L), {}, true});
    };
    const auto takeNotes = [&](long id, const std::string& notes) {
        for (Analysis& analysis : *out)
            if (analysis.id == id && analysis.label.empty())
                analysis.label = namedNotesOf(notes).value("category");
    };
    if (writer_.read(wellId, takeHeader, takeNotes))
        return true;
    error_ = writer_.error();
    return false;
}

Analyses::WellAnalyses* Analyses::of(const KnownWell& well)
{
    const auto known = wells_.find(&well);
    if (known != wells_.end())
        return &known->second;
    WellAnalyses analyses;
    if (well.id != 0 && !read(well.id, &analyses))
        return nullptr;
    return &wells_.emplace(&well, std::move(analyses)).first->second;
}

Analysis* Analyses::labelled(
    const KnownWell& well, char discipline, User& user, const std::string& label)
{
    WellAnalyses* analyses = of(well);
    if (!analyses)
        return nullptr;
    const auto his = isOf(discipline, user);
    long last = 0;
    for (Analysis& analysis : *analyses) {
        if (his(analysis) && analysis.label == label)
            return &analysis;
        if (his(analysis))
            last = std::max(last, analysis.number);
    }
    return &analyses->emplace_back(Analysis{0, discipline, &user, last + 1, label, false});
}

Analysis* Analyses::forCategory(
    const KnownWell& well, char discipline, User& user, const std::string& category)
{
    WellAnalyses* analyses = of(well);
    if (!analyses)
        return nullptr;
    const auto his = isOf(discipline, user);
    const auto with = [&](const std::string& label) {
        return first(*analyses, [&](const Analysis& a) { return his(a) && a.label == label; });
    };
    if (Analysis* own = with(category))
        return own;
    Analysis* any = with("");
    return any || first(*analyses, his) == nullptr ? labelled(well, discipline, user, "")
                                                   : labelled(well, discipline, user, category);
}

Analysis* Analyses::numbered(
    const KnownWell& well, char discipline, User& user, long number, const std::string& label)
{
    WellAnalyses* analyses = of(well);
    if (!analyses)
        return nullptr;
    const auto his = isOf(discipline, user);
    Analysis* there =
        first(*analyses, [&](const Analysis& a) { return his(a) && a.number == number; });
    return there ? there
                 : &analyses->emplace_back(Analysis{0, discipline, &user, number, label, false});
}

Outcome Analyses::put(const KnownWell& well, Analysis& analysis, const std::optional<long>& scheme)
{
    if (!put_.emplace(&analysis, scheme.value_or(0)).second)
        return Outcome::Same;
    const Outcome outcome = writer_.put(well.id, analysis, scheme, users);
    if (outcome == Outcome::Failed)
        error_ = writer_.error();
    return outcome;
}

void Analyses::announceDetails(long sample, const Analysis& analysis)
{
    details_.emplace(&analysis, sample);
}

bool Analyses::hasDetails(long sample, const Analysis& analysis) const
{
    return details_.count({&analysis, sample}) > 0;
}

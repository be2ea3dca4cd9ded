// interp/SchemeTerms.cpp
#include "interp/igd_sch.h"

#include "interp/IGDTypes.h"
#include "taxonomy/TextArgument.h"
#include "util/TextUtil.h"

#include <algorithm>

namespace {

/// The first term of a list of which something holds, or null.
template <typename Is> igdDict* firstTerm(const igdDictList& list, Is is)
{
    const auto found = std::find_if(list.begin(), list.end(), is);
    return found == list.end() ? nullptr : *found;
}

bool holds(const igdDict* term, float top, float base)
{
    return term->u_age <= top && term->l_age >= base;
}

/// The widest rank of a term that by itself tells enough about an interval.
int widestUsefulRank(int igd_type)
{
    constexpr int kChronostratigraphy = 3, kLithostratigraphy = 2;
    if (igd_type == kChronostratigraphy)
        return 7;
    return igd_type == kLithostratigraphy || isDisciplineBiozone(igd_type) ? 3 : 1;
}

} // namespace

igdDict* igd_sch::findTermById(long igd_id) const
{
    return firstTerm(nameOrder, [=](const igdDict* term) { return term->igd_id == igd_id; });
}

igdDict* igd_sch::findTermByName(const char* termName) const
{
    return firstTerm(
        terms, [text = orEmpty(termName)](const igdDict* term) { return term->name == text; });
}

long igd_sch::termIdByName(const char* termName) const
{
    const igdDict* found = firstTerm(terms, [text = orEmpty(termName)](const igdDict* term) {
        return compareIgnoringCase(term->name.view(), text) == 0;
    });
    return found ? found->igd_id : 0;
}

long igd_sch::termIdByAbr(const char* abr, std::string& nameOut, int wantName) const
{
    const igdDict* found = firstTerm(terms, [text = orEmpty(abr)](const igdDict* term) {
        return compareIgnoringCase(term->abr.view(), text) == 0;
    });
    if (!found)
        return 0;
    if (wantName)
        nameOut = found->name.view();
    return found->igd_id;
}

igdDict* igd_sch::findTermForAges(float top, float base) const
{
    if (base < top)
        return nullptr;
    for (int rank = std::min(nLevels, int(kLevels)); rank >= 1; --rank) {
        igdDict* term = firstTerm(levels[static_cast<std::size_t>(rank - 1)],
            [=](const igdDict* at) { return holds(at, top, base); });
        if (term)
            return term;
    }
    return nullptr;
}

void igd_sch::findTermsForAges(float top, float base, igdDict** first, igdDict** second) const
{
    *second = nullptr;
    *first = findTermForAges(top, base);
    if (!*first || (*first)->hier >= widestUsefulRank(igd_type))
        return;
    *first = findTermForAges(top, top);
    *second = findTermForAges(base, base);
}

// well/DetailsWalk.h
#pragma once

#include "taxonomy/TextArgument.h"
#include "well/Sample.h"

#include <ranges>

/// The detail records of a sample in a discipline (0: in any) by an analyst (empty or null: by
/// any), in list order. The text must live as long as the result.
inline auto recordsOf(const Sample& s, char disc, const char* analyst)
{
    return s.details | std::views::filter([disc, key = orEmpty(analyst)](const Smpdtl* record) {
        return (disc == 0 || record->disc == disc) && record->isBy(key);
    });
}

/// The first of them, or null.
inline Smpdtl* firstRecordOf(const Sample& s, char disc, const char* analyst)
{
    for (Smpdtl* record : recordsOf(s, disc, analyst))
        return record;
    return nullptr;
}

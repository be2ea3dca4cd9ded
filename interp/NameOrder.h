// interp/NameOrder.h
#pragma once

#include "util/TextUtil.h"

#include <string_view>

/// Alphabetical order ignoring case of what has a `name`: before the first whose name is greater,
/// so that equal names keep their order of arrival. A rule for `PlaceIndex`.
template <typename T> struct NameOrder {
    using Member = T;

    struct Reach {
        std::string_view greatest;

        void widen(const T& member)
        {
            if (isGreater(member.name.view(), greatest))
                greatest = member.name.view();
        }
    };

    static bool isGreater(std::string_view name, std::string_view other)
    {
        return compareIgnoringCase(name, other) > 0;
    }
    bool stops(const T& at, const T& added) const
    {
        return isGreater(at.name.view(), added.name.view());
    }
    bool mayStop(const Reach& branch, const T& added) const
    {
        return isGreater(branch.greatest, added.name.view());
    }
};

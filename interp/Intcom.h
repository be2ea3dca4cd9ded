// interp/Intcom.h
#pragma once

#include "interp/IGDBase.h"
#include "util/OwningList.h"

#include <string>
#include <utility>

class Well;

/// A comment on an interval. Depths are metres, as stored.
class Intcom : public IGDBase {
public:
    static constexpr int kType = 24;

    Intcom(float top, float base, std::string text)
        : IGDBase(kType, top, base)
        , comments(std::move(text))
    {
    }

    std::string comments;
};

/// Comments by their tops, equal ones in the order in which the database gave them. Owns them.
using IntcomList = OwningList<Intcom>;

/// Replaces what is in the list by the comments of an interpretation. False after a reported
/// failure, which leaves the list.
bool loadComments(IntcomList& list, const Well& well, long interp_id);

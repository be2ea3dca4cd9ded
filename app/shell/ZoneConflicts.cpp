// app/shell/ZoneConflicts.cpp
#include "app/shell/ZoneConflicts.h"

#include "interp/IGDTypes.h"
#include "util/TextUtil.h"
#include "well/Well.h"

#include <algorithm>

namespace {

constexpr int kOverlap = -1;

/// A list that holds one record of another list for a while, to be asked about it alone.
class Probe {
public:
    explicit Probe(const IGDList& list)
        : list_(list.igd_type(), 0, 0, nullptr, list.unit(), 0, 0, nullptr)
    {
    }
    int conflict(IGDBase* held, const IGDBase* asked)
    {
        int kind = 0;
        list_.insert(held);
        list_.findConflict(asked, &kind, nullptr);
        list_.pop(); // the other list owns it
        return kind;
    }

private:
    IGDList list_;
};

} // namespace

std::vector<ZoneConflict> conflictsOf(const IGDList& list)
{
    std::vector<IGDBase*> records;
    for (IGDBase* record : list)
        records.push_back(record);
    Probe probe(list);
    std::vector<ZoneConflict> conflicts;
    for (std::size_t i = 0; i < records.size(); ++i) {
        for (std::size_t j = i + 1; j < records.size(); ++j) {
            int kind = probe.conflict(records[i], records[j]);
            if (kind == 0)
                kind = probe.conflict(records[j], records[i]);
            if (kind != 0)
                conflicts.push_back({records[i], records[j], kind});
        }
    }
    return conflicts;
}

std::optional<ZoneConflict> conflictWith(
    const IGDList& list, IGDBase& record, const IGDBase* exclude)
{
    int kind = 0;
    if (const IGDBase* member = list.findConflict(&record, &kind, exclude))
        return ZoneConflict{&record, member, kind};
    Probe probe(list);
    for (const IGDBase* member : list) {
        if (member == exclude)
            continue;
        kind = probe.conflict(&record, member);
        if (kind != 0)
            return ZoneConflict{&record, member, kind};
    }
    return std::nullopt;
}

int isSection(const Well& well) { return well.type == 'O' ? 1 : 0; }

std::string conflictText(const ZoneConflict& conflict, int negate)
{
    constexpr int kAsHeld = 0;
    const IGDBase& a = *conflict.first;
    const IGDBase& b = *conflict.second;
    const auto depth = [negate](float held) { return fixedString(negate ? -held : held, 2); };
    if (conflict.kind == kOverlap)
        return "overlap from " + depth(std::max(a.getTop(kAsHeld), b.getTop(kAsHeld))) + " to "
            + depth(std::min(a.getBase(kAsHeld), b.getBase(kAsHeld)));
    const bool inOrder = a.getTop(kAsHeld) <= b.getTop(kAsHeld);
    const IGDBase& above = inOrder ? a : b;
    const IGDBase& below = inOrder ? b : a;
    const std::string upper = boundaryName(above.baseBoundary());
    return "meet at " + depth(below.getTop(kAsHeld)) + ", which is " + upper + " above and "
        + boundaryName(below.topBoundary()) + " below";
}

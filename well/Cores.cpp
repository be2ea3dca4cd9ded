// well/Cores.cpp
#include "well/Well.h"

#include "db/Cursor.h"
#include "db/Literals.h"
#include "well/Sample.h"

#include <algorithm>
#include <map>
#include <memory>

namespace {

/// The number without the decimals that some drivers give whole numbers.
std::string coreNumber(std::string text)
{
    constexpr std::string_view kDecimals = ".0";
    if (text.size() > kDecimals.size() && text.find(kDecimals) == text.size() - kDecimals.size())
        text.resize(text.size() - kDecimals.size());
    return text;
}

std::unique_ptr<CoredInt> newCore(const Cursor& row)
{
    const auto top = static_cast<float>(row.number(1));
    const auto base = static_cast<float>(row.number(2));
    const std::string number = coreNumber(row.text(3));
    return std::make_unique<CoredInt>(top, base, number, row.letter(4));
}

/// Cores by the depth of one of their ends.
class CoreEnds {
public:
    CoreEnds(const OwningList<CoredInt>& cores, float CoredInt::*end)
    {
        for (CoredInt* core : cores)
            byDepth_.emplace(core->*end, core);
    }
    /// Hands every core with that end at `depth` to `take`.
    template <typename Take> void each(float depth, Take take) const
    {
        // Wider than the tolerance, which is below the steps of large floats and so is tested.
        constexpr float kWidth = 1;
        for (auto at = byDepth_.lower_bound(depth - kWidth);
             at != byDepth_.end() && at->first <= depth + kWidth; ++at) {
            if (isAbsentDepth(at->first - depth))
                take(*at->second);
        }
    }

private:
    std::multimap<float, CoredInt*> byDepth_;
};

/// A row that meets no end of a core is passed over.
void loadShifts(const OwningList<CoredInt>& cores, long well_id)
{
    const std::string sql = "SELECT depth, shift  FROM " + sql::table("CORESHIFT")
        + " WHERE well_id=" + sql::integer(well_id) + " ORDER BY depth";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    const CoreEnds tops(cores, &CoredInt::top), bases(cores, &CoredInt::base);
    while (rows.next()) {
        const auto depth = static_cast<float>(rows.number(1));
        const auto shift = static_cast<float>(rows.number(2));
        tops.each(depth, [shift](CoredInt& core) {
            core.shiftTop = shift;
            core.shifted = 'Y';
        });
        bases.each(depth, [shift](CoredInt& core) {
            core.SetBaseShift(shift);
            core.shifted = 'Y';
        });
    }
}

} // namespace

void Well::LoadCores(int reload)
{
    if (coresState != 0 && !reload)
        return;
    if (coresState != 0)
        cores.destroyAll();
    coresState = 0;
    const std::string sql = "SELECT top_depth, base_depth, corenum, recovered  FROM "
        + sql::table("CORES") + " WHERE well_id=" + sql::integer(well_id) + " ORDER BY top_depth";
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    while (rows.next())
        cores.push(newCore(rows).release());
    rows.close();
    coresState = 1;
    loadShifts(cores, well_id);
}

void Well::AddCore(CoredInt* c)
{
    if (coresState == 0)
        LoadCores(0);
    const auto deeper = std::find_if(
        cores.begin(), cores.end(), [c](const CoredInt* core) { return core->top > c->top; });
    cores.insertAt(deeper.node(), c);
    coresState = 2;
}

// app/window/Interpretation.cpp
#include "app/window/Interpretation.h"

#include "app/window/Texts.h"
#include "interp/IGDTypes.h"
#include "interp/LoadedDepths.h"
#include "util/TextUtil.h"

std::unique_ptr<IGDList> interpretationOf(
    Well& well, int igd_type, char units, long interp_id, int rank)
{
    constexpr long kAnyScheme = 0;
    auto list = std::make_unique<IGDList>(igd_type, rank ? rank : kWidestRank,
        rank ? rank : kFinestRank, &well, units, kAnyScheme, interp_id, nullptr);
    list->removeMissingSamples(&well);
    return list;
}

QString topText(const IGDBase& record, const Well& well)
{
    return recordDepthText(record.getTop(negates(well)));
}

QString baseText(const IGDBase& record, const Well& well)
{
    return recordDepthText(record.getBase(negates(well)));
}

QString recordDepthText(float depth) { return QString::fromStdString(fixedString(depth, 2)); }

QString qualityText(int quality)
{
    constexpr int kFirstQuality = 1;
    constexpr int kLastQuality = 7;
    return quality < kFirstQuality || quality > kLastQuality
        ? missingText()
        : QString::fromLatin1(boundaryName(quality));
}

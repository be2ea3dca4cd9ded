// app/window/HeaderFields.cpp
#include "app/window/HeaderFields.h"

#include "app/window/DepthUnits.h"
#include "app/window/Texts.h"
#include "util/TextUtil.h"
#include "well/Well.h"

#include <QCoreApplication>

#include <cmath>

namespace {

QString tr(const char* text) { return QCoreApplication::translate("HeaderFields", text); }

QString typeText(char type)
{
    switch (type) {
    case 'W':
        return tr("well");
    case 'O':
        return tr("outcrop section");
    case 0:
        return missingText();
    default:
        return QString(QLatin1Char(type));
    }
}

// A well without a position reads as one on the equator off Africa.
bool hasPosition(const Well& well) { return well.lat_dec != 0 || well.long_dec != 0; }

QString degrees(const Well& well, double value, char positive, char negative)
{
    if (!hasPosition(well))
        return missingText();
    return QString::fromStdString(fixedString(std::fabs(value), 6)) + QStringLiteral("\u00b0 ")
        + QLatin1Char(value < 0 ? negative : positive);
}

QString gridText(const Well& well)
{
    if (well.grid_x == 0 && well.grid_y == 0)
        return missingText();
    return QStringLiteral("%1, %2").arg(well.grid_x).arg(well.grid_y);
}

} // namespace

std::vector<HeaderField> headerFields(const Well& well, char units)
{
    const auto depth = [&](float value) { return headerDepthText(value, well.units, units); };
    return {
        {tr("Code"), shownOrMissing(well.well_code.view())},
        {tr("Operator"), shownOrMissing(well.operator_.view())},
        {tr("Country"), shownOrMissing(well.country.view())},
        {tr("County"), shownOrMissing(well.county.view())},
        {tr("Field"), shownOrMissing(well.field.view())},
        {tr("OCS number"), shownOrMissing(well.ocs.view())},
        {tr("Type"), typeText(well.type)},
        {tr("Units"), QString::fromUtf8(well.UnitsText(3))},
        {tr("Spudded"), shownOrMissing(well.spud_date.isoText())},
        {tr("Completed"), shownOrMissing(well.comp_date.isoText())},
        {tr("Latitude"), degrees(well, well.lat_dec, 'N', 'S')},
        {tr("Longitude"), degrees(well, well.long_dec, 'E', 'W')},
        {tr("Geodetic datum"), shownOrMissing(well.geoDatum)},
        {tr("Grid (x, y)"), gridText(well)},
        {tr("Total depth"), depth(well.td)},
        {tr("Rotary table elevation"), depth(well.rte)},
        {tr("Sea level"), depth(well.sl)},
        {tr("Sea bed"), depth(well.sb)},
        {tr("Kick-off depth"), depth(well.kicko)},
        {tr("Description"), shownOrMissing(well.descrip)},
    };
}

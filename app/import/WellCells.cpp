// app/import/WellCells.cpp
#include "app/import/WellCells.h"

#include "db/Units.h"

bool readWell(CellReader& cells, int column, ImportContext& context, std::string* code,
    const KnownWell** well)
{
    code->clear();
    *well = nullptr;
    if (cells.key(column, code) != Cell::Good)
        return true;
    if (!context.findWell(*code, well))
        return false;
    if (*well)
        cells.standInWell((*well)->type);
    else
        cells.refuse(
            column, "no such well in the database or among the accepted rows of wells files");
    return true;
}

DepthCells::DepthCells(CellReader& cells, int unitsColumn, const KnownWell* well)
    : cells_(cells)
    , unitsColumn_(unitsColumn)
    , well_(well)
    , state_(cells.units(unitsColumn, &rowUnits_))
{
}

char DepthCells::units()
{
    if (state_ == Cell::Good)
        return rowUnits_;
    const char units = well_ ? well_->units : 'M';
    if (state_ == Cell::Missing)
        cells_.report().noteOnce(
            "", "", "depths without a unit are taken to be in the units of their well");
    else if (state_ == Cell::Empty && !told_)
        cells_.adjust(unitsColumn_,
            std::string("no unit; those of the well are taken, ")
                + (units == 'F' ? "feet" : "metres"));
    told_ = true;
    return units;
}

Cell DepthCells::read(int column, double* metres)
{
    char columnUnits = 0;
    const Cell state = cells_.depth(column, metres, &columnUnits);
    if (state == Cell::Good && (columnUnits ? columnUnits : units()) == 'F')
        *metres *= kMetresPerFoot;
    return state;
}

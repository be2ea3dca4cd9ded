// app/import/RowPlaces.cpp
#include "app/import/RowPlaces.h"

#include "app/import/Cells.h"

bool takeFileNumber(CellReader& cells, int column, FileIds& ids, FileId** out)
{
    *out = nullptr;
    const std::string id(cells.raw(column));
    if (id.empty())
        return true;
    const RowPlace place{&cells.file(), cells.line()};
    const auto [known, isNew] = ids.try_emplace(id, FileId{place, 0});
    if (!isNew && known->second.place != place) {
        cells.refuse(
            column, "this number is in " + known->second.place.seenFrom(cells.file()) + " already");
        return false;
    }
    *out = &known->second;
    return true;
}

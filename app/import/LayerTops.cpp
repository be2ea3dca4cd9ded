// app/import/LayerTops.cpp
#include "app/import/LayerTops.h"

#include <iterator>

bool LayerTops::read(
    const InputFile& file, const IntervalColumns& columns, int wellColumn, ImportContext& context)
{
    if (file_ == &file)
        return true;
    wells_.clear();
    CsvReader reader(file.path);
    CsvRow row;
    reader.next(&row); // the header
    FileReport silent(file.name, nullptr);
    while (reader.next(&row)) {
        if (!row.fault.empty() || row.fields.size() != file.fields)
            continue;
        silent.beginRow(row.line);
        CellReader cells(file, row, silent);
        std::string code;
        const KnownWell* well = nullptr;
        if (!readWell(cells, wellColumn, context, &code, &well))
            return false;
        double top = 0;
        if (well && DepthCells(cells, columns.units, well).read(columns.top, &top) == Cell::Good)
            wells_[well].insert(top);
    }
    file_ = &file;
    return true;
}

std::optional<double> LayerTops::below(const KnownWell& well, double depth) const
{
    const auto tops = wells_.find(&well);
    if (tops == wells_.end())
        return std::nullopt;
    const auto& depths = tops->second;
    if (well.type != 'O') {
        const auto next = depths.upper_bound(depth);
        return next == depths.end() ? std::nullopt : std::optional(*next);
    }
    const auto next = depths.lower_bound(depth);
    return next == depths.begin() ? std::nullopt : std::optional(*std::prev(next));
}

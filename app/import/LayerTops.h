// app/import/LayerTops.h
#pragma once

#include "app/import/ImportContext.h"
#include "app/import/IntervalCells.h"

#include <map>
#include <optional>
#include <set>
#include <string>

/// The tops of the layers of one file, read ahead: a layer without a base ends where the next one
/// begins, which may be written anywhere.
class LayerTops {
public:
    /// Reads the tops of the file, unless they are those at hand. False: the database could not be
    /// asked (the context's error).
    bool read(const InputFile& file, const IntervalColumns& columns, int wellColumn,
        ImportContext& context);

    /// The nearest top below that depth, in metres; in an outcrop below is less. None without one.
    std::optional<double> below(const KnownWell& well, double depth) const;

private:
    const InputFile* file_ = nullptr;
    std::map<const KnownWell*, std::set<double>> wells_;
};

// app/import/SchemeCells.cpp
#include "app/import/SchemeCells.h"

#include "interp/IGDTypes.h"

#include <algorithm>
#include <filesystem>

namespace {

constexpr long kMostRanks = 8;
constexpr long kBrightest = 255;
constexpr std::string_view kDisciplines = "MNPA"; // of types 41 to 44

} // namespace

std::string folderOf(const InputFile& file)
{
    return std::filesystem::path(file.set).filename().string();
}

long biozoneType(char discipline)
{
    const std::size_t place = discipline ? kDisciplines.find(discipline) : std::string_view::npos;
    return place == std::string_view::npos ? 0 : 41 + static_cast<long>(place);
}

std::string typeText(long type) { return typeName(static_cast<int>(type), 0); }

NamedEntry* schemeNamed(
    CellReader& cells, int column, const std::string& name, long type, ImportContext& context)
{
    SchemeWriter& schemes = context.interpretation.schemes;
    NamedEntry* scheme = schemes.find(name);
    if (!scheme)
        return schemes.add(name, type);
    if (scheme->kind == type)
        return scheme;
    cells.refuse(column,
        "the scheme " + name + " is one of another type, " + typeText(scheme->kind) + " ("
            + std::to_string(scheme->kind) + ')');
    return nullptr;
}

std::optional<long> readRank(CellReader& cells, int number, int name, long type)
{
    long rank = 0;
    if (cells.whole(number, &rank) == Cell::Good) {
        if (rank > kMostRanks)
            cells.refuse(number, "there are eight ranks");
        else if (rank < 1)
            cells.adjust(number, "ranks begin with 1; stored as 1");
        return std::clamp(rank, 1L, kMostRanks);
    }
    std::string text(cells.raw(name));
    std::ranges::replace(text, '-', ' ');
    rank = columnRank(static_cast<int>(type), text.c_str(), 1);
    return rank > 0 ? std::optional(rank) : std::nullopt;
}

ColourValues readColour(CellReader& cells, const std::array<int, 3>& columns)
{
    ColourValues colour;
    long sum = 0;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        long value = 0;
        if (cells.whole(columns[i], &value) != Cell::Good)
            return {};
        if (value < 0 || value > kBrightest) {
            cells.adjust(columns[i], "colours go from 0 to 255; the colour is not taken");
            return {};
        }
        colour[i] = Value(value);
        sum += value;
    }
    if (sum == 0)
        cells.adjust(columns[0], "stored, but black is shown as white");
    return colour;
}

// app/export/RowNames.cpp
#include "app/export/RowNames.h"

#include "taxonomy/Taxon.h"

#include <algorithm>

namespace {

std::string orEmpty(const std::optional<std::string>& text) { return text ? *text : std::string(); }

std::string rowKey(const TableFile& table, const std::string& scope, const std::string& own)
{
    return std::string(table.name) + '\n' + scope + '\n' + own;
}

// The parts of a genus in their order, each ended, for the names of its species.
std::string partsOf(const TableFile& table, const RowTexts& row)
{
    std::string parts;
    for (std::size_t i = 0; i < row.size(); ++i)
        if (table.fields[i].kind == FieldKind::Text)
            parts += orEmpty(row[i]) + '\t';
    return parts;
}

std::string nameOf(const std::string& parts)
{
    Taxon taxon;
    std::size_t begin = 0;
    for (int number = 0; number < slot::count && begin < parts.size(); ++number) {
        const std::size_t end = std::min(parts.find('\t', begin), parts.size());
        taxon.setField(number, std::string_view(parts).substr(begin, end - begin));
        begin = end + 1;
    }
    return taxon.displayName(1, 0, 0, 0);
}

} // namespace

std::string RowNames::titleOf(const TableFile& table, const RowTexts& row) const
{
    if (table.title == "genus")
        return partsOf(table, row);
    if (table.title == "species") {
        const Name* genus = find(table, row, 1);
        // A species without its genus begins behind the slots of one.
        const std::string before = genus ? genus->title : std::string(slot::preSpecies, '\t');
        return nameOf(before + partsOf(table, row));
    }
    const auto title = std::ranges::find(table.fields, table.title, &TableField::name);
    return title == table.fields.end()
        ? std::string()
        : orEmpty(row[static_cast<std::size_t>(title - table.fields.begin())]);
}

void RowNames::give(const TableFile& table, const RowTexts& row, const std::string& reference)
{
    const std::string scope = table.numbersPerWell ? orEmpty(row.front()) : std::string();
    const std::string own = orEmpty(row[static_cast<std::size_t>(table.own())]);
    names_[rowKey(table, scope, own)] = {reference, titleOf(table, row)};
}

const RowNames::Name* RowNames::find(
    const TableFile& table, const RowTexts& row, std::size_t field) const
{
    const TableFile& target = *tableFile(table.fields[field].target);
    if (!row[field])
        return nullptr;
    const std::string scope = target.numbersPerWell
        ? orEmpty(row[static_cast<std::size_t>(table.well())])
        : std::string();
    const auto found = names_.find(rowKey(target, scope, *row[field]));
    return found == names_.end() ? nullptr : &found->second;
}

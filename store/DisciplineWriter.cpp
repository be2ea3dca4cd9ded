// store/DisciplineWriter.cpp
#include "store/DisciplineWriter.h"

#include "store/Rows.h"

namespace {

using Type = ColumnType;

constexpr Column kKey[] = {{"disc_id", Type::Text}};
constexpr Column kColumns[] = {
    {"disc_name", Type::Text}, {"disc_abr", Type::Text}, {"disc_adj", Type::Text}};
static_assert(std::size(kColumns) == static_cast<std::size_t>(DisciplineColumn::Count));

} // namespace

DisciplineWriter::DisciplineWriter(Writing writing)
    : writing_(writing)
    , table_("DISCS", kKey, kColumns)
{
}

Outcome DisciplineWriter::put(char letter, const Row& row)
{
    return putRow(table_, writing_, {Value(std::string(1, letter))}, row);
}

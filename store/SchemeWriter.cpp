// store/SchemeWriter.cpp
#include "store/SchemeWriter.h"

#include "db/CurrentUser.h"
#include "store/Rows.h"

namespace {

constexpr Column kKey[] = {{"sch_id", ColumnType::Integer}};
constexpr Column kScheme[] = {{"name", ColumnType::Text}, {"igd_type", ColumnType::Integer},
    {"created", ColumnType::Date}, {"creator", ColumnType::Text}};

} // namespace

SchemeWriter::SchemeWriter(Writing writing)
    : writing_(writing)
    , table_("IGD_SCH", kKey, kScheme)
    , schemes_("IGD_SCH", "sch_id", "name", "igd_type")
{
}

Outcome SchemeWriter::put(NamedEntry& scheme)
{
    if (scheme.isStored)
        return Outcome::Same;
    if (!schemes_.number(scheme))
        return Outcome::Failed;
    return putRow(table_, writing_, {Value(scheme.id)},
        {textValue(scheme.name), Value(scheme.kind), dateValue(Date::Today()),
            textValue(currentUserAbr.view())});
}

std::string SchemeWriter::error() const
{
    return table_.error().empty() ? schemes_.error() : table_.error();
}

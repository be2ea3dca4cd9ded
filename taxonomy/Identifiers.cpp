// taxonomy/Identifiers.cpp
#include "taxonomy/Identifiers.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"

std::vector<long> takeIdentifiers(Cursor& row)
{
    std::vector<long> ids;
    while (row.next())
        ids.push_back(row.integer(1));
    row.close();
    return ids;
}

std::optional<std::vector<long>> identifiers(const std::string& sql)
{
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return std::nullopt;
    }
    return takeIdentifiers(row);
}

long firstIdentifier(const std::string& sql)
{
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return 0;
    }
    return row.next() ? row.integer(1) : 0;
}

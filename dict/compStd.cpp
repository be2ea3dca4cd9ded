// dict/compStd.cpp
#include "dict/compStd.h"

#include "db/Literals.h"
#include "dict/EventLabels.h"
#include "dict/FirstRow.h"

compStdEvt::compStdEvt(long evId, char evKind, float position, EVdictList& dictionary)
    : ev_id(evId)
    , csu(position)
    , entry(findOrRead(dictionary, evId))
    , kind(evKind)
{
}

void compStdEvt::label(char* out) const { eventLabel(out, kind, entry->nameView()); }

compStd::compStd(const std::string& stdName, EVdictList& dictionary)
    : name(stdName)
    , units("CSU")
{
    takeFirstRow("SELECT std_id, creator, created, topcsu, basecsu, units  FROM "
            + sql::table("CMPSTD") + " WHERE name=" + sql::quote(name),
        Fatal::No, [this](const Cursor& row) {
            std_id = row.integer(1);
            takeRow(row, 2);
        });
    loadEvents(dictionary);
}

compStd::compStd(long stdId, EVdictList& dictionary)
    : units("CSU")
{
    takeFirstRow("SELECT name, creator, created, topcsu, basecsu, units FROM "
            + sql::table("CMPSTD") + " WHERE std_id=" + sql::integer(stdId),
        Fatal::No, [this, stdId](const Cursor& row) {
            std_id = stdId;
            name = row.text(1);
            takeRow(row, 2);
        });
    loadEvents(dictionary);
}

void compStd::takeRow(const Cursor& row, short first)
{
    // A column can be read once only and in order.
    creator = row.text(first++);
    created = sql::parsedDate(row.text(first++).c_str());
    topcsu = static_cast<float>(row.number(first++));
    basecsu = static_cast<float>(row.number(first++));
    units = row.text(first);
    descending = topcsu > basecsu;
}

void compStd::loadEvents(EVdictList& dictionary)
{
    events.clear();
    const std::string sql = "SELECT ev_id, ev_type, csu FROM " + sql::table("CMPSTDEV")
        + " WHERE std_id=" + sql::integer(std_id) + " ORDER BY csu" + (descending ? " DESC" : "");
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    while (rows.next()) {
        const long ev_id = rows.integer(1);
        const char kind = rows.letter(2);
        const auto csu = static_cast<float>(rows.number(3));
        events.push_back(std::make_unique<compStdEvt>(ev_id, kind, csu, dictionary));
    }
}

int compStd::nameInUse(long exceptId) const
{
    std::string sql =
        "SELECT std_id FROM " + sql::table("CMPSTD") + " WHERE name=" + sql::quote(name);
    if (exceptId != 0)
        sql += " AND std_id <>" + sql::integer(exceptId);
    switch (takeFirstRow(sql, Fatal::No, [](const Cursor&) {})) {
    case FirstRow::Taken:
        return 1;
    case FirstRow::None:
        return 0;
    default:
        return -1;
    }
}

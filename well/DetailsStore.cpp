// well/DetailsStore.cpp
#include "db/CurrentUser.h"
#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/Preferences.h"
#include "db/Session.h"
#include "taxonomy/Disciplines.h"
#include "taxonomy/TextArgument.h"
#include "well/Sample.h"

#include <memory>

std::array<int, kDisciplines> splitSwitches{1, 1, 1, 1};

namespace {

std::string detailsSql(long samp_id, char disc, std::string_view analyst)
{
    std::string sql = "SELECT picker, source, barren, modified, modifier, weight, coarse, medium, "
                      "fine, notes , proximal, distal FROM "
        + sql::table("SMPDTL") + " WHERE samp_id=" + sql::integer(samp_id)
        + " AND disc_id=" + sql::quoteChar(disc);
    if (!analyst.empty())
        sql += " AND analyst=" + sql::quote(analyst);
    return sql;
}

std::unique_ptr<Smpdtl> readRecord(const Cursor& row)
{
    auto record = std::make_unique<Smpdtl>();
    record->picker = row.text(1);
    record->source = row.text(2);
    record->barren = row.letter(3);
    record->modified = sql::parsedDate(row.text(4).c_str());
    record->modifier = row.text(5);
    record->weight = static_cast<float>(row.number(6));
    record->coarse = static_cast<float>(row.number(7));
    record->medium = static_cast<float>(row.number(8));
    record->fine = static_cast<float>(row.number(9));
    record->notes = row.text(10);
    record->proximal = row.integer(11);
    record->distal = row.integer(12);
    record->inDb = 1;
    return record;
}

} // namespace

void Sample::LoadDetails(char disc, const char* analyst)
{
    const std::string_view key = orEmpty(analyst);
    if (!key.empty() && FindDetails(disc, analyst))
        return;
    Cursor rows(detailsSql(samp_id, disc, key));
    if (!rows) {
        reportFatal(dbErrorText());
        return;
    }
    while (rows.next()) {
        auto record = readRecord(rows);
        record->disc = disc;
        record->analyst = key;
        if (!FindDetails(disc, record->analyst))
            details.push(record.release());
    }
    detailsLoaded[discIndex(disc)] = 1;
}

void Sample::ListAnalysts(char disc, std::vector<std::string>& out) const
{
    std::string sql = "SELECT distinct(analyst) FROM " + sql::table("SMPDTL")
        + " WHERE samp_id=" + sql::integer(samp_id);
    if (disc != 0)
        sql += " AND disc_id=" + sql::quoteChar(disc);
    Cursor rows(sql);
    if (!rows) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    out.clear();
    while (rows.next())
        out.push_back(rows.text(1));
}

void Sample::LoadSplitSwitches()
{
    for (int i = 0; i < kDisciplines; ++i) {
        const std::string key = discLetters[i] + std::string("FSPLIT");
        if (!prefGetInt(currentUserId, key.c_str(), &splitSwitches[i]))
            splitSwitches[i] = 1;
    }
}

float Sample::ScaledCount(
    char disc, const char* analyst, int apply, float reference, int count) const
{
    constexpr float kLeastWeight = 0.0001f;
    const Smpdtl* record = FindDetails(disc, analyst);
    const bool scaled =
        apply && splitSwitches[discIndex(disc)] && record && record->weight >= kLeastWeight;
    return static_cast<float>(count) * (scaled ? reference / record->weight : 1.0f);
}

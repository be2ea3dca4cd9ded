// well/SampleAges.cpp
#include "well/Sample.h"

#include "db/Cursor.h"
#include "db/Literals.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace {

std::string whereSample(const Sample& s)
{
    return " WHERE well_id=" + sql::integer(s.well_id) + " AND samp_id=" + sql::integer(s.samp_id);
}

auto isOf(long interp_id)
{
    return [interp_id](const SrAge* record) { return record->interp_id == interp_id; };
}

/// As the columns stand from column 1 of the current row on.
std::unique_ptr<SrAge> newAge(const Cursor& row)
{
    auto record = std::make_unique<SrAge>();
    short column = 1;
    for (float* value :
        {&record->ratio, &record->age, &record->age_below, &record->ageplus, &record->ageminus})
        *value = static_cast<float>(row.number(column++));
    return record;
}

} // namespace

void Sample::LoadSrAge(long interp_id)
{
    ages.destroyIf([interp_id](const SrAge& record) { return record.interp_id == interp_id; });
    const std::string sql = "SELECT ratio,age,age_below, ageplus,ageminus FROM "
        + sql::table("ZRSSR") + whereSample(*this) + " AND interp_id=" + sql::integer(interp_id);
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::No);
        return;
    }
    std::unique_ptr<SrAge> record = row.next() ? newAge(row) : std::make_unique<SrAge>();
    record->interp_id = interp_id;
    ages.push(record.release());
}

SrAge* Sample::GetSrAge(long interp_id)
{
    const auto found = std::find_if(ages.begin(), ages.end(), isOf(interp_id));
    if (found != ages.end())
        return *found;
    auto* added = new SrAge;
    added->interp_id = interp_id;
    ages.push(added);
    return added;
}

int Sample::HasSrAge(long interp_id) const
{
    return std::any_of(ages.begin(), ages.end(), [interp_id](const SrAge* record) {
        const bool given = std::abs(record->ratio) > 0 || record->age > 0 || record->age_below > 0;
        return record->interp_id == interp_id && given;
    });
}

void Sample::SaveSrAge(long interp_id)
{
    const std::string id = sql::integer(interp_id);
    const std::string none = " AND (interp_id=0 OR interp_id is null)";
    const bool deleted = runOrReport("DELETE FROM " + sql::table("ZRSSR") + whereSample(*this)
            + (interp_id == 0 ? none : " AND interp_id=" + id),
        Fatal::No);
    if (!deleted)
        return;
    const SrAge& record = *GetSrAge(interp_id);
    std::string sql = "INSERT INTO " + sql::table("ZRSSR")
        + " (well_id,samp_id,ratio,age,age_below,ageplus,ageminus,interp_id) VALUES ("
        + sql::integer(well_id) + "," + sql::integer(samp_id);
    for (const float value :
        {record.ratio, record.age, record.age_below, record.ageplus, record.ageminus})
        sql += "," + sql::number(value);
    runOrReport(sql + "," + id + ")", Fatal::No);
}

// dict/Abns.cpp
#include "dict/Abns.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "dict/FirstRow.h"
#include "taxonomy/TextArgument.h"
#include "util/TextUtil.h"

#include <cstdio>
#include <optional>

namespace {

std::string_view trimmed(const char* text) { return trimmedRight(trimmedLeft(orEmpty(text))); }

/// Whether there was a row for `take`.
template <typename Take> bool tookRow(const std::string& sql, Take take)
{
    return takeFirstRow(sql, Fatal::Yes, take, "Error in: ") == FirstRow::Taken;
}

} // namespace

void Abns::addLevel(const char* abr, const char* levelName, int min, long output)
{
    if (count >= kMostLevels) {
        std::fputs("\nMaximum number of abundance levels reached ", stderr);
        return;
    }
    Level& level = levels[static_cast<std::size_t>(count++)];
    level.abr = trimmed(abr);
    level.name = trimmed(levelName);
    level.min = static_cast<short>(min);
    level.output = output != 0 ? static_cast<std::int32_t>(output) : level.min;
}

void Abns::loadByName(const char* schemeName)
{
    const bool found = tookRow("SELECT scheme_id FROM " + sql::table("ABNSCHME")
            + " WHERE name=" + sql::quote(orEmpty(schemeName)),
        [this, schemeName](const Cursor& row) {
            name = schemeName;
            scheme_id = row.integer(1);
        });
    if (!found)
        scheme_id = 0;
    loadLevels();
}

void Abns::loadById(long id)
{
    const bool found = tookRow(
        "SELECT name FROM " + sql::table("ABNSCHME") + " WHERE scheme_id=" + sql::integer(id),
        [this, id](const Cursor& row) {
            name = row.text(1);
            scheme_id = id;
        });
    if (!found)
        scheme_id = 0;
    loadLevels();
}

void Abns::loadLevels()
{
    if (scheme_id == 0)
        return;
    const std::string sql = "SELECT entry_name, abr, min, output_val FROM "
        + sql::table("ABNSCHMBR") + " WHERE scheme_id=" + sql::integer(scheme_id)
        + " ORDER BY entry_no";
    Cursor row(sql);
    if (!row) {
        reportDbFailureAs("Error in: " + sql, Fatal::Yes);
        return;
    }
    for (count = 0; count < kMostLevels && row.next(); ++count) {
        Level& level = levels[static_cast<std::size_t>(count)];
        level.name = trimmedLeft(row.text(1));
        level.abr = trimmedLeft(row.text(2));
        level.min = static_cast<short>(row.integer(3));
        level.output = static_cast<std::int32_t>(row.integer(4));
    }
}

const char* Abns::abrForCount(long occurrences) const
{
    for (int i = count - 1; i > 0; --i) {
        const Level& level = *levelAt(i);
        if (occurrences >= level.min && !level.abr.view().starts_with('+'))
            return level.abr;
    }
    return count > 0 ? levels[0].abr.c_str() : "";
}

long Abns::valueForAbr(const char* abr) const
{
    const Level* level = levelWithAbr(abr);
    if (!level || orEmpty(abr) == "+")
        return 0;
    return level->output != 0 ? level->output : level->min;
}

const char* Abns::nameForAbr(const char* abr) const
{
    const Level* level = levelWithAbr(abr);
    return level && !orEmpty(abr).empty() ? level->name.c_str() : "";
}

const char* Abns::abrForName(const char* levelName) const
{
    for (int i = count - 1; i >= 0; --i) {
        if (levelAt(i)->name == orEmpty(levelName))
            return levelAt(i)->abr;
    }
    return "";
}

int Abns::levelOfAbr(const char* abr) const { return positionOf(levelWithAbr(abr)); }

int Abns::levelOfValue(float value) const
{
    int i = count - 1;
    while (i > 0 && static_cast<float>(levelAt(i)->min) > value)
        --i;
    return i + 1;
}

const char* Abns::abrAt(int i) const
{
    const Level* level = levelAt(i);
    return level ? level->abr.c_str() : "Undefined";
}

const char* Abns::nameAt(int i) const
{
    const Level* level = levelAt(i);
    return level ? level->name.c_str() : "Undefined";
}

const char* Abns::nameOrEmptyAt(int i) const
{
    const Level* level = levelAt(i);
    return level ? level->name.c_str() : "";
}

short Abns::minAt(int i) const
{
    const Level* level = levelAt(i);
    return level ? level->min : short{0};
}

long Abns::outputAt(int i) const
{
    const Level* level = levelAt(i);
    return level ? level->output : 0;
}

const Abns::Level* Abns::levelAt(int i) const
{
    return i >= 0 && i < count ? &levels[static_cast<std::size_t>(i)] : nullptr;
}

/// The highest level with that abbreviation, else the first level; null without levels.
const Abns::Level* Abns::levelWithAbr(const char* abr) const
{
    for (int i = count - 1; i > 0; --i) {
        if (levelAt(i)->abr == orEmpty(abr))
            return levelAt(i);
    }
    return levelAt(0);
}

int Abns::positionOf(const Level* level) const
{
    return level ? static_cast<int>(level - levels.data()) + 1 : 0;
}

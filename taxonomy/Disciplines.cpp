// taxonomy/Disciplines.cpp
#include "taxonomy/Disciplines.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"

namespace {

/// Names in the order of the rows: the letters say which is whose.
struct NameCache {
    struct Entry {
        FixedText<49> name;
        char letter = 0;
    };
    std::array<Entry, kDisciplines> entries;
    bool mustLoad = true;

    /// False after the report of a failed statement.
    bool load()
    {
        mustLoad = false;
        const std::string sql = "SELECT disc_name, disc_id FROM " + sql::table("DISCS");
        Cursor row(sql);
        if (!row) {
            reportDbFailure(sql, Fatal::Yes);
            return false;
        }
        for (std::size_t i = 0; i < entries.size() && row.next(); ++i) {
            entries[i].name = row.text(1);
            entries[i].letter = row.letter(2);
        }
        return true;
    }
};

} // namespace

int discIndex(char letter)
{
    constexpr int kOther = 3;
    for (int number = 0; number < kOther; ++number) {
        if (discLetters[number] == letter)
            return number;
    }
    return kOther;
}

Discs::Discs()
{
    const std::string sql =
        "SELECT disc_id, disc_name, disc_abr, disc_adj FROM " + sql::table("DISCS");
    Cursor row(sql);
    if (!row) {
        reportDbFailure(sql, Fatal::Yes);
        return;
    }
    while (row.next()) {
        const char letter = row.letter(1);
        Entry& entry = entries[static_cast<std::size_t>(discIndex(letter))];
        entry.name = row.text(2);
        entry.abr = row.text(3);
        entry.adj = row.text(4);
        entry.letter = letter;
    }
}

const char* discName(char letter)
{
    static NameCache cache;
    if (cache.mustLoad && !cache.load())
        return nullptr;
    for (const NameCache::Entry& entry : cache.entries) {
        if (entry.letter == letter)
            return entry.name;
    }
    return "Unrecognised ID";
}

// taxonomy/Categories.cpp
#include "taxonomy/Categories.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "taxonomy/TextArgument.h"
#include "taxonomy/TextListCache.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <cstdlib>

namespace {

std::string composeEntry(const Cursor& row)
{
    const std::string mnemonic = row.text(1);
    const std::string entry = mnemonic + ' ' + titleCased(row.text(2));
    return std::string(trimmedRight(entry));
}

std::string_view mnemonicOf(std::string_view entry)
{
    constexpr std::size_t kLongestMnemonic = 15;
    return entry.substr(0, std::min(entry.find(' '), kLongestMnemonic));
}

std::string_view nameBehind(std::string_view entry, std::size_t mnemonic)
{
    entry.remove_prefix(mnemonic);
    return entry.substr(std::min(entry.find_first_not_of(' '), entry.size()));
}

} // namespace

const char* const* categoryList(int reload)
{
    static TextListCache<100, 59> categories;
    if (categories.needsLoad(reload)) {
        const std::string sql =
            "SELECT cat_mnem, cat_name FROM " + sql::table("category") + " ORDER BY cat_mnem";
        if (!categories.load(sql, composeEntry)) {
            reportError(dbErrorText());
            std::exit(0);
        }
    }
    return categories.texts();
}

const char* categoryName(const char* mnemonic)
{
    static ResultText result;
    for (const char* const* entry = categoryList(0); *entry; ++entry) {
        const std::string_view known = mnemonicOf(*entry);
        if (known == orEmpty(mnemonic))
            return result.keep(std::string(nameBehind(*entry, known.size())));
    }
    return result.keep("");
}

char categoryDisc(const char* cat_mnem)
{
    const std::string sql = "SELECT disc_id FROM " + sql::table("CATEGORY")
        + " WHERE cat_mnem=" + sql::quote(orEmpty(cat_mnem));
    Cursor row(sql);
    if (!row)
        reportDbFailure(sql, Fatal::Yes);
    return row && row.next() ? row.letter(1) : ' ';
}

// app/batch/PrefCommand.cpp
#include "app/batch/Command.h"
#include "app/batch/Commands.h"
#include "app/batch/Failure.h"
#include "app/batch/TextTable.h"
#include "db/CurrentUser.h"
#include "db/Cursor.h"
#include "db/Literals.h"
#include "db/Preferences.h"
#include "db/Session.h"
#include "store/Transaction.h"
#include "store/Value.h"

#include <iostream>

namespace {

constexpr std::size_t kLongestKey = 10;
constexpr std::size_t kLongestValue = 299;

struct Preference {
    std::string key;
    std::string value;
};

// Preferences belong to numbers, and number 0 is nobody's in particular.
std::string unknownUser()
{
    if (currentUserAbr.empty() || currentUserId != 0)
        return {};
    return "The database knows no user " + currentUserAbr.str()
        + "; without --user the preferences of nobody in particular are meant.";
}

std::string wrongText(const Preference& preference)
{
    if (preference.key.empty() || preference.key.size() > kLongestKey)
        return "A key has 1 to 10 bytes.";
    return preference.value.size() > kLongestValue ? "A value has at most 299 bytes."
                                                   : unknownUser();
}

int get(const Preference& preference)
{
    const std::string wrong = wrongText(preference);
    if (!wrong.empty())
        return failed(wrong);
    std::string value;
    if (prefGet(currentUserId, preference.key.c_str(), value) == 0)
        return failed("There is no preference " + preference.key + '.');
    std::cout << shownText(value) << '\n';
    return kDone;
}

int put(const Preference& preference)
{
    const std::string wrong = wrongText(preference);
    if (!wrong.empty())
        return failed(wrong);
    Transaction transaction;
    if (prefPut(currentUserId, preference.key.c_str(), preference.value.c_str()) == 0)
        return failed("The preference was not stored.");
    return transaction.commit() ? kDone
                                : failed("The preference was not stored: " + transaction.error());
}

int list()
{
    const std::string wrong = unknownUser();
    if (!wrong.empty())
        return failed(wrong);
    const std::string select = "SELECT pref_key, pref_value FROM " + sql::table("PREF_USER")
        + " WHERE user_id=" + sql::integer(currentUserId) + " ORDER BY pref_key";
    Cursor rows(select);
    if (!rows)
        return failed(select + ": " + dbErrorText());
    TextTable table({{"key"}, {"value"}});
    while (rows.next()) {
        const std::string key = rows.text(1);
        table.add({shownText(key), shownText(rows.text(2))});
    }
    table.write(std::cout);
    return kDone;
}

} // namespace

void addPref(CLI::App& app, BatchOptions* options)
{
    const auto preference = std::make_shared<Preference>();
    CLI::App* pref = addGroup(
        app, "pref", "The preferences that the database keeps for --user (none: nobody's)");
    addCommand(*pref, options, "get", "Show the value of a key", [=] { return get(*preference); })
        ->add_option("KEY", preference->key, "The key, such as TOPPFX")
        ->required();
    CLI::App* putting = addCommand(
        *pref, options, "put", "Store a value under a key", [=] { return put(*preference); });
    putting->add_option("KEY", preference->key, "The key, at most 10 bytes")->required();
    putting->add_option("VALUE", preference->value, "The value, at most 299 bytes")->required();
    addCommand(*pref, options, "list", "List keys and values", list);
}

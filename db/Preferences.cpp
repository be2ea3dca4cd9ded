// db/Preferences.cpp
#include "db/Preferences.h"

#include "db/Cursor.h"
#include "db/ErrorReporter.h"
#include "db/Literals.h"
#include "db/Session.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <charconv>
#include <cstring>
#include <string_view>

namespace {

constexpr std::size_t kLongestKey = 10;
constexpr std::size_t kValueBuffer = 300;

constexpr const char* kReading = "Attempt to select value from PREF_USER over 10 chars: ";
constexpr const char* kWriting = "Attempt to put value into PREF_USER over 10 chars: ";

/// What every operation begins with: whether it may go on.
bool mayUse(const char* key, const char* attempt)
{
    if (fatalError != 0)
        return false;
    if (std::strlen(key) > kLongestKey)
        reportError(attempt + std::string(key));
    return true;
}

int reportFailure(const std::string& statement, const char* introduction)
{
    reportError(statement);
    reportError(introduction + std::string(dbErrorText()));
    return 0;
}

std::string whereSetting(int user, const char* key)
{
    return " WHERE pref_key=" + sql::quote(key) + " AND user_id=" + sql::integer(user);
}

int read(int user, const char* key, std::string& value, const char* introduction)
{
    if (!mayUse(key, kReading))
        return 0;
    const std::string select =
        "SELECT pref_value FROM " + sql::table("PREF_USER") + whereSetting(user, key);
    Cursor rows(select);
    if (!rows)
        return reportFailure(select, introduction);
    if (!rows.next())
        return 0;
    value = rows.text(1);
    return 1;
}

int write(const std::string& statement, const char* introduction)
{
    return runStatement(statement) ? 1 : reportFailure(statement, introduction);
}

// Leaves `*value` when the text begins with no number.
template <typename T> void takeNumber(std::string_view text, T* value)
{
    text = trimmedLeft(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    std::from_chars(text.data(), text.data() + text.size(), *value);
}

template <typename T> int readNumber(int user, const char* key, T* value)
{
    char text[kValueBuffer];
    if (!mayUse(key, kReading) || !prefGet(user, key, text) || !*text)
        return 0;
    takeNumber(text, value);
    return 1;
}

int writeNumber(int user, const char* key, const std::string& text)
{
    return mayUse(key, kWriting) ? prefPut(user, key, text.c_str()) : 0;
}

} // namespace

int prefGet(int user, const char* key, char* value)
{
    return prefGet(user, key, value, kValueBuffer);
}

int prefGet(int user, const char* key, char* value, std::size_t size)
{
    std::string whole;
    if (!read(user, key, whole, "Error selecting from PREF_USER table: "))
        return 0;
    const std::string_view kept = utf8Prefix(whole, size - 1);
    kept.copy(value, kept.size());
    value[kept.size()] = '\0';
    return 1;
}

int prefGet(int user, const char* key, std::string& value) { return read(user, key, value, ""); }

int prefPut(int user, const char* key, const char* value)
{
    if (!mayUse(key, kWriting))
        return 0;
    const std::string literal = sql::quote(value ? value : "");
    char present[kValueBuffer];
    if (prefGet(user, key, present))
        return write("UPDATE " + sql::table("PREF_USER") + " SET pref_value=" + literal
                + whereSetting(user, key),
            "Error updating PREF_USER table: ");
    return write("INSERT INTO " + sql::table("PREF_USER")
            + " (user_id, pref_key, pref_value ) VALUES (" + sql::integer(user) + ","
            + sql::quote(key) + "," + literal + ")",
        "Error inserting into PREF_USER table: ");
}

int prefGetInt(int user, const char* key, int* value) { return readNumber(user, key, value); }

int prefPutInt(int user, const char* key, int value)
{
    return writeNumber(user, key, std::to_string(value));
}

int prefGetFloat(int user, const char* key, float* value) { return readNumber(user, key, value); }

int prefPutFloat(int user, const char* key, float value)
{
    return writeNumber(user, key, fixedString(value, 6));
}

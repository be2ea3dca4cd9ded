// db/Literals.cpp
#include "db/Literals.h"

#include "db/Cursor.h"
#include "db/Dialect.h"
#include "db/ErrorReporter.h"
#include "db/Session.h"
#include "util/FixedText.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

namespace {

constexpr const char* kNull = "NULL";
// Literals count decimals as if no number had more digits than this before its point; the larger
// ones carry zero decimals for the rest.
constexpr int kCountedIntegerDigits = 6;

// The shortest digits that read back to the number, and how many of them stand before the point;
// zero or fewer when the number begins with zeros behind it.
struct Digits {
    int count;
    int beforePoint;
};

Digits shortestDigits(double x)
{
    std::array<char, 32> buffer; // "-d.ddddddddddddddddde-308"
    const auto written = std::to_chars(
        buffer.data(), buffer.data() + buffer.size(), x, std::chars_format::scientific);
    const std::string_view text(buffer.data(), written.ptr);
    const std::size_t mark = text.find('e');
    const auto digits =
        std::ranges::count_if(text.substr(0, mark), [](char c) { return c >= '0' && c <= '9'; });
    const std::string_view exponentText = text.substr(mark + (text[mark + 1] == '+' ? 2 : 1));
    int exponent = 0;
    std::from_chars(exponentText.begin(), exponentText.end(), exponent);
    return {static_cast<int>(digits), exponent + 1};
}

std::string fixedNotation(double x, int decimals)
{
    // Sign, up to 309 digits, point; decimals.
    std::string text(312 + static_cast<std::size_t>(decimals), '\0');
    const auto result = std::to_chars(
        text.data(), text.data() + text.size(), x, std::chars_format::fixed, decimals);
    text.resize(static_cast<std::size_t>(result.ptr - text.data()));
    return text;
}

bool readsBackTo(double x, const std::string& text)
{
    double read = 0;
    std::from_chars(text.data(), text.data() + text.size(), read);
    return read == x;
}

// Reads a number and moves `text` behind it, blanks before it included. 0, which no part of a date
// is, when there is none or it has too many digits.
int takeInteger(std::string_view& text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    if (text.starts_with('+'))
        text.remove_prefix(1);
    int value = 0;
    const char* const end = std::from_chars(text.data(), text.data() + text.size(), value).ptr;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return value;
}

bool takeDash(std::string_view& text)
{
    if (!text.starts_with('-'))
        return false;
    text.remove_prefix(1);
    return true;
}

const char* orEmpty(const char* text) { return text ? text : ""; }

} // namespace

namespace sql {

std::string quote(std::string_view text)
{
    if (text.empty())
        return kNull;
    std::string literal = "'";
    literal += text;
    std::replace(literal.begin() + 1, literal.end(), '\'', '`');
    return literal + "'";
}

std::string quoteChar(char c) { return c ? std::string{'\'', c, '\''} : kNull; }

std::string integer(long n) { return std::to_string(n); }

std::string number(double x)
{
    if (!std::isfinite(x))
        return kNull;             // no literal has such a value
    const double value = x + 0.0; // a negated zero has no literal of its own
    const auto [digits, beforePoint] = shortestDigits(value);
    int decimals = std::max(digits, beforePoint) - std::min(beforePoint, kCountedIntegerDigits);
    std::string text = fixedNotation(value, decimals);
    // Just below a power of two the neighbours lie closer, and the nearest text of that many
    // digits can belong to one of them.
    while (!readsBackTo(value, text))
        text = fixedNotation(value, ++decimals);
    return text;
}

std::string table(const char* name) { return ownerPrefix.str() + orEmpty(name); }

std::string date(Date d)
{
    if (dialectFacts().compactDates)
        return d.isValid() ? "'" + d.compactText() + "'" : kNull;
    return d.isValid() ? "#" + d.isoText() + "#" : "";
}

Date parsedDate(const char* text)
{
    std::string_view rest = orEmpty(text);
    const int year = takeInteger(rest);
    if (!takeDash(rest))
        return {};
    const int month = takeInteger(rest);
    if (!takeDash(rest))
        return {};
    return Date(takeInteger(rest), month, year);
}

} // namespace sql

const char* sqlQuote(const char* text)
{
    static ResultText result;
    return result.keep(sql::quote(orEmpty(text)));
}

const char* sqlQuoteChar(char c)
{
    static ResultText result;
    return result.keep(sql::quoteChar(c));
}

const char* sqlLong(long n)
{
    static ResultText result;
    return result.keep(sql::integer(n));
}

const char* sqlInt(int n)
{
    static ResultText result;
    return result.keep(sql::integer(n));
}

const char* sqlShort(short n)
{
    static ResultText result;
    return result.keep(sql::integer(n));
}

const char* sqlNumber(double x)
{
    static ResultText result;
    return result.keep(sql::number(x));
}

const char* sqlTable(const char* table)
{
    static ResultText result;
    return result.keep(sql::table(table));
}

const char* sqlDiscTable(char discipline, const char* table)
{
    static ResultText result;
    return result.keep(ownerPrefix.str() + discipline + orEmpty(table));
}

const char* sqlDate(Date d)
{
    static ResultText result;
    return result.keep(sql::date(d));
}

Date* parseDate(Date* out, const char* text)
{
    *out = sql::parsedDate(text);
    return out;
}

long nextId(const char* column, const char* table)
{
    const std::string select =
        std::string("SELECT max(") + column + ") as conval FROM " + sql::table(table);
    Cursor rows(select);
    if (!rows)
        reportDbFailure(select, Fatal::No);
    return rows.next() ? rows.integer(1) + 1 : 1;
}

int isNarrowingFilter(char* text)
{
    trimRight(text);
    return std::strcmp(text, "%") == 0 ? 0 : 1;
}

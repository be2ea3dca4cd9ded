// interp/LocaleDate.cpp
#include "interp/LocaleDate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <ctime>
#include <iomanip>
#include <locale>
#include <sstream>

namespace {

constexpr std::string_view kDigits = "0123456789";

/// The three numbers of `text`, each 0 where there is none.
std::array<int, 3> numbersOf(std::string_view text)
{
    std::array<int, 3> numbers{};
    for (int& number : numbers) {
        text.remove_prefix(std::min(text.find_first_of(kDigits), text.size()));
        const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
        text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
    }
    return numbers;
}

/// As the locale writes a day of which all three numbers differ: its facet for reading dates does
/// not tell.
std::time_base::dateorder localeOrder()
{
    std::tm day{};
    day.tm_mday = 22;
    day.tm_mon = 11 - 1;
    day.tm_year = 2033 - 1900;
    std::ostringstream text;
    text.imbue(std::locale());
    text << std::put_time(&day, "%x");
    const std::size_t dayAt = text.str().find("22"), monthAt = text.str().find("11");
    if (text.str().find("33") < std::min(dayAt, monthAt))
        return std::time_base::ymd;
    return monthAt < dayAt ? std::time_base::mdy : std::time_base::dmy;
}

Date dayOf(int day, int month, int year)
{
    return Date(day, month, year > 0 && year < 100 ? year + 1900 : year);
}

} // namespace

Date dateInLocale(std::string_view text)
{
    const auto [a, b, c] = numbersOf(text);
    const std::time_base::dateorder order = localeOrder();
    if (a > 31 || order == std::time_base::ymd)
        return dayOf(c, b, a);
    return order == std::time_base::mdy ? dayOf(b, a, c) : dayOf(a, b, c);
}

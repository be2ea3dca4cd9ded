// platform/desktopdb/Conversion.cpp
// From the engine's values into the application's buffers.
#include "platform/desktopdb/Conversion.h"

#include "platform/desktopdb/AsciiText.h"
#include "platform/desktopdb/DateForms.h"
#include "platform/desktopdb/WideText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <ctime>
#include <limits>
#include <optional>
#include <utility>

namespace desktopdb {

namespace {
struct Number {
    bool isInteger = true;
    std::int64_t integer = 0;
    double real = 0;
};

std::optional<Number> numberOfText(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+'))
        text.remove_prefix(1);
    const char* end = text.data() + text.size();
    Number number;
    if (std::from_chars(text.data(), end, number.integer).ptr == end && !text.empty())
        return number;
    number.isInteger = false;
    const auto read = std::from_chars(text.data(), end, number.real);
    if (read.ptr != end || read.ec != std::errc())
        return std::nullopt;
    return number;
}

std::optional<Number> numberOf(const Cell& cell)
{
    switch (cell.kind) {
    case ValueKind::Integer:
        return Number{true, cell.integer, 0};
    case ValueKind::Real:
        return Number{false, 0, cell.real};
    case ValueKind::Text:
        return numberOfText(cell.bytes);
    default:
        return std::nullopt;
    }
}

std::string shownOf(const Cell& cell)
{
    constexpr size_t kShown = 40;
    return cell.kind == ValueKind::Text ? "'" + std::string(cell.bytes.substr(0, kShown)) + "'"
                                        : "the value";
}

template <class T> SQLRETURN writeFixed(const T& value, const Target& target)
{
    if (target.buffer)
        std::memcpy(target.buffer, &value, sizeof value);
    if (target.indicator)
        *target.indicator = sizeof value;
    return SQL_SUCCESS;
}

SQLRETURN outOfRange(const Cell& cell, Diagnostics& diagnostics)
{
    return diagnostics.fail("22003", shownOf(cell) + " is out of the range of the number type");
}

template <class T>
SQLRETURN writeWhole(
    std::int64_t n, const Cell& cell, const Target& target, Diagnostics& diagnostics)
{
    return std::in_range<T>(n) ? writeFixed(static_cast<T>(n), target)
                               : outOfRange(cell, diagnostics);
}

template <class T>
SQLRETURN writeInteger(const Cell& cell, const Target& target, Diagnostics& diagnostics)
{
    if (cell.kind == ValueKind::Integer)
        return writeWhole<T>(cell.integer, cell, target, diagnostics);
    const auto number = numberOf(cell);
    if (!number)
        return diagnostics.fail("22018", shownOf(cell) + " is no number");
    if (number->isInteger)
        return writeWhole<T>(number->integer, cell, target, diagnostics);
    // Both borders are exact in double, the upper one as the first value that is too much.
    const double whole = std::trunc(number->real);
    const double above = std::ldexp(1.0, std::numeric_limits<T>::digits);
    if (!(whole >= static_cast<double>(std::numeric_limits<T>::min()) && whole < above))
        return outOfRange(cell, diagnostics);
    writeFixed(static_cast<T>(whole), target);
    return whole == number->real
        ? SQL_SUCCESS
        : diagnostics.warn("01S07", "the fraction of the number is cut off");
}

SQLRETURN writeBit(const Cell& cell, const Target& target, Diagnostics& diagnostics)
{
    const auto number = numberOf(cell);
    if (!number)
        return diagnostics.fail("22018", shownOf(cell) + " is no number");
    const double value = number->isInteger ? static_cast<double>(number->integer) : number->real;
    if (!(value >= 0 && value < 2))
        return outOfRange(cell, diagnostics);
    writeFixed(static_cast<unsigned char>(value >= 1), target);
    return value == 0 || value == 1
        ? SQL_SUCCESS
        : diagnostics.warn("01S07", "the fraction of the number is cut off");
}

template <class T>
SQLRETURN writeReal(const Cell& cell, const Target& target, Diagnostics& diagnostics)
{
    const auto number = numberOf(cell);
    if (!number)
        return diagnostics.fail("22018", shownOf(cell) + " is no number");
    const double value = number->isInteger ? static_cast<double>(number->integer) : number->real;
    if (std::isfinite(value) && std::abs(value) > std::numeric_limits<T>::max())
        return outOfRange(cell, diagnostics);
    return writeFixed(static_cast<T>(value), target);
}

SQL_DATE_STRUCT odbcDate(const CalendarDate& date)
{
    return {static_cast<SQLSMALLINT>(date.year), static_cast<SQLUSMALLINT>(date.month),
        static_cast<SQLUSMALLINT>(date.day)};
}

SQL_TIME_STRUCT odbcTime(const ClockTime& time)
{
    return {static_cast<SQLUSMALLINT>(time.hour), static_cast<SQLUSMALLINT>(time.minute),
        static_cast<SQLUSMALLINT>(time.second)};
}

SQLRETURN noDate(const Cell& cell, Diagnostics& diagnostics)
{
    return diagnostics.fail("22018", shownOf(cell) + " is no date or time");
}

SQLRETURN writeDate(const Cell& cell, const Target& target, Diagnostics& diagnostics)
{
    const auto moment = parseDateTime(trimmed(cell.bytes));
    if (!moment)
        return noDate(cell, diagnostics);
    writeFixed(odbcDate(moment->date), target);
    const ClockTime& t = moment->time;
    return t.hour || t.minute || t.second || t.nanoseconds
        ? diagnostics.warn("01S07", "the time behind the date is cut off")
        : SQL_SUCCESS;
}

SQLRETURN writeTime(const Cell& cell, const Target& target, Diagnostics& diagnostics)
{
    const auto moment = parseDateTime(trimmed(cell.bytes));
    const auto time = moment ? std::optional(moment->time) : parseTime(trimmed(cell.bytes));
    if (!time)
        return noDate(cell, diagnostics);
    writeFixed(odbcTime(*time), target);
    return time->nanoseconds ? diagnostics.warn("01S07", "parts of a second are cut off")
                             : SQL_SUCCESS;
}

// A bare time belongs to today, as ODBC says.
CalendarDate today()
{
    const std::time_t now = std::time(nullptr);
    std::tm parts{};
    localtime_r(&now, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday};
}

SQLRETURN writeTimestamp(const Cell& cell, const Target& target, Diagnostics& diagnostics)
{
    auto moment = parseDateTime(trimmed(cell.bytes));
    if (!moment) {
        if (const auto time = parseTime(trimmed(cell.bytes)))
            moment = DateTime{today(), *time, true};
    }
    if (!moment)
        return noDate(cell, diagnostics);
    const SQL_DATE_STRUCT d = odbcDate(moment->date);
    const SQL_TIME_STRUCT t = odbcTime(moment->time);
    return writeFixed(SQL_TIMESTAMP_STRUCT{d.year, d.month, d.day, t.hour, t.minute, t.second,
                          moment->time.nanoseconds},
        target);
}

/// Hands out the next piece of `bytes`, in units of `unit` bytes and with that many zero bytes
/// behind it when `terminated`.
SQLRETURN writePiece(std::string_view bytes, size_t unit, bool terminated, const Target& target,
    Progress& progress, Diagnostics& diagnostics)
{
    progress.offset = std::min(progress.offset, bytes.size());
    const std::string_view left = bytes.substr(progress.offset);
    if (target.indicator)
        *target.indicator = static_cast<SQLLEN>(left.size());
    if (target.capacity < 0)
        return diagnostics.fail("HY090", "the buffer's length is negative");
    const size_t ending = terminated ? unit : 0;
    const size_t room = static_cast<size_t>(target.capacity);
    const bool noRoom = !target.buffer || room < ending;
    const size_t taken = noRoom ? 0 : std::min(left.size(), (room - ending) / unit * unit);
    if (!noRoom) {
        auto* out = static_cast<char*>(target.buffer);
        left.copy(out, taken);
        std::memset(out + taken, 0, ending);
    }
    progress.offset += taken;
    progress.partial = taken < left.size();
    return progress.partial || noRoom
        ? diagnostics.warn("01004", "the text is longer than the buffer")
        : SQL_SUCCESS;
}

std::string hexOf(std::string_view bytes)
{
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string hex;
    hex.reserve(bytes.size() * 2);
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 15];
    }
    return hex;
}

/// A cell as text; keeps what had to be composed.
class CellText {
public:
    explicit CellText(const Cell& cell)
    {
        switch (cell.kind) {
        case ValueKind::Integer:
            text_ = {short_, std::to_chars(short_, std::end(short_), cell.integer).ptr};
            break;
        case ValueKind::Real:
            text_ = realText(cell.real, short_);
            break;
        case ValueKind::Blob:
            text_ = long_ = hexOf(cell.bytes);
            break;
        default:
            text_ = cell.bytes;
        }
    }
    std::string_view text() const { return text_; }

private:
    char short_[40];
    std::string long_;
    std::string_view text_;
};

SQLRETURN writeWide(
    std::string_view text, const Target& target, Progress& progress, Diagnostics& diagnostics)
{
    const std::u16string wide = utf16Of(text);
    const std::string_view bytes(
        reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(char16_t));
    return writePiece(bytes, sizeof(char16_t), true, target, progress, diagnostics);
}

// Numbers as bytes are their machine form.
SQLRETURN writeBinary(
    const Cell& cell, const Target& target, Progress& progress, Diagnostics& diagnostics)
{
    std::string_view bytes = cell.bytes;
    if (cell.kind == ValueKind::Integer)
        bytes = {reinterpret_cast<const char*>(&cell.integer), sizeof cell.integer};
    else if (cell.kind == ValueKind::Real)
        bytes = {reinterpret_cast<const char*>(&cell.real), sizeof cell.real};
    return writePiece(bytes, 1, false, target, progress, diagnostics);
}

SQLRETURN writeNull(const Target& target, Diagnostics& diagnostics)
{
    if (!target.indicator)
        return diagnostics.fail("22002", "the value is NULL and there is no indicator for it");
    *target.indicator = SQL_NULL_DATA;
    return SQL_SUCCESS;
}
} // namespace

SQLSMALLINT defaultCType(SQLSMALLINT sqlType)
{
    switch (sqlType) {
    case SQL_INTEGER:
        return SQL_C_SLONG;
    case SQL_SMALLINT:
        return SQL_C_SSHORT;
    case SQL_TINYINT:
        return SQL_C_STINYINT;
    case SQL_BIGINT:
        return SQL_C_SBIGINT;
    case SQL_BIT:
        return SQL_C_BIT;
    case SQL_DOUBLE:
    case SQL_FLOAT:
        return SQL_C_DOUBLE;
    case SQL_REAL:
        return SQL_C_FLOAT;
    case SQL_DATE:
    case SQL_TYPE_DATE:
        return SQL_C_TYPE_DATE;
    case SQL_TIME:
    case SQL_TYPE_TIME:
        return SQL_C_TYPE_TIME;
    case SQL_TIMESTAMP:
    case SQL_TYPE_TIMESTAMP:
        return SQL_C_TYPE_TIMESTAMP;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return SQL_C_BINARY;
    case SQL_WCHAR:
    case SQL_WVARCHAR:
    case SQL_WLONGVARCHAR:
        return SQL_C_WCHAR;
    default:
        return SQL_C_CHAR;
    }
}

SQLRETURN deliver(
    const Cell& cell, const Target& target, Progress& progress, Diagnostics& diagnostics)
{
    if (cell.kind == ValueKind::Null)
        return writeNull(target, diagnostics);
    switch (target.cType) {
    case SQL_C_CHAR:
        if (cell.kind == ValueKind::Text)
            return writePiece(cell.bytes, 1, true, target, progress, diagnostics);
        return writePiece(CellText(cell).text(), 1, true, target, progress, diagnostics);
    case SQL_C_WCHAR:
        return writeWide(CellText(cell).text(), target, progress, diagnostics);
    case SQL_C_BINARY:
        return writeBinary(cell, target, progress, diagnostics);
    case SQL_C_LONG:
    case SQL_C_SLONG:
        return writeInteger<SQLINTEGER>(cell, target, diagnostics);
    case SQL_C_ULONG:
        return writeInteger<SQLUINTEGER>(cell, target, diagnostics);
    case SQL_C_SHORT:
    case SQL_C_SSHORT:
        return writeInteger<SQLSMALLINT>(cell, target, diagnostics);
    case SQL_C_USHORT:
        return writeInteger<SQLUSMALLINT>(cell, target, diagnostics);
    case SQL_C_TINYINT:
    case SQL_C_STINYINT:
        return writeInteger<signed char>(cell, target, diagnostics);
    case SQL_C_UTINYINT:
        return writeInteger<unsigned char>(cell, target, diagnostics);
    case SQL_C_SBIGINT:
        return writeInteger<std::int64_t>(cell, target, diagnostics);
    case SQL_C_UBIGINT:
        return writeInteger<std::uint64_t>(cell, target, diagnostics);
    case SQL_C_BIT:
        return writeBit(cell, target, diagnostics);
    case SQL_C_DOUBLE:
        return writeReal<double>(cell, target, diagnostics);
    case SQL_C_FLOAT:
        return writeReal<float>(cell, target, diagnostics);
    case SQL_C_DATE:
    case SQL_C_TYPE_DATE:
        return writeDate(cell, target, diagnostics);
    case SQL_C_TIME:
    case SQL_C_TYPE_TIME:
        return writeTime(cell, target, diagnostics);
    case SQL_C_TIMESTAMP:
    case SQL_C_TYPE_TIMESTAMP:
        return writeTimestamp(cell, target, diagnostics);
    default:
        return diagnostics.fail(
            "HY003", "C type " + std::to_string(target.cType) + " is not known");
    }
}

std::string_view realText(double x, char (&buffer)[40])
{
    // Fixed notation as far as doubles are exact to the unit, as people write numbers.
    const double size = std::abs(x);
    const bool fixed = size == 0 || (size >= 1e-5 && size < 1e15);
    const auto written = std::to_chars(
        buffer, std::end(buffer), x, fixed ? std::chars_format::fixed : std::chars_format::general);
    return {buffer, written.ptr};
}

} // namespace desktopdb

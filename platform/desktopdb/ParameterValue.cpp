// platform/desktopdb/ParameterValue.cpp
// From the application's bound values into the engine's.
#include "platform/desktopdb/Conversion.h"
#include "platform/desktopdb/DateForms.h"
#include "platform/desktopdb/WideText.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <utility>

namespace desktopdb {

namespace {
template <class T> T readAs(const void* buffer)
{
    T value;
    std::memcpy(&value, buffer, sizeof value);
    return value;
}

template <class T> Value readInteger(const void* buffer)
{
    return Value::ofInteger(static_cast<std::int64_t>(readAs<T>(buffer)));
}

// Values above the signed range would turn negative.
Value readUnsignedBig(const void* buffer)
{
    const auto n = readAs<std::uint64_t>(buffer);
    return std::in_range<std::int64_t>(n) ? Value::ofInteger(static_cast<std::int64_t>(n))
                                          : Value::ofReal(static_cast<double>(n));
}

std::string timeText(int hour, int minute, int second)
{
    char text[40];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", hour, minute, second);
    return text;
}

Value readDate(const void* buffer)
{
    const auto d = readAs<SQL_DATE_STRUCT>(buffer);
    return Value::ofText(isoText({d.year, d.month, d.day}));
}

Value readTime(const void* buffer)
{
    const auto t = readAs<SQL_TIME_STRUCT>(buffer);
    return Value::ofText(timeText(t.hour, t.minute, t.second));
}

// A date column takes the day alone.
Value readTimestamp(const void* buffer, SQLSMALLINT sqlType)
{
    const auto t = readAs<SQL_TIMESTAMP_STRUCT>(buffer);
    std::string text = isoText({t.year, t.month, t.day});
    if (sqlType == SQL_DATE || sqlType == SQL_TYPE_DATE)
        return Value::ofText(std::move(text));
    text += ' ' + timeText(t.hour, t.minute, t.second);
    if (t.fraction) {
        char fraction[20];
        std::snprintf(fraction, sizeof fraction, ".%09u", static_cast<unsigned>(t.fraction));
        text += fraction;
        text.erase(text.find_last_not_of('0') + 1);
    }
    return Value::ofText(std::move(text));
}

std::string_view bytesOf(const Source& source)
{
    const auto* text = static_cast<const char*>(source.buffer);
    return source.length == SQL_NTS ? std::string_view(text)
                                    : std::string_view(text, static_cast<size_t>(source.length));
}

std::u16string wideOf(const Source& source)
{
    const auto* bytes = static_cast<const char*>(source.buffer);
    size_t units = static_cast<size_t>(source.length) / sizeof(char16_t);
    if (source.length == SQL_NTS)
        for (units = 0; readAs<char16_t>(bytes + units * sizeof(char16_t)); ++units) {}
    std::u16string wide(units, u'\0');
    std::memcpy(wide.data(), bytes, units * sizeof(char16_t));
    return wide;
}

// A number sent as text is a number: an expression compares it as one.
Value textValue(std::string text, SQLSMALLINT sqlType)
{
    if (!isNumberType(sqlType))
        return Value::ofText(std::move(text));
    Value value = Value::ofInteger(0);
    const char* end = text.data() + text.size();
    if (std::from_chars(text.data(), end, value.integer).ptr == end && !text.empty())
        return value;
    const auto read = std::from_chars(text.data(), end, value.real);
    if (read.ptr == end && read.ec == std::errc() && !text.empty())
        return Value::ofReal(value.real);
    return Value::ofText(std::move(text));
}

Value binaryValue(std::string_view bytes, SQLSMALLINT sqlType)
{
    return isTextType(sqlType) ? Value::ofText(std::string(bytes))
                               : Value::ofBlob(std::string(bytes));
}
} // namespace

SQLLEN fixedSize(SQLSMALLINT cType)
{
    switch (cType) {
    case SQL_C_LONG:
    case SQL_C_SLONG:
    case SQL_C_ULONG:
    case SQL_C_FLOAT:
        return 4;
    case SQL_C_SHORT:
    case SQL_C_SSHORT:
    case SQL_C_USHORT:
        return 2;
    case SQL_C_TINYINT:
    case SQL_C_STINYINT:
    case SQL_C_UTINYINT:
    case SQL_C_BIT:
        return 1;
    case SQL_C_SBIGINT:
    case SQL_C_UBIGINT:
    case SQL_C_DOUBLE:
        return 8;
    case SQL_C_DATE:
    case SQL_C_TYPE_DATE:
        return sizeof(SQL_DATE_STRUCT);
    case SQL_C_TIME:
    case SQL_C_TYPE_TIME:
        return sizeof(SQL_TIME_STRUCT);
    case SQL_C_TIMESTAMP:
    case SQL_C_TYPE_TIMESTAMP:
        return sizeof(SQL_TIMESTAMP_STRUCT);
    default:
        return 0;
    }
}

bool readSource(const Source& source, Value& value, Failure& failure)
{
    if (source.length == SQL_NULL_DATA) {
        value = {};
        return true;
    }
    if (!source.buffer) {
        failure = {"HY009", "a parameter has neither a value nor a NULL indicator"};
        return false;
    }
    if (fixedSize(source.cType) == 0 && source.length < 0 && source.length != SQL_NTS) {
        failure = {"HY090", "the length of a parameter is negative"};
        return false;
    }
    switch (source.cType) {
    case SQL_C_CHAR:
        value = textValue(std::string(bytesOf(source)), source.sqlType);
        return true;
    case SQL_C_WCHAR:
        value = textValue(utf8Of(wideOf(source)), source.sqlType);
        return true;
    case SQL_C_BINARY:
        value = binaryValue(bytesOf(source), source.sqlType);
        return true;
    case SQL_C_LONG:
    case SQL_C_SLONG:
        value = readInteger<SQLINTEGER>(source.buffer);
        return true;
    case SQL_C_ULONG:
        value = readInteger<SQLUINTEGER>(source.buffer);
        return true;
    case SQL_C_SHORT:
    case SQL_C_SSHORT:
        value = readInteger<SQLSMALLINT>(source.buffer);
        return true;
    case SQL_C_USHORT:
        value = readInteger<SQLUSMALLINT>(source.buffer);
        return true;
    case SQL_C_TINYINT:
    case SQL_C_STINYINT:
        value = readInteger<signed char>(source.buffer);
        return true;
    case SQL_C_UTINYINT:
    case SQL_C_BIT:
        value = readInteger<unsigned char>(source.buffer);
        return true;
    case SQL_C_SBIGINT:
        value = readInteger<std::int64_t>(source.buffer);
        return true;
    case SQL_C_UBIGINT:
        value = readUnsignedBig(source.buffer);
        return true;
    case SQL_C_DOUBLE:
        value = Value::ofReal(readAs<double>(source.buffer));
        return true;
    case SQL_C_FLOAT:
        value = Value::ofReal(static_cast<double>(readAs<float>(source.buffer)));
        return true;
    case SQL_C_DATE:
    case SQL_C_TYPE_DATE:
        value = readDate(source.buffer);
        return true;
    case SQL_C_TIME:
    case SQL_C_TYPE_TIME:
        value = readTime(source.buffer);
        return true;
    case SQL_C_TIMESTAMP:
    case SQL_C_TYPE_TIMESTAMP:
        value = readTimestamp(source.buffer, source.sqlType);
        return true;
    default:
        failure = {"HY003", "C type " + std::to_string(source.cType) + " is not known"};
        return false;
    }
}

} // namespace desktopdb

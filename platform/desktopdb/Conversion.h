// platform/desktopdb/Conversion.h
#pragma once

#include "platform/desktopdb/ColumnType.h"
#include "platform/desktopdb/Diagnostics.h"
#include "platform/desktopdb/Value.h"

namespace desktopdb {

/// Where a value goes: a buffer of the application's.
struct Target {
    SQLSMALLINT cType;
    void* buffer;      ///< may be null: only the length is asked for
    SQLLEN capacity;   ///< bytes; matters for text and bytes only
    SQLLEN* indicator; ///< length or SQL_NULL_DATA; may be null
};

/// How much of a long value has been handed out already.
struct Progress {
    size_t offset = 0;    ///< bytes in the target's form
    bool partial = false; ///< the last piece was not the end
};

/// The C type that SQL_C_DEFAULT stands for.
SQLSMALLINT defaultCType(SQLSMALLINT sqlType);

/// Hands `cell` out, from `progress` on, and moves `progress` forward. A piece that does not fit
/// is SQL_SUCCESS_WITH_INFO with 01004 and the length of all that was left; nothing is cut
/// silently. Numbers, dates and times are written whole or not at all.
SQLRETURN deliver(
    const Cell& cell, const Target& target, Progress& progress, Diagnostics& diagnostics);

/// A value of the application's, as it was bound.
struct Source {
    SQLSMALLINT cType;
    SQLSMALLINT sqlType;
    const void* buffer;
    SQLLEN length; ///< bytes, SQL_NTS or SQL_NULL_DATA
};

/// Reads a bound value. False with `failure` set when the C type is not known or the value is
/// not one of its SQL type.
bool readSource(const Source& source, Value& value, Failure& failure);

/// The bytes of a value of `cType`; 0 for text and bytes, whose length varies.
SQLLEN fixedSize(SQLSMALLINT cType);

/// The shortest decimal text that reads back as `x`; "100" rather than "100.0".
std::string_view realText(double x, char (&buffer)[40]);

} // namespace desktopdb

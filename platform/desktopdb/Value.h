// platform/desktopdb/Value.h
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace desktopdb {

enum class ValueKind { Null, Integer, Real, Text, Blob };

/// One value as the engine holds it. Points only: the bytes belong to whoever handed the cell out
/// and live until its next step, or, for a bound cell, as long as the binding.
struct Cell {
    ValueKind kind = ValueKind::Null;
    std::int64_t integer = 0;
    double real = 0;
    std::string_view bytes{};

    static Cell ofInteger(std::int64_t n) { return {ValueKind::Integer, n, 0, {}}; }
    static Cell ofReal(double x) { return {ValueKind::Real, 0, x, {}}; }
    static Cell ofText(std::string_view t) { return {ValueKind::Text, 0, 0, t}; }
    static Cell ofBlob(std::string_view b) { return {ValueKind::Blob, 0, 0, b}; }
};

/// A value with bytes of its own.
struct Value {
    ValueKind kind = ValueKind::Null;
    std::int64_t integer = 0;
    double real = 0;
    std::string bytes{};

    Cell cell() const { return {kind, integer, real, bytes}; }
    static Value ofInteger(std::int64_t n) { return {ValueKind::Integer, n, 0, {}}; }
    static Value ofReal(double x) { return {ValueKind::Real, 0, x, {}}; }
    static Value ofText(std::string t) { return {ValueKind::Text, 0, 0, std::move(t)}; }
    static Value ofBlob(std::string b) { return {ValueKind::Blob, 0, 0, std::move(b)}; }
};

} // namespace desktopdb

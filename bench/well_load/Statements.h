// bench/well_load/Statements.h
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// A statement of the loaders, and how each of its columns is read: 'l' whole number, 'd' number,
/// 's' text, 'c' first character, '-' not at all.
struct LoadStatement {
    std::string sql;
    std::string_view columns;
};

/// All statements that a whole load of a generated well runs, in their order.
std::vector<LoadStatement> loadStatements(long well);

/// What reading does with a value when only time is measured: as good as nothing, so that the
/// reading itself is not left out.
class TouchedValues {
public:
    void integer(long n) { sum_ += static_cast<std::uint64_t>(n); }
    void number(double x) { sum_ += x > 0; }
    void text(std::string_view t) { sum_ += t.size(); }
    void letter(std::string_view t) { sum_ += t.empty() ? 0u : static_cast<unsigned char>(t[0]); }
    void endRow() {}
    std::uint64_t sum() const { return sum_; }

private:
    std::uint64_t sum_ = 0;
};

/// The hash of all fields of all rows, in whatever order the rows come. Numbers count in single
/// precision, as objects keep them.
class HashedValues {
public:
    void integer(long n) { add(&n, sizeof n); }
    void number(double x)
    {
        const auto single = static_cast<float>(x);
        add(&single, sizeof single);
    }
    void text(std::string_view t)
    {
        integer(static_cast<long>(t.size()));
        add(t.data(), t.size());
    }
    void letter(char c) { add(&c, 1); }
    void letter(std::string_view t) { letter(t.empty() ? '\0' : t.front()); }
    void endRow()
    {
        sum_ += row_;
        row_ = kStart;
    }
    std::uint64_t sum() const { return sum_; }

private:
    static constexpr std::uint64_t kStart = 0xcbf29ce484222325u;

    // FNV-1a
    void add(const void* bytes, std::size_t count)
    {
        const auto* next = static_cast<const unsigned char*>(bytes);
        for (; count > 0; --count)
            row_ = (row_ ^ *next++) * 0x100000001b3u;
    }

    std::uint64_t row_ = kStart;
    std::uint64_t sum_ = 0;
};

/// Reads all rows column by column, as `rows` reads them.
template <class Rows, class Values>
void readAll(Rows& rows, std::string_view columns, Values& values)
{
    while (rows.next()) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const auto column = static_cast<short>(i + 1);
            switch (columns[i]) {
            case 'd':
                values.number(rows.number(column));
                break;
            case 's':
                values.text(rows.text(column));
                break;
            case 'c':
                values.letter(rows.text(column));
                break;
            case 'l':
                values.integer(rows.integer(column));
            }
        }
        values.endRow();
    }
}

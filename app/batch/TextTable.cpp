// app/batch/TextTable.cpp
#include "app/batch/TextTable.h"

#include "util/FixedText.h"

#include <csv.h>

#include <algorithm>
#include <ostream>

namespace {

struct Range {
    char32_t first, last;
};
// The blocks that matter for names and labels; not all of Unicode's tables.
constexpr Range kCombining[] = {{0x0300, 0x036F}, {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},
    {0x200B, 0x200F}, {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}};
constexpr Range kWide[] = {{0x1100, 0x115F}, {0x2E80, 0x303E}, {0x3041, 0xA4CF}, {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF}, {0xFE30, 0xFE4F}, {0xFF00, 0xFF60}, {0xFFE0, 0xFFE6}, {0x1F300, 0x1FAFF},
    {0x20000, 0x3FFFD}};

template <std::size_t N> bool isIn(const Range (&ranges)[N], char32_t c)
{
    return std::ranges::any_of(
        ranges, [c](const Range& range) { return range.first <= c && c <= range.last; });
}

// The character whose well-formed bytes these are.
char32_t codePoint(std::string_view bytes)
{
    constexpr unsigned char kFirstBits[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
    auto c = static_cast<char32_t>(static_cast<unsigned char>(bytes[0]) & kFirstBits[bytes.size()]);
    for (const char byte : bytes.substr(1))
        c = (c << 6) | (static_cast<unsigned char>(byte) & 0x3F);
    return c;
}

std::string csvCell(const std::string& text)
{
    std::string cell(2 * text.size() + 2, '\0'); // as many as quoting can need
    cell.resize(csv_write(cell.data(), cell.size(), text.data(), text.size()));
    return cell;
}

} // namespace

std::size_t displayWidth(std::string_view text)
{
    std::size_t width = 0;
    while (!text.empty()) {
        const std::size_t length = utf8Length(text);
        const char32_t c = codePoint(text.substr(0, length));
        width += isIn(kWide, c) ? 2 : isIn(kCombining, c) ? 0 : 1;
        text.remove_prefix(length);
    }
    return width;
}

TextTable::TextTable(std::vector<Column> columns)
    : columns_(std::move(columns))
{
}

void TextTable::add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }

void TextTable::writeRow(std::ostream& out, const std::vector<std::string>& cells,
    const std::vector<std::size_t>& widths) const
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const std::string padding(widths[i] - displayWidth(cells[i]), ' ');
        const bool right = columns_[i].align == Align::Right;
        line += (i == 0 ? "" : "  ") + (right ? padding + cells[i] : cells[i] + padding);
    }
    line.resize(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

void TextTable::writeCsv(std::ostream& out) const
{
    const auto writeLine = [&out](const auto& cells, const auto& textOf) {
        const char* separator = "";
        for (const auto& cell : cells) {
            out << separator << csvCell(textOf(cell));
            separator = ",";
        }
        out << "\n";
    };
    writeLine(columns_, [](const Column& column) { return column.title; });
    for (const auto& row : rows_)
        writeLine(row, [](const std::string& cell) { return cell; });
}

void TextTable::write(std::ostream& out) const
{
    std::vector<std::string> titles;
    std::vector<std::size_t> widths;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        titles.push_back(columns_[i].title);
        widths.push_back(displayWidth(columns_[i].title));
        for (const auto& row : rows_)
            widths[i] = std::max(widths[i], displayWidth(row[i]));
    }
    writeRow(out, titles, widths);
    for (const auto& row : rows_)
        writeRow(out, row, widths);
}

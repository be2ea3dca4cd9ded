// app/import/Cells.cpp
#include "app/import/Cells.h"

#include "util/FixedText.h"
#include "util/TextUtil.h"
#include "well/SampleType.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

// Numbers that other programs write where they have none.
constexpr double kUnknownNumbers[] = {-999.25, -999, -9999, -99999};
// The last day of that year stands for a date that is not known.
constexpr int kUnknownYear = 9999;

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

std::string_view withoutSign(std::string_view text)
{
    if (!text.empty() && (text[0] == '+' || text[0] == '-'))
        text.remove_prefix(1);
    return text;
}

// Takes digits off the front; none when there are none.
std::optional<int> takeDigits(std::string_view* text)
{
    int value = 0;
    const auto [end, failure] = std::from_chars(text->data(), text->data() + text->size(), value);
    if (failure != std::errc() || text->empty() || !isDigit((*text)[0]))
        return std::nullopt;
    text->remove_prefix(static_cast<std::size_t>(end - text->data()));
    return value;
}

bool takeDash(std::string_view* text)
{
    const bool there = text->starts_with('-');
    if (there)
        text->remove_prefix(1);
    return there;
}

// "yyyy-mm-dd", with or without a time behind it; none for any other text.
std::optional<Date> dateOf(std::string_view text)
{
    const auto year = takeDigits(&text);
    if (!year || !takeDash(&text))
        return std::nullopt;
    const auto month = takeDigits(&text);
    if (!month || !takeDash(&text))
        return std::nullopt;
    const auto day = takeDigits(&text);
    if (!day || !(text.empty() || text[0] == ' ' || text[0] == 'T'))
        return std::nullopt;
    return Date(*day, *month, *year);
}

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words)
{
    return std::ranges::any_of(
        words, [&](std::string_view word) { return compareIgnoringCase(text, word) == 0; });
}

} // namespace

bool isDecimalWith(char mark, std::string_view cell)
{
    cell = withoutSign(cell);
    return cell.size() > 1 && std::ranges::count(cell, mark) == 1
        && std::ranges::all_of(cell, [&](char c) { return c == mark || isDigit(c); });
}

std::string withPoint(std::string_view cell)
{
    std::string text(cell);
    std::ranges::replace(text, ',', '.');
    return text;
}

std::optional<double> numberOf(std::string_view cell)
{
    if (cell.starts_with('+'))
        cell.remove_prefix(1);
    double value = 0;
    const auto [end, failure] = std::from_chars(cell.data(), cell.data() + cell.size(), value);
    if (failure != std::errc() || end != cell.data() + cell.size() || !std::isfinite(value))
        return std::nullopt;
    return value + 0.0;
}

char wellTypeOf(std::string_view cell)
{
    return isOneOf(cell, {"W"}) ? 'W' : isOneOf(cell, {"O"}) ? 'O' : '\0';
}

char unitsOf(std::string_view cell)
{
    if (isOneOf(cell, {"M", "metre", "metres", "meter", "meters"}))
        return 'M';
    return isOneOf(cell, {"F", "FT", "'", "foot", "feet"}) ? 'F' : '\0';
}

std::optional<Value> givenValue(Cell state, Value value)
{
    if (state == Cell::Missing || state == Cell::Bad)
        return std::nullopt;
    return state == Cell::Good ? std::move(value) : Value();
}

std::optional<std::string> CellReader::bytes(int column) const
{
    const int field = file_.column(column).field;
    const auto place = static_cast<std::size_t>(field);
    if (field < 0 || (place < row_.nothing.size() && row_.nothing[place]))
        return std::nullopt;
    return row_.fields[place];
}

std::string_view CellReader::raw(int column) const
{
    const int field = file_.column(column).field;
    if (field < 0)
        return {};
    std::string_view cell = row_.fields[static_cast<std::size_t>(field)];
    const auto blank = [](char c) { return c == ' ' || isControl(c); };
    while (!cell.empty() && blank(cell.front()))
        cell.remove_prefix(1);
    while (!cell.empty() && blank(cell.back()))
        cell.remove_suffix(1);
    return cell;
}

Cell CellReader::start(int column, std::string_view* cell) const
{
    *cell = raw(column);
    if (!file_.has(column))
        return Cell::Missing;
    return cell->empty() ? Cell::Empty : Cell::Good;
}

void CellReader::refuse(int column, const std::string& reason)
{
    report_.refuse(header(column), raw(column), reason);
}

void CellReader::adjust(int column, const std::string& reason)
{
    report_.adjust(header(column), raw(column), reason);
}

Cell CellReader::bad(int column, const std::string& reason)
{
    const auto index = static_cast<std::size_t>(column);
    if (file_.shape->columns[index].bad == BadCell::RefusesRow)
        refuse(column, reason);
    else
        adjust(column, reason + "; not taken");
    return Cell::Bad;
}

Cell CellReader::text(int column, std::string* out)
{
    std::string_view cell;
    const Cell state = start(column, &cell);
    *out = cell;
    if (std::ranges::any_of(*out, isControl)) {
        std::ranges::replace_if(*out, isControl, ' ');
        adjust(column, "line breaks and control characters became blanks");
    }
    const std::size_t capacity = file_.shape->columns[static_cast<std::size_t>(column)].capacity;
    if (capacity != 0 && out->size() > capacity) {
        *out = trimmedRight(utf8Prefix(*out, capacity));
        adjust(
            column, "longer than " + std::to_string(capacity) + " bytes; cut to \"" + *out + "\"");
    }
    return state;
}

Cell CellReader::key(int column, std::string* out)
{
    const Cell state = text(column, out);
    if (state != Cell::Good)
        return bad(column, "is empty");
    if (out->find('%') != std::string::npos)
        return bad(column, "a percent sign cannot stand here: searches take it for a wildcard");
    return Cell::Good;
}

bool CellReader::isUnknownNumber(int column, double value)
{
    if (std::ranges::find(kUnknownNumbers, value) == std::end(kUnknownNumbers))
        return false;
    adjust(column, "stands for a value that is not known; left empty");
    return true;
}

Cell CellReader::number(int column, double* out)
{
    std::string_view cell;
    const Cell state = start(column, &cell);
    if (state != Cell::Good)
        return state;
    const MappedColumn& mapped = file_.column(column);
    const bool comma = isDecimalWith(',', cell);
    if (comma && mapped.mixedDecimals)
        return bad(column, "a decimal comma in a column that also writes decimal points");
    const auto value = comma && mapped.decimalComma ? numberOf(withPoint(cell)) : numberOf(cell);
    if (!value)
        return bad(column, "not a number");
    if (isUnknownNumber(column, *value))
        return Cell::Empty;
    *out = *value;
    return Cell::Good;
}

Cell CellReader::whole(int column, long* out)
{
    double value = 0;
    const Cell state = number(column, &value);
    if (state != Cell::Good)
        return state;
    const double rounded = std::round(value);
    if (std::abs(rounded) > std::numeric_limits<int>::max())
        return bad(column, "too large for a whole number of 32 bits");
    if (rounded != value)
        report_.noteOnce(header(column), std::string(raw(column)), "rounded to whole numbers");
    *out = static_cast<long>(rounded);
    return Cell::Good;
}

Cell CellReader::date(int column, Date* out)
{
    std::string_view cell;
    const Cell state = start(column, &cell);
    if (state != Cell::Good)
        return state;
    const auto value = dateOf(cell);
    if (!value)
        return bad(column, "not a date (yyyy-mm-dd)");
    if (!value->isValid())
        return bad(column, "no such day in the calendar");
    if (value->year() == kUnknownYear) {
        adjust(column, "stands for a date that is not known; left empty");
        return Cell::Empty;
    }
    *out = *value;
    return Cell::Good;
}

Cell CellReader::wellType(int column, char* out)
{
    std::string_view cell;
    const Cell state = start(column, &cell);
    if (state != Cell::Good)
        return state;
    *out = wellTypeOf(cell);
    return *out ? Cell::Good : bad(column, "unknown well type (W or O)");
}

Cell CellReader::units(int column, char* out)
{
    std::string_view cell;
    const Cell state = start(column, &cell);
    if (state != Cell::Good)
        return state;
    *out = unitsOf(cell);
    return *out ? Cell::Good : bad(column, "unknown unit (M or F)");
}

Cell CellReader::sampleType(int column, std::string* out)
{
    std::string_view cell;
    const Cell state = start(column, &cell);
    *out = enteredSampleType(cell);
    if (state != Cell::Good || compareIgnoringCase(*out, cell) == 0)
        return state;
    // Everything that is not known becomes the default there, so only these may do so here.
    if (*out == kDefaultSampleType && !isOneOf(cell, {"WDC", "DDC"}))
        return bad(column,
            "unknown sample type (CU, SC, CO, OC and LOG are known; WDC, DDC, SWC and what begins "
            "with CO are translated)");
    adjust(column, "stored as sample type " + *out);
    return Cell::Good;
}

Cell CellReader::depth(int column, double* out, char* units)
{
    const MappedColumn& mapped = file_.column(column);
    *units = mapped.units;
    const Cell state = number(column, out);
    if (state != Cell::Good)
        return state;
    *out /= mapped.divisor;
    if (mapped.direction && mapped.direction != (wellType_ == 'O' ? 'U' : 'D'))
        *out = 0 - *out; // no minus zero
    return state;
}

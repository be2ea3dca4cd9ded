// app/import/ColumnMap.cpp
#include "app/import/ColumnMap.h"

#include "app/import/Header.h"
#include "app/import/Loader.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kAll = "*";

enum { File, Kind, Column, From, Fixed, Units, Count };
constexpr std::array<std::string_view, Count> kColumns = {
    "file", "kind", "column", "from", "value", "units"};
using Fields = std::array<std::string, Count>;

struct RawLine {
    long line;
    Fields fields;
};

void appendName(std::string* list, std::string_view name)
{
    list->append(list->empty() ? "" : ", ").append(name);
}

std::string namesOfKinds()
{
    std::string names;
    for (const FileShape& shape : fileShapes())
        if ((", " + names + ',').find(", " + std::string(shape.name) + ',') == std::string::npos)
            appendName(&names, shape.name);
    return names;
}

std::string namesOfColumns(const FileShape& shape)
{
    std::string names;
    for (const ColumnShape& column : shape.columns)
        appendName(&names, usualName(column));
    return names;
}

bool isMatch(std::string_view name, std::string_view pattern)
{
    if (pattern.empty())
        return name.empty();
    if (pattern[0] == '*')
        return isMatch(name, pattern.substr(1))
            || (!name.empty() && isMatch(name.substr(1), pattern));
    return !name.empty() && (pattern[0] == '?' || pattern[0] == name[0])
        && isMatch(name.substr(1), pattern.substr(1));
}

bool bracesPair(std::string_view text)
{
    bool isOpen = false;
    for (const char c : text) {
        if (c == (isOpen ? '{' : '}'))
            return false;
        isOpen = c == '{' || (isOpen && c != '}');
    }
    return !isOpen;
}

// "cm", "ft up", "down".
std::string readUnits(std::string_view text, MapLine* out)
{
    const std::size_t blank = text.find(' ');
    for (std::string_view word :
        {text.substr(0, blank), blank == text.npos ? std::string_view() : text.substr(blank + 1)}) {
        const std::string small = lowerCased(word);
        const LengthUnit* unit = lengthUnit(small);
        if (small == "up" || small == "down")
            out->direction = small == "up" ? 'U' : 'D';
        else if (unit && unit->units)
            out->unit = unit;
        else if (!small.empty())
            return "the unit \"" + std::string(text)
                + "\" is not known; there are m, cm, mm, ft and in, and behind them up and down";
    }
    return {};
}

/// Makes an entry of the lines of one file name and kind, as one of the kinds of that name.
class EntryReader {
public:
    EntryReader(MapEntry* entry, const std::vector<RawLine>& lines)
        : entry_(*entry)
        , lines_(lines)
    {
    }

    /// What is wrong, with its place; empty when nothing is.
    std::string read(const FileShape& shape)
    {
        entry_.shape = &shape;
        entry_.lines.clear();
        for (const RawLine& raw : lines_) {
            const std::string problem = readLine(raw);
            if (!problem.empty())
                return entry_.place(raw.line) + ": " + problem;
        }
        return missing();
    }

private:
    std::string readLine(const RawLine& raw)
    {
        const Fields& fields = raw.fields;
        MapLine line;
        line.line = raw.line;
        line.from = fields[From];
        line.value = fields[Fixed];
        const bool isAll = fields[Column] == kAll;
        if (!isAll && !(line.column = columnNamed(*entry_.shape, fields[Column])))
            return std::string(entry_.shape->name) + " has no column \"" + fields[Column]
                + "\"; there are: " + namesOfColumns(*entry_.shape);
        const auto earlier = std::ranges::find(entry_.lines, line.column, &MapLine::column);
        if (earlier != entry_.lines.end())
            return fields[Column] + " is filled in line " + std::to_string(earlier->line)
                + " already";
        std::string problem = isAll ? allProblem(fields) : sourceProblem(line);
        if (problem.empty() && !fields[Units].empty())
            problem = unitsProblem(fields[Units], &line);
        entry_.lines.push_back(std::move(line));
        return problem;
    }

    static std::string allProblem(const Fields& fields)
    {
        const bool isAlone = fields[From].empty() || fields[From] == kAll;
        return isAlone && fields[Fixed].empty() && fields[Units].empty()
            ? ""
            : "* stands for all columns by their usual names; nothing else can be said of it";
    }

    static std::string sourceProblem(const MapLine& line)
    {
        if (line.from.empty() == line.value.empty())
            return "give either the column of the file, in \"from\", or a \"value\"";
        if (!bracesPair(line.value))
            return "a brace of \"" + line.value + "\" has no other end";
        return {};
    }

    std::string unitsProblem(const std::string& units, MapLine* line) const
    {
        if (line->column->kind != CellKind::Depth)
            return std::string(usualName(*line->column)) + " is no depth; it has no unit";
        const std::string problem = readUnits(units, line);
        if (problem.empty() && line->direction && entry_.shape->makeLoader == makeWellsLoader)
            return "depths of a well itself have no direction";
        return problem;
    }

    std::string missing() const
    {
        if (entry_.isByName())
            return {}; // the file's header decides
        std::string names;
        for (const ColumnShape& column : entry_.shape->columns)
            if (column.required
                && std::ranges::find(entry_.lines, &column, &MapLine::column) == entry_.lines.end())
                appendName(&names, usualName(column));
        if (names.empty())
            return {};
        return entry_.place(entry_.line) + ": " + std::string(entry_.shape->name) + " of "
            + entry_.pattern + " need also: " + names;
    }

    MapEntry& entry_;
    const std::vector<RawLine>& lines_;
};

class MapReader {
public:
    explicit MapReader(const fs::path& file)
        : reader_(file)
        , name_(file.string())
    {
    }

    ColumnMap read()
    {
        readRows();
        for (std::size_t i = 0; i < map_.entries.size() && map_.failure.empty(); ++i)
            map_.failure = readEntry(&map_.entries[i], lines_[i]);
        if (map_.failure.empty() && map_.entries.empty())
            map_.failure = name_ + ": says nothing of any file";
        if (!map_.failure.empty())
            map_.failure += "; nothing was stored.";
        return std::move(map_);
    }

private:
    void fail(long line, const std::string& why)
    {
        if (map_.failure.empty())
            map_.failure = name_ + (line > 0 ? ':' + std::to_string(line) : "") + ": " + why;
    }

    void readRows()
    {
        CsvRow row;
        if (reader_.next(&row))
            readHeader(row);
        while (map_.failure.empty() && reader_.next(&row))
            if (!row.fault.empty())
                fail(row.line, row.fault);
            else if (!row.fields.empty() && !row.fields[0].starts_with('#'))
                readRow(row);
        if (!reader_.failure().empty())
            fail(0, reader_.failure());
    }

    void readHeader(const CsvRow& row)
    {
        for (std::size_t i = 0; i < row.fields.size(); ++i) {
            const auto known = std::ranges::find(kColumns, plainName(row.fields[i]));
            if (known == kColumns.end())
                fail(row.line,
                    "no column of a map is called \"" + row.fields[i]
                        + "\"; there are: file, kind, column, from, value, units");
            else
                places_[static_cast<std::size_t>(known - kColumns.begin())] = i;
        }
        for (const int column : {File, Kind, Column})
            if (!places_[static_cast<std::size_t>(column)])
                fail(row.line,
                    "a map begins with a line of its columns: file,kind,column,from,value,units");
    }

    // Cells that a program left off at the end of a line are empty.
    void readRow(const CsvRow& row)
    {
        RawLine raw{row.line, {}};
        for (std::size_t i = 0; i < Count; ++i)
            if (places_[i] && *places_[i] < row.fields.size())
                raw.fields[i] = row.fields[*places_[i]];
        if (std::ranges::all_of(raw.fields, &std::string::empty))
            return;
        const bool isFirst = map_.entries.empty();
        if (isFirst && (raw.fields[File].empty() || raw.fields[Kind].empty())) {
            fail(row.line,
                "the first line names a file and its kind; lines below may leave both "
                "off");
            return;
        }
        takeLine(std::move(raw));
    }

    // A line without file and kind belongs to those above.
    void takeLine(RawLine raw)
    {
        if (!raw.fields[File].empty())
            pattern_ = raw.fields[File];
        if (!raw.fields[Kind].empty())
            kind_ = raw.fields[Kind];
        const auto known = std::ranges::find_if(entries_,
            [&](const auto& entry) { return entry.first == pattern_ && entry.second == kind_; });
        const auto which = static_cast<std::size_t>(known - entries_.begin());
        if (known == entries_.end()) {
            entries_.emplace_back(pattern_, kind_);
            map_.entries.push_back({name_, raw.line, pattern_, nullptr, {}});
            lines_.emplace_back();
        }
        lines_[which].push_back(std::move(raw));
    }

    // Of several kinds with that name the first that has the columns.
    std::string readEntry(MapEntry* entry, const std::vector<RawLine>& lines) const
    {
        const auto which = static_cast<std::size_t>(entry - map_.entries.data());
        const std::string kind = plainName(entries_[which].second);
        std::string problem;
        for (const FileShape& shape : fileShapes())
            if (shape.name == kind) {
                const std::string found = EntryReader(entry, lines).read(shape);
                if (found.empty())
                    return {};
                problem = problem.empty() ? found : problem;
            }
        return !problem.empty() ? problem
                                : entry->place(entry->line) + ": no kind of file is called \""
                + entries_[which].second + "\"; there are: " + namesOfKinds();
    }

    CsvReader reader_;
    std::string name_;
    std::array<std::optional<std::size_t>, Count> places_;
    std::string pattern_;
    std::string kind_;
    std::vector<std::pair<std::string, std::string>> entries_; // pattern and kind as written
    std::vector<std::vector<RawLine>> lines_;                  // of each entry
    ColumnMap map_;
};

} // namespace

bool MapEntry::isByName() const
{
    return std::ranges::find(lines, nullptr, &MapLine::column) != lines.end();
}

std::vector<const MapEntry*> ColumnMap::entriesOf(const std::string& fileName) const
{
    std::vector<const MapEntry*> found;
    for (const MapEntry& entry : entries)
        if (entry.shape && isMatch(lowerCased(fileName), lowerCased(entry.pattern)))
            found.push_back(&entry);
    return found;
}

ColumnMap readColumnMap(const fs::path& file) { return MapReader(file).read(); }

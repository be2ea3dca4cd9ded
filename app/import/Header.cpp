// app/import/Header.cpp
#include "app/import/Header.h"

#include "app/import/ColumnMap.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr LengthUnit kUnits[] = {{"m", 'M'}, {"metres", 'M'}, {"meters", 'M'}, {"ft", 'F'},
    {"feet", 'F'}, {"cm", 'M', 100}, {"mm", 'M', 1000}, {"in", 'F', 12}, {"inch", 'F', 12},
    {"km", 0}, {"yd", 0}, {"fm", 0}, {"fathoms", 0}, {"usft", 0}, {"ms", 0}, {"s", 0}};

struct Match {
    int column;
    int rank;               // of the name among the column's names
    const LengthUnit* unit; // null: the name ends in none
};

const LengthUnit* unitBehind(std::string_view name, std::string_view alias)
{
    if (!name.starts_with(alias) || name.size() < alias.size() + 2 || name[alias.size()] != '_')
        return nullptr;
    return lengthUnit(name.substr(alias.size() + 1));
}

std::optional<Match> matchColumn(const ColumnShape& shape, std::string_view name)
{
    std::string_view names = shape.names;
    for (int rank = 0; !names.empty(); ++rank) {
        const std::string_view alias = names.substr(0, names.find(' '));
        names.remove_prefix(std::min(names.size(), alias.size() + 1));
        if (name == alias)
            return Match{shape.column, rank, nullptr};
        const LengthUnit* unit = shape.kind == CellKind::Depth ? unitBehind(name, alias) : nullptr;
        if (unit)
            return Match{shape.column, rank, unit};
    }
    return std::nullopt;
}

std::optional<Match> matchHeader(const FileShape& shape, std::string_view name)
{
    for (const ColumnShape& column : shape.columns)
        if (const auto match = matchColumn(column, name))
            return match;
    return std::nullopt;
}

// Maps the header, column by column.
class HeaderMapper {
public:
    HeaderMapper(InputFile* file, FileReport* report)
        : file_(*file)
        , report_(*report)
        , ranks_(file->shape->columns.size())
    {
        file_.columns.assign(file->shape->columns.size(), MappedColumn());
    }

    void map(const std::vector<std::string>& header)
    {
        file_.fields = header.size();
        if (file_.map)
            takeFromMap(header);
        if (!file_.map || file_.map->isByName())
            for (std::size_t i = 0; i < header.size(); ++i)
                place(static_cast<int>(i), header[i]);
        if (!report_.failed() && hasRequired())
            tellUnkept(header);
    }

private:
    void takeFromMap(const std::vector<std::string>& header)
    {
        applyMap(&file_, header, &report_);
        for (std::size_t i = 0; i < ranks_.size(); ++i)
            if (file_.columns[i].field >= 0)
                ranks_[i] = kMapped;
    }

    void place(int field, const std::string& header)
    {
        const auto match = matchHeader(*file_.shape, plainName(header));
        if (!match)
            return;
        // Other units take a map: who writes one knows what they are.
        if (match->unit && (match->unit->units == 0 || match->unit->divisor != 1)) {
            leaveUnit(field, header, match->unit->word);
            return;
        }
        MappedColumn& mapped = file_.columns[static_cast<std::size_t>(match->column)];
        int& rank = ranks_[static_cast<std::size_t>(match->column)];
        if (rank == kMapped)
            return;
        if (mapped.field >= 0 && plainName(mapped.header) == plainName(header)) {
            report_.fail("the column " + header + " is there twice");
            return;
        }
        if (mapped.field >= 0 && rank <= match->rank)
            return;
        rank = match->rank;
        mapped.field = field;
        mapped.header = header;
        mapped.units = match->unit ? match->unit->units : '\0';
        mapped.usualName = rank == 0;
    }

    void leaveUnit(int field, const std::string& header, std::string_view unit)
    {
        if (isKept(field)) // by a map
            return;
        told_.push_back(field);
        report_.note(header, "",
            "unknown unit \"" + std::string(unit)
                + "\" (m and ft are known); the column is not kept");
    }

    bool isKept(int field) const
    {
        return std::ranges::any_of(file_.columns, [&](const MappedColumn& column) {
            return column.field == field;
        }) || std::ranges::any_of(file_.composed, [&](const ComposedText& text) {
            return std::ranges::find(text.pieces, field, &ComposedText::Piece::field)
                != text.pieces.end();
        });
    }

    // Whoever maps columns one by one knows of the others.
    void tellUnkept(const std::vector<std::string>& header)
    {
        if (file_.map && !file_.map->isByName())
            return;
        std::string unkept;
        for (int i = 0; const std::string& name : header) {
            if (!isKept(i) && std::ranges::find(told_, i) == told_.end())
                unkept.append(unkept.empty() ? "" : ", ").append(name.empty() ? "\"\"" : name);
            ++i;
        }
        if (!unkept.empty())
            report_.note("", "", "columns not kept: " + unkept);
    }

    bool hasRequired()
    {
        std::string missing;
        for (const ColumnShape& column : file_.shape->columns)
            if (column.required && !file_.has(column.column))
                missing.append(missing.empty() ? "" : ", ").append(usualName(column));
        if (missing.empty())
            return true;
        if (file_.map) {
            report_.fail("is left without the column " + missing + " by "
                + file_.map->place(file_.map->line));
        } else if (file_.namedExactly) {
            report_.fail("has no column " + missing);
        } else {
            report_.note("", "", "has no column " + missing + "; left as another kind of file");
            file_.shape = nullptr;
        }
        return false;
    }

    InputFile& file_;
    FileReport& report_;
    static constexpr int kMapped = -1; // before every name
    std::vector<int> ranks_;
    std::vector<int> told_; // fields that were left with a word of their own
};

bool hasRequired(const FileShape& shape, const std::vector<std::string>& header)
{
    const auto isThere = [&](const ColumnShape& column) {
        return std::ranges::any_of(header, [&](const std::string& name) {
            const auto match = matchHeader(shape, plainName(name));
            return match && match->column == column.column;
        });
    };
    return std::ranges::all_of(shape.columns,
        [&](const ColumnShape& column) { return !column.required || isThere(column); });
}

// Of several kinds of that name the first whose columns are there; else the first of all. All
// columns of a table say more than a name that other files have too.
void chooseShape(InputFile* file, const std::vector<std::string>& header)
{
    const std::string stem = lowerCased(file->path.stem().string());
    auto shapes = shapesOfFile(stem);
    if (shapes.empty())
        return;
    file->shape = shapes.front();
    std::ranges::stable_partition(shapes, [](const FileShape* shape) { return shape->table; });
    const auto found = std::ranges::find_if(
        shapes, [&](const FileShape* shape) { return hasRequired(*shape, header); });
    if (found != shapes.end())
        file->shape = *found;
    file->namedExactly = stem == file->shape->name && !file->shape->sharesName;
}

} // namespace

const LengthUnit* lengthUnit(std::string_view word)
{
    const auto found = std::ranges::find(kUnits, word, &LengthUnit::word);
    return found == std::end(kUnits) ? nullptr : &*found;
}

std::string plainName(std::string_view header)
{
    std::string name;
    for (const char c : lowerCased(header)) {
        const bool kept = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')
            || static_cast<unsigned char>(c) >= 0x80;
        if (kept)
            name += c;
        else if (!name.empty() && name.back() != '_')
            name += '_';
    }
    if (!name.empty() && name.back() == '_')
        name.pop_back();
    return name;
}

const ColumnShape* columnNamed(const FileShape& shape, std::string_view name)
{
    const auto match = matchHeader(shape, plainName(name));
    return match && !match->unit ? &shape.columns[static_cast<std::size_t>(match->column)]
                                 : nullptr;
}

std::string_view usualName(const ColumnShape& column)
{
    return column.names.substr(0, column.names.find(' '));
}

void readHeader(InputFile* file, FileReport* report)
{
    CsvReader reader(file->path);
    CsvRow row;
    if (!reader.next(&row))
        report->fail(reader.failure().empty() ? "is empty" : reader.failure());
    else if (!row.fault.empty())
        report->fail("its header cannot be read: " + row.fault);
    if (report->failed())
        return;
    if (reader.hadByteOrderMark())
        report->note("", "", "begins with a byte-order mark, which was dropped");
    if (reader.separator() != ',')
        report->note("", "",
            reader.separator() == ';' ? "fields are separated by semicolons"
                                      : "fields are separated by tabs");
    if (!file->map)
        chooseShape(file, row.fields);
    HeaderMapper(file, report).map(row.fields);
}

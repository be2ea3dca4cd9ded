// app/import/Header.cpp
#include "app/import/InputFile.h"
#include "util/TextUtil.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

struct UnitSuffix {
    std::string_view suffix;
    char units; // 0: known to be a unit, but not one of depths here
};
constexpr UnitSuffix kSuffixes[] = {{"m", 'M'}, {"metres", 'M'}, {"meters", 'M'}, {"ft", 'F'},
    {"feet", 'F'}, {"km", 0}, {"cm", 0}, {"mm", 0}, {"in", 0}, {"inch", 0}, {"yd", 0}, {"fm", 0},
    {"fathoms", 0}, {"usft", 0}, {"ms", 0}, {"s", 0}};

struct Match {
    int column;
    int rank; // of the name among the column's names
    std::string_view suffix;
    char units;
};

// "Top depth [m]" and "top_depth_m" are the same column.
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

const UnitSuffix* suffixBehind(std::string_view name, std::string_view alias)
{
    if (!name.starts_with(alias) || name.size() < alias.size() + 2 || name[alias.size()] != '_')
        return nullptr;
    const auto found =
        std::ranges::find(kSuffixes, name.substr(alias.size() + 1), &UnitSuffix::suffix);
    return found == std::end(kSuffixes) ? nullptr : &*found;
}

std::optional<Match> matchColumn(const ColumnShape& shape, std::string_view name)
{
    std::string_view names = shape.names;
    for (int rank = 0; !names.empty(); ++rank) {
        const std::string_view alias = names.substr(0, names.find(' '));
        names.remove_prefix(std::min(names.size(), alias.size() + 1));
        if (name == alias)
            return Match{shape.column, rank, {}, 0};
        const UnitSuffix* unit =
            shape.kind == CellKind::Depth ? suffixBehind(name, alias) : nullptr;
        if (unit)
            return Match{shape.column, rank, unit->suffix, unit->units};
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
        for (std::size_t i = 0; i < header.size(); ++i)
            place(static_cast<int>(i), header[i]);
        if (!hasRequired())
            return;
        if (!unkept_.empty())
            report_.note("", "", "columns not kept: " + unkept_);
    }

private:
    void place(int field, const std::string& header)
    {
        const auto match = matchHeader(*file_.shape, plainName(header));
        if (!match) {
            leave(header);
            return;
        }
        if (!match->suffix.empty() && match->units == 0) {
            report_.note(header, "",
                "unknown unit \"" + std::string(match->suffix)
                    + "\" (m and ft are known); the column is not kept");
            return;
        }
        MappedColumn& mapped = file_.columns[static_cast<std::size_t>(match->column)];
        int& rank = ranks_[static_cast<std::size_t>(match->column)];
        if (mapped.field >= 0 && plainName(mapped.header) == plainName(header)) {
            report_.fail("the column " + header + " is there twice");
            return;
        }
        if (mapped.field >= 0 && rank <= match->rank) {
            leave(header);
            return;
        }
        if (mapped.field >= 0)
            leave(mapped.header);
        rank = match->rank;
        mapped.field = field;
        mapped.header = header;
        mapped.units = match->units;
        mapped.usualName = rank == 0;
    }

    void leave(const std::string& header)
    {
        unkept_.append(unkept_.empty() ? "" : ", ").append(header.empty() ? "\"\"" : header);
    }

    bool hasRequired()
    {
        std::string missing;
        for (const ColumnShape& column : file_.shape->columns)
            if (column.required && !file_.has(column.column))
                missing.append(missing.empty() ? "" : ", ")
                    .append(column.names.substr(0, column.names.find(' ')));
        if (missing.empty())
            return true;
        if (file_.namedExactly) {
            report_.fail("has no column " + missing);
        } else {
            report_.note("", "", "has no column " + missing + "; left as another kind of file");
            file_.shape = nullptr;
        }
        return false;
    }

    InputFile& file_;
    FileReport& report_;
    std::vector<int> ranks_;
    std::string unkept_;
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

// Of several kinds of that name the first whose columns are there; else the first of all.
void chooseShape(InputFile* file, const std::vector<std::string>& header)
{
    const std::string stem = lowerCased(file->path.stem().string());
    const auto shapes = shapesOfFile(stem);
    if (shapes.empty())
        return;
    const auto found = std::ranges::find_if(
        shapes, [&](const FileShape* shape) { return hasRequired(*shape, header); });
    if (found != shapes.end())
        file->shape = *found;
    file->namedExactly = stem == file->shape->name && !file->shape->sharesName;
}

} // namespace

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
    chooseShape(file, row.fields);
    HeaderMapper(file, report).map(row.fields);
}

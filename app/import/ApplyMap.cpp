// app/import/ApplyMap.cpp
#include "app/import/Cells.h"
#include "app/import/ColumnMap.h"
#include "app/import/Header.h"

#include <algorithm>

namespace {

/// What an import would say of a fixed value in each row.
class ValueProblem : public ImportListener {
public:
    void issue(const Issue& issue) override { text = text.empty() ? issue.reason : text; }
    std::string text;
};

void readAs(CellKind kind, CellReader& cells, int column)
{
    std::string text;
    double number = 0;
    long whole = 0;
    char letter = 0;
    Date date;
    switch (kind) {
    case CellKind::Text:
    case CellKind::Id:
        cells.text(column, &text);
        break;
    case CellKind::Key:
        cells.key(column, &text);
        break;
    case CellKind::Whole:
        cells.whole(column, &whole);
        break;
    case CellKind::Number:
    case CellKind::Depth:
        cells.number(column, &number);
        break;
    case CellKind::Date:
        cells.date(column, &date);
        break;
    case CellKind::WellType:
        cells.wellType(column, &letter);
        break;
    case CellKind::SampleType:
        cells.sampleType(column, &text);
        break;
    case CellKind::Units:
        cells.units(column, &letter);
        break;
    }
}

std::string valueProblem(const FileShape& shape, const MapLine& line)
{
    InputFile file;
    file.shape = &shape;
    file.columns.resize(shape.columns.size());
    file.columns[static_cast<std::size_t>(line.column->column)].field = 0;
    CsvRow row;
    row.fields.push_back(line.value);
    ValueProblem problem;
    FileReport report("", &problem);
    report.beginRow(line.line);
    CellReader cells(file, row, report);
    readAs(line.column->kind, cells, line.column->column);
    report.endRow();
    return problem.text;
}

/// Fills the columns of one file.
class MapApplication {
public:
    MapApplication(InputFile* file, const std::vector<std::string>& header, FileReport* report)
        : file_(*file)
        , header_(header)
        , report_(*report)
    {
    }

    void apply(const MapLine& line)
    {
        MappedColumn mapped;
        if (line.from.empty()) {
            mapped.header = usualName(*line.column);
            mapped.field = compose(line);
        } else {
            mapped.header = line.from;
            mapped.field = find(line, line.from);
        }
        mapped.usualName = true; // the user says what it is
        mapped.direction = line.direction;
        setUnit(line, &mapped);
        if (!report_.failed())
            file_.columns[static_cast<std::size_t>(line.column->column)] = std::move(mapped);
    }

private:
    // -1: reported.
    int find(const MapLine& line, const std::string& name)
    {
        auto found = std::ranges::find(header_, name);
        if (found == header_.end())
            found = std::ranges::find(header_, plainName(name), plainName);
        if (found != header_.end())
            return static_cast<int>(found - header_.begin());
        std::string names;
        for (const std::string& column : header_)
            names.append(names.empty() ? "" : ", ").append(column);
        report_.fail("has no column \"" + name + "\", which " + file_.map->place(line.line)
            + " names; it has: " + names);
        return -1;
    }

    int compose(const MapLine& line)
    {
        ComposedText text;
        std::string_view rest = line.value;
        while (!rest.empty()) {
            const std::size_t open = rest.find('{');
            const std::size_t close = rest.find('}', open);
            auto& piece = text.pieces.emplace_back();
            piece.text = rest.substr(0, open);
            if (close == rest.npos)
                break;
            piece.field = find(line, std::string(rest.substr(open + 1, close - open - 1)));
            rest.remove_prefix(close + 1);
        }
        if (text.pieces.size() == 1 && text.pieces[0].field < 0)
            refuseValue(line);
        file_.composed.push_back(std::move(text));
        return static_cast<int>(file_.fields + file_.composed.size()) - 1;
    }

    void refuseValue(const MapLine& line)
    {
        const std::string problem = valueProblem(*file_.shape, line);
        if (!problem.empty())
            report_.fail(file_.map->place(line.line) + ": " + std::string(usualName(*line.column))
                + " cannot be \"" + line.value + "\": " + problem);
    }

    // As a header that an import knows by itself would: "height_ft" is in feet.
    void setUnit(const MapLine& line, MappedColumn* mapped)
    {
        const LengthUnit* unit = line.unit;
        const std::string name = plainName(line.from);
        if (!unit && line.column->kind == CellKind::Depth && name.find('_') != name.npos)
            unit = lengthUnit(std::string_view(name).substr(name.rfind('_') + 1));
        if (!unit)
            return;
        if (unit->units == 0)
            report_.fail("the unit of \"" + line.from + "\" is not known here; say it in "
                + file_.map->place(line.line));
        mapped->units = unit->units;
        mapped->divisor = unit->divisor;
    }

    InputFile& file_;
    const std::vector<std::string>& header_;
    FileReport& report_;
};

} // namespace

void applyMap(InputFile* file, const std::vector<std::string>& header, FileReport* report)
{
    MapApplication application(file, header, report);
    for (const MapLine& line : file->map->lines)
        if (line.column)
            application.apply(line);
}

bool completeRow(const InputFile& file, CsvRow* row)
{
    if (!row->fault.empty() || row->fields.size() != file.fields)
        return false;
    for (const ComposedText& text : file.composed) {
        std::string whole;
        bool hasCell = false;
        bool isFilled = false;
        for (const auto& piece : text.pieces) {
            whole += piece.text;
            if (piece.field < 0)
                continue;
            const std::string& cell = row->fields[static_cast<std::size_t>(piece.field)];
            whole += cell;
            hasCell = true;
            isFilled |= !cell.empty();
        }
        // "{lake} cm" of an empty cell is no text either.
        row->fields.push_back(hasCell && !isFilled ? std::string() : std::move(whole));
    }
    return true;
}

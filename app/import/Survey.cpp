// app/import/Survey.cpp
#include "app/import/Cells.h"
#include "app/import/InputFile.h"

#include <vector>

namespace {

struct ColumnSurvey {
    long points = 0;
    long commas = 0;
    std::string commaExample;
    bool otherTexts = false; // than W and O
};

bool isNumberKind(CellKind kind)
{
    return kind == CellKind::Whole || kind == CellKind::Number || kind == CellKind::Depth;
}

void look(const ColumnShape& shape, const std::string& cell, ColumnSurvey* survey)
{
    if (shape.kind == CellKind::WellType)
        survey->otherTexts = survey->otherTexts || (!cell.empty() && !wellTypeOf(cell));
    if (!isNumberKind(shape.kind))
        return;
    if (isDecimalWith(',', cell)) {
        if (survey->commas++ == 0)
            survey->commaExample = cell;
    } else if (isDecimalWith('.', cell)) {
        ++survey->points;
    }
}

void judge(
    const ColumnShape& shape, const ColumnSurvey& survey, MappedColumn* column, FileReport* report)
{
    if (shape.kind == CellKind::WellType && !column->usualName && survey.otherTexts) {
        report->note(column->header, "", "holds other texts than W and O; the column is not kept");
        column->field = -1;
    }
    if (survey.commas == 0)
        return;
    column->decimalComma = survey.points == 0;
    column->mixedDecimals = survey.points > 0;
    if (column->decimalComma)
        report->note(column->header, survey.commaExample,
            "decimals are written with a comma; read as " + withPoint(survey.commaExample));
}

} // namespace

void surveyColumns(InputFile* file, FileReport* report)
{
    const auto shapes = file->shape->columns;
    std::vector<ColumnSurvey> surveys(shapes.size());
    CsvReader reader(file->path);
    CsvRow row;
    reader.next(&row);
    while (reader.next(&row)) {
        if (!completeRow(*file, &row))
            continue;
        for (std::size_t i = 0; i < shapes.size(); ++i)
            if (file->columns[i].field >= 0)
                look(shapes[i], row.fields[static_cast<std::size_t>(file->columns[i].field)],
                    &surveys[i]);
    }
    if (!reader.failure().empty())
        report->fail(reader.failure());
    for (std::size_t i = 0; i < shapes.size(); ++i)
        if (file->columns[i].field >= 0)
            judge(shapes[i], surveys[i], &file->columns[i], report);
}

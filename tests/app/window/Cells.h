// tests/app/window/Cells.h
#pragma once

#include <QAbstractItemModel>
#include <QLocale>

#include <string>
#include <vector>

/// What the cells of a table show, a line per row, joined with "|".
inline std::vector<std::string> shownRows(const QAbstractItemModel& model)
{
    std::vector<std::string> lines;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells += model.index(row, column).data().toString();
        lines.push_back(cells.join('|').toStdString());
    }
    return lines;
}

inline std::string shownHeadings(const QAbstractItemModel& model)
{
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells += model.headerData(column, Qt::Horizontal).toString();
    return cells.join('|').toStdString();
}

// app/window/Clipboard.cpp
#include "app/window/Clipboard.h"

#include "app/window/FieldPanel.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>
#include <set>

namespace {

QString pasteable(const QString& cell)
{
    static const QString special = QStringLiteral("\t\r\n\"");
    const bool plain =
        std::none_of(cell.begin(), cell.end(), [](QChar c) { return special.contains(c); });
    if (plain)
        return cell;
    QString doubled = cell;
    return QLatin1Char('"') + doubled.replace(QLatin1String("\""), QLatin1String("\"\""))
        + QLatin1Char('"');
}

} // namespace

QString tabSeparated(const QList<QStringList>& rows)
{
    QStringList lines;
    for (const QStringList& row : rows) {
        QStringList cells;
        for (const QString& cell : row)
            cells += pasteable(cell);
        lines += cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n'));
}

QString selectedCells(const QAbstractItemView& view)
{
    const QItemSelectionModel& selection = *view.selectionModel();
    std::set<int> rows;
    std::set<int> columns;
    for (const QModelIndex& cell : selection.selectedIndexes()) {
        rows.insert(cell.row());
        columns.insert(cell.column());
    }
    if (rows.empty())
        return {};
    const QAbstractItemModel& model = *view.model();
    QList<QStringList> table(1);
    for (const int column : columns)
        table.first() += model.headerData(column, Qt::Horizontal).toString();
    for (const int row : rows) {
        QStringList cells;
        for (const int column : columns) {
            const QModelIndex cell = model.index(row, column);
            cells += selection.isSelected(cell) ? cell.data().toString() : QString();
        }
        table += cells;
    }
    return tabSeparated(table);
}

QString copyableText(const QWidget* focus)
{
    if (const auto* view = qobject_cast<const QAbstractItemView*>(focus))
        return selectedCells(*view);
    if (const auto* panel = qobject_cast<const FieldPanel*>(focus))
        return panel->text();
    if (const auto* field = qobject_cast<const QLineEdit*>(focus))
        return field->selectedText();
    if (const auto* label = qobject_cast<const QLabel*>(focus))
        return label->selectedText();
    return {};
}

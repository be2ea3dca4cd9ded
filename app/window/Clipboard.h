// app/window/Clipboard.h
#pragma once

#include <QList>
#include <QStringList>

class QAbstractItemView;
class QWidget;

/// Rows of cells as tab-separated text, as spreadsheets paste it: a cell with a tab, a line break
/// or a quotation mark stands in quotation marks, those inside doubled.
QString tabSeparated(const QList<QStringList>& rows);

/// The selected cells of a table with the headings of their columns in front, as `tabSeparated`.
/// Cells in between that are not selected are empty. Empty when nothing is selected.
QString selectedCells(const QAbstractItemView& view);

/// What copying takes from the widget that has the keyboard: the selected cells of a table, the
/// fields of a panel, the selected text of a field or label. Empty: nothing to copy.
QString copyableText(const QWidget* focus);

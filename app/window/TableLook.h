// app/window/TableLook.h
#pragma once

#include <QMargins>

class QTableView;

/// Around what a view of the chosen well has: it does not touch the line below its tab.
inline constexpr QMargins kViewMargins(0, 4, 0, 0);

/// What the tables of the window have in common: read only, close rows, no wrapping, Tab leaves the
/// table for the next pane.
void lookLikeTable(QTableView& table);

/// Makes each column wide enough for its heading and for the rows in sight.
void fitColumns(QTableView& table);

// app/window/TableLook.h
#pragma once

class QTableView;

/// What the tables of the window have in common: read only, close rows, no wrapping, Tab leaves the
/// table for the next pane.
void lookLikeTable(QTableView& table);

/// Makes each column wide enough for its heading and for the rows in sight.
void fitColumns(QTableView& table);

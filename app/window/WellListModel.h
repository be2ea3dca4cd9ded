// app/window/WellListModel.h
#pragma once

#include "app/window/WellNames.h"

#include <QAbstractTableModel>

/// The wells of the database as rows of name and code.
class WellListModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Code, ColumnCount };
    enum Role {
        WellIdRole = Qt::UserRole, ///< WELL_IDENT.well_id
        SearchRole,                ///< the cell's text as `searchForm` makes it
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setWells(std::vector<WellName> wells);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Row {
        WellName well;
        QString search[ColumnCount];
    };
    std::vector<Row> rows_;
};

/// A text as searching compares it: letter case gone in every script, a letter with its accent as
/// one character, the backquote as the apostrophe that it stands for.
QString searchForm(const QString& text);

// app/window/WellFilter.h
#pragma once

#include <QCollator>
#include <QSortFilterProxyModel>

/// The rows of a `WellListModel` that a search text leaves, in the order that people count wells
/// in: 1/9-2 before 1/10-1.
class WellFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit WellFilter(QObject* parent = nullptr);

    /// Leaves the wells whose name or code contains `text`, blanks around it ignored.
    void setText(const QString& text);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QString wanted_;
    QCollator order_;
};

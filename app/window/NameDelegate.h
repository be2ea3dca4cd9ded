// app/window/NameDelegate.h
#pragma once

#include <QStyledItemDelegate>

/// Draws names of taxa with their italics, which a model gives as a `NameText` under this role.
/// Cells without one, and cells too narrow for the whole name, end with an ellipsis as texts do.
class NameDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    static constexpr int kNameRole = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
        const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

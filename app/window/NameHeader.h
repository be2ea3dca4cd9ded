// app/window/NameHeader.h
#pragma once

#include <QHeaderView>

struct NameText;

/// Heads of columns that are names of taxa, which the model gives under `NameDelegate::kNameRole`:
/// written upwards, so that a column is no wider than its cells.
class NameHeader : public QHeaderView {
    Q_OBJECT

public:
    explicit NameHeader(QWidget* parent = nullptr);

    /// What the longest name of the columns from `first` on needs, up to a limit beyond which names
    /// end with an ellipsis.
    int heightForNames(int first) const;

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    NameText nameOf(int section) const;
};

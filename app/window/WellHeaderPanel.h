// app/window/WellHeaderPanel.h
#pragma once

#include "app/window/HeaderFields.h"

#include <QScrollArea>

class QGridLayout;
class QLabel;

/// The header of the chosen well: its name as a title, the fields below it. The panel takes the
/// keyboard as one, so that its fields are no stops of the Tab key; a screen reader gets all of
/// them as its description.
class WellHeaderPanel : public QScrollArea {
    Q_OBJECT

public:
    explicit WellHeaderPanel(QWidget* parent = nullptr);

    /// Fields must have the captions of the earlier calls in the same order; the last one gets the
    /// whole width.
    void show(const QString& title, const std::vector<HeaderField>& fields);
    /// Shows no well.
    void clear();

    /// Captions and values as tab-separated lines, the title first; empty without a well.
    QString text() const;

    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void addField(const QString& caption, int number, int fields);
    void markFocus(bool focused);

    QLabel* title_;
    QGridLayout* grid_;
    std::vector<QLabel*> values_;
    std::vector<HeaderField> fields_;
};

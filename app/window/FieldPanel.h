// app/window/FieldPanel.h
#pragma once

#include "app/window/HeaderFields.h"

#include <QScrollArea>

#include <vector>

class QLabel;

/// A panel of captions and values. It takes the keyboard as one, so that its fields are no stops of
/// the Tab key; a screen reader gets all of them as its description.
class FieldPanel : public QScrollArea {
    Q_OBJECT

public:
    explicit FieldPanel(QWidget* parent = nullptr);

    /// Captions and values as tab-separated lines; empty when nothing is shown.
    QString text() const;

protected:
    /// A caption on the page that takes part in the colours of the panel.
    QLabel* addCaption(const QString& caption);
    /// What the panel shows now, in the order in which it is read out and copied; none hides it.
    void setFields(std::vector<HeaderField> fields);

    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void markFocus(bool focused);

    std::vector<QLabel*> captions_;
    std::vector<HeaderField> fields_;
};

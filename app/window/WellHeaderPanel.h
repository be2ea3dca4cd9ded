// app/window/WellHeaderPanel.h
#pragma once

#include "app/window/HeaderFields.h"

#include <QScrollArea>

class QLabel;

/// The header of the chosen well: its name as a title, the fields below it. The panel takes the
/// keyboard as one, so that its fields are no stops of the Tab key; a screen reader gets all of
/// them as its description.
class WellHeaderPanel : public QScrollArea {
    Q_OBJECT

public:
    explicit WellHeaderPanel(QWidget* parent = nullptr);

    /// Shows the header of `well` (null: nothing) with depths in `units` ('F' or 'M').
    void showWell(const Well* well, char units);

    /// Captions and values as tab-separated lines, the name first; empty without a well.
    QString text() const;

    /// As high as the fields need at that width, up to a limit beyond which the panel scrolls.
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeFields();
    void markFocus(bool focused);
    void colourCaptions();

    QLabel* title_;
    std::vector<QLabel*> captions_;
    std::vector<QLabel*> values_; // in the order of `headerFields`
    std::vector<HeaderField> fields_;
};

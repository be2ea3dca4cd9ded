// app/window/WellHeaderPanel.h
#pragma once

#include "app/window/FieldPanel.h"

class QToolButton;

/// The header of the chosen well: its name as a title, the fields below it.
class WellHeaderPanel : public FieldPanel {
    Q_OBJECT

public:
    explicit WellHeaderPanel(QWidget* parent = nullptr);

    /// Shows the header of `well` (null: nothing) with depths in `units` ('F' or 'M').
    void showWell(const Well* well, char units);

    /// Shows the title alone, or the fields too.
    void setFolded(bool folded);

    /// As high as the fields need at that width, up to a limit beyond which the panel scrolls.
    int heightForWidth(int width) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    void foldAsked(bool folded);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeFields();

    bool folded_ = false;
    QToolButton* arrow_;
    QLabel* title_;
    std::vector<QLabel*> values_; // in the order of `headerFields`
};

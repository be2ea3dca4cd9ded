// app/window/WellView.h
#pragma once

#include "app/window/DepthUnits.h"

#include <QWidget>

class Well;

/// One look at the chosen well: a tab below its header.
class WellView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows `well` (null: nothing) with depths in `units` ('F' or 'M'); the well lives until the
    /// next call.
    virtual void showWell(const Well* well, char units) = 0;
    /// The same well in `units`; `shown` is what the user chose.
    virtual void setUnits(DepthUnits shown, char units) = 0;
    /// What takes the keyboard.
    virtual QWidget& place() const = 0;

signals:
    /// The user turned a switch for the units.
    void unitsChosen(DepthUnits units);
};

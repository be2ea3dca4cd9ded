// app/window/UnitsSwitch.h
#pragma once

#include "app/window/DepthUnits.h"

#include <QWidget>

class QComboBox;

/// The switch for the units that depths are shown in, with its caption.
class UnitsSwitch : public QWidget {
    Q_OBJECT

public:
    explicit UnitsSwitch(QWidget* parent = nullptr);

    /// Stands there from now on. Emits nothing.
    void setUnits(DepthUnits units);

signals:
    /// The user turned it.
    void unitsChosen(DepthUnits units);

private:
    QComboBox* choice_;
};

// app/window/WellView.h
#pragma once

#include <QWidget>

#include <string>
#include <vector>

class Well;

/// One look at the chosen well: a tab below its header.
class WellView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows `well` (null: nothing) with depths in `units` ('F' or 'M'), as far as it is loaded;
    /// the well lives until the next call.
    virtual void showWell(Well* well, char units) = 0;
    /// More of the same well may be loaded by now.
    virtual void showMore() = 0;
    /// The same well in `units`.
    virtual void setUnits(char units) = 0;
    /// What takes the keyboard.
    virtual QWidget& place() const = 0;
    /// The interpretation to show from now on, of views that show one; 0 where the well has not got
    /// it.
    virtual void setVersion(long /*interp_id*/) {}
    /// Whether the user edited what is shown and did not save it.
    virtual bool hasUnsaved() const { return false; }
    /// Saves the edits. Whether all are saved; if not, that was told.
    virtual bool saveEdits() { return true; }

signals:
    /// The view read further things of the database, and that is what was told.
    void told(const QString& reading, const std::vector<std::string>& reports);
    /// The user chose another interpretation.
    void versionChosen(long interp_id);
    /// `hasUnsaved` may be another one.
    void unsavedChanged();
};

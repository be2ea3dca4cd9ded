// app/window/WellsPage.h
#pragma once

#include "app/window/DepthUnits.h"
#include "app/window/Page.h"
#include "app/window/WindowServices.h"

#include <QTimer>

#include <memory>
#include <vector>

class QShortcut;
class QStackedWidget;
class QTabWidget;
class ReadingBar;
class ReportStrip;
class StartPage;
class UnitsSwitch;
class Well;
class WellHeaderPanel;
class WellListPane;
class WellReader;
class WellView;
struct LoadedWell;

/// The wells of the database, and the header and the views of the chosen one: its samples at once,
/// the rest as it is loaded, with what was refused at the foot. Without wells it says what to do
/// about it.
class WellsPage : public Page {
    Q_OBJECT

public:
    explicit WellsPage(WindowServices services, QWidget* parent = nullptr);
    ~WellsPage() override;

    /// How the database is called, and the option of a command line that names it.
    void setDatabase(const QString& name, const QString& option);
    /// The units that all depths are shown in from now on.
    void setUnits(DepthUnits units);
    /// As if the user chose that well of the list; whether it is there.
    bool chooseWell(long well_id);
    /// Brings the view with that title into sight; whether there is one.
    bool openView(const QString& title);
    /// Whether the user can go without what is edited of the chosen well: where edits are not
    /// saved, the user is asked.
    bool mayLeave();
    /// Shows the whole header of the well, or only its title.
    void setHeaderFolded(bool folded);
    /// Whether the chosen well is still being loaded.
    bool isReading() const;

    void read() override;
    void startSearch() override;
    QWidget& firstPlace() const override;
    QList<QWidget*> panes() const override;

signals:
    void openAsked();
    /// The user turned the arrow of the header.
    void headerFoldAsked(bool folded);
    /// The user turned a switch on the page.
    void unitsChosen(DepthUnits units);

private:
    void addView(WellView* view, const QString& title);
    void addViews();
    QWidget* makeDetails();
    void connectReader();
    void setReading(bool reading);
    void markUnsaved();
    bool hasUnsaved() const;
    void leaveFor(long well_id);
    void showWell(long well_id);
    Well* well() const;
    char shownUnits() const;

    WindowServices services_;
    QString databaseName_;
    QString databaseOption_;
    DepthUnits units_ = DepthUnits::OfWell;
    std::unique_ptr<LoadedWell> well_; // chosen; header, views and reader point into it
    WellReader* reader_;
    QShortcut* escape_; // leaves off loading
    QTimer leaving_;
    long next_ = 0; // the well that the user chose and that is not shown yet

    QStackedWidget* states_; // the start, or list and details
    StartPage* start_;
    QWidget* both_;
    WellListPane* wells_;
    WellHeaderPanel* header_;
    QTabWidget* tabs_;
    UnitsSwitch* switch_;
    ReadingBar* reading_;
    ReportStrip* reports_;
    std::vector<WellView*> views_; // in the order of the tabs
    QStringList titles_;           // of the tabs, without marks
};

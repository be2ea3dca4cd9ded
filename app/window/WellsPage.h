// app/window/WellsPage.h
#pragma once

#include "app/window/DepthUnits.h"
#include "app/window/Page.h"

#include <memory>
#include <vector>

class QStackedWidget;
class QTabWidget;
class StartPage;
class Well;
class WellHeaderPanel;
class WellListPane;
class WellView;

/// The wells of the database, and the header and the views of the chosen one. Without wells it says
/// what to do about it.
class WellsPage : public Page {
    Q_OBJECT

public:
    explicit WellsPage(QWidget* parent = nullptr);
    ~WellsPage() override;

    /// How the database is called, and the option of a command line that names it.
    void setDatabase(const QString& name, const QString& option);
    /// The units that all depths are shown in from now on.
    void setUnits(DepthUnits units);

    void read() override;
    void startSearch() override;
    QWidget& firstPlace() const override;
    QList<QWidget*> panes() const override;

signals:
    void openAsked();
    /// The user turned a switch on the page.
    void unitsChosen(DepthUnits units);

private:
    void addView(WellView* view, const QString& title);
    QWidget* makeDetails();
    void showWell(long well_id);
    char shownUnits() const;

    QString databaseName_;
    QString databaseOption_;
    DepthUnits units_ = DepthUnits::OfWell;
    std::unique_ptr<Well> well_; // chosen; header and views point into it

    QStackedWidget* states_; // the start, or list and details
    StartPage* start_;
    QWidget* both_;
    WellListPane* wells_;
    WellHeaderPanel* header_;
    QTabWidget* tabs_;
    std::vector<WellView*> views_; // in the order of the tabs
};

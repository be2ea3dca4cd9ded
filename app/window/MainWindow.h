// app/window/MainWindow.h
#pragma once

#include "app/shell/ConnectionSettings.h"
#include "app/window/DepthUnits.h"
#include "app/window/WindowServices.h"

#include <QMainWindow>

class Page;
class QActionGroup;
class QTabWidget;
class TaxaPage;
class WellsPage;

/// The main window: a page for the wells of the database, a page for its names of taxa. Closing it
/// ends the event loop of the application object; before edits are lost, the user is asked.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Without a database. `settings` says how one that the user opens is spoken to and by whom.
    explicit MainWindow(ConnectionSettings settings, WindowServices services);

    /// Shows the database that the settings name and that the session is connected with.
    void showDatabase();
    /// Opens a database file: in this window while it has none, else in another process, as one
    /// process serves one database. A failure is reported.
    void openFile(const QString& file);
    /// The units that all depths are shown in from now on.
    void setUnits(DepthUnits units);
    /// The page of the wells: which well is chosen, which of its views is in sight, whether it is
    /// still being loaded.
    WellsPage& wells() const { return *wells_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makePages();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeHelpMenu();
    void chooseFile();
    void copySelection();
    void cyclePanes(int step);
    void openPage(int number);
    void reload();
    void about();
    Page& page() const;
    QList<Page*> pages() const;

    ConnectionSettings settings_;
    WindowServices services_;
    bool connected_ = false;
    DepthUnits units_ = DepthUnits::OfWell;

    QTabWidget* tabs_; // the pages
    WellsPage* wells_;
    TaxaPage* taxa_;
    QActionGroup* unitsActions_;
    QAction* header_ = nullptr;       // whether the header of the well is shown whole
    QList<QAction*> databaseActions_; // of use with a database only
};

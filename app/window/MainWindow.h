// app/window/MainWindow.h
#pragma once

#include "app/shell/ConnectionSettings.h"
#include "app/window/DepthUnits.h"
#include "app/window/WindowServices.h"

#include <QMainWindow>

#include <memory>

class QActionGroup;
class QStackedWidget;
class SamplePane;
class StartPage;
class Well;
class WellHeaderPanel;
class WellListPane;

/// The main window: the wells of the database, and header and samples of the chosen one. It reads
/// only. Closing it ends the event loop of the application object.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Without a database. `settings` says how one that the user opens is spoken to and by whom.
    explicit MainWindow(ConnectionSettings settings, WindowServices services);
    ~MainWindow() override;

    /// Shows the database that the settings name and that the session is connected with.
    void showDatabase();
    /// Opens a database file: in this window while it has none, else in another process, as one
    /// process serves one database. A failure is reported.
    void openFile(const QString& file);
    /// The units that all depths are shown in from now on.
    void setUnits(DepthUnits units);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makePanes();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeHelpMenu();
    void chooseFile();
    void copySelection();
    void cyclePanes(int step);
    void showWell(long well_id);
    void reload();
    void about();
    char shownUnits() const;

    ConnectionSettings settings_;
    WindowServices services_;
    bool connected_ = false;
    DepthUnits units_ = DepthUnits::OfWell;
    std::unique_ptr<Well> well_; // chosen; the panes point into it

    QStackedWidget* pages_;
    StartPage* start_;
    QWidget* panes_ = nullptr; // the next three
    WellListPane* wells_;
    WellHeaderPanel* header_;
    SamplePane* samples_;
    QActionGroup* unitsActions_;
    QList<QAction*> databaseActions_; // of use with a database only
};

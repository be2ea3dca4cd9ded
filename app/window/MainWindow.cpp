// app/window/MainWindow.cpp
#include "app/window/MainWindow.h"

#include "app/window/Clipboard.h"
#include "app/window/OpenAndRemember.h"
#include "app/window/Page.h"
#include "app/window/ProgramArguments.h"
#include "app/window/RecentMenu.h"
#include "app/window/TaxaPage.h"
#include "app/window/WellsPage.h"
#include "db/ErrorReporter.h"
#include "platform/zapp/qt/QtWindow.h"
#include "platform/zapp/zApp.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileInfo>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>

namespace {

constexpr QSize kFirstSize(1100, 700);

QString databaseName(const ConnectionSettings& settings)
{
    return settings.databaseFile.empty()
        ? QString::fromStdString(withoutSecrets(settings.connectString))
        : QFileInfo(QString::fromStdString(settings.databaseFile)).fileName();
}

// A connection string may hold a password, so it is not repeated.
QString databaseOption(const ConnectionSettings& settings)
{
    return settings.databaseFile.empty()
        ? QStringLiteral("--connect STRING")
        : QStringLiteral("--database \"%1\"").arg(QString::fromStdString(settings.databaseFile));
}

} // namespace

MainWindow::MainWindow(ConnectionSettings settings, WindowServices services)
    : settings_(std::move(settings))
    , services_(std::move(services))
    , tabs_(new QTabWidget)
    , wells_(new WellsPage(services_))
    , taxa_(new TaxaPage)
    , unitsActions_(new QActionGroup(this))
{
    makePages();
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeHelpMenu();
    for (QAction* action : databaseActions_)
        action->setEnabled(false);
    setWindowTitle(tr("Zonaris"));
    resize(kFirstSize);
}

// A page more of the window is a line here.
void MainWindow::makePages()
{
    tabs_->setDocumentMode(true);
    tabs_->setObjectName(QStringLiteral("pages"));
    tabs_->addTab(wells_, tr("Wells"));
    tabs_->addTab(taxa_, tr("Taxa"));
    tabs_->tabBar()->hide(); // until there is a database
    tabs_->tabBar()->setAccessibleName(tr("Pages"));
    setCentralWidget(tabs_);
    connect(wells_, &WellsPage::openAsked, this, &MainWindow::chooseFile);
    connect(wells_, &WellsPage::unitsChosen, this, &MainWindow::setUnits);
    connect(wells_, &WellsPage::headerFoldAsked, this,
        [this](bool folded) { header_->setChecked(!folded); });
}

void MainWindow::makeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    QAction* open = menu->addAction(tr("&Open database..."), this, &MainWindow::chooseFile);
    open->setShortcut(QKeySequence::Open);
    auto* recent = new RecentMenu(tr("Open &recent"), menu);
    connect(recent, &RecentMenu::chosen, this, &MainWindow::openFile);
    menu->addMenu(recent);
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void MainWindow::makeEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    QAction* copy = menu->addAction(tr("&Copy"), this, &MainWindow::copySelection);
    copy->setShortcut(QKeySequence::Copy);
    QAction* find = menu->addAction(tr("&Find"), this, [this] { page().startSearch(); });
    find->setShortcut(QKeySequence::Find);
    databaseActions_ << copy << find;
}

void MainWindow::makeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    for (int number = 0; number < tabs_->count(); ++number) {
        QAction* open =
            menu->addAction(tabs_->tabText(number), this, [this, number] { openPage(number); });
        open->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number)));
        databaseActions_ << open;
    }
    menu->addSeparator();
    const auto addUnits = [&](const QString& text, DepthUnits units) {
        QAction* action = menu->addAction(text, this, [this, units] { setUnits(units); });
        action->setCheckable(true);
        action->setChecked(units == units_);
        action->setData(QVariant::fromValue(units));
        unitsActions_->addAction(action);
    };
    addUnits(tr("&Depths as the well has them"), DepthUnits::OfWell);
    addUnits(tr("Depths in &metres"), DepthUnits::Metres);
    addUnits(tr("Depths in &feet"), DepthUnits::Feet);
    menu->addSeparator();
    header_ = menu->addAction(tr("&Whole header of the well"));
    header_->setCheckable(true);
    header_->setChecked(true);
    header_->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_H));
    connect(
        header_, &QAction::toggled, this, [this](bool whole) { wells_->setHeaderFolded(!whole); });
    menu->addSeparator();
    QAction* next = menu->addAction(tr("&Next pane"), this, [this] { cyclePanes(1); });
    next->setShortcut(QKeySequence(Qt::Key_F6));
    QAction* back = menu->addAction(tr("&Previous pane"), this, [this] { cyclePanes(-1); });
    back->setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F6));
    menu->addSeparator();
    QAction* again = menu->addAction(tr("&Read again"), this, &MainWindow::reload);
    again->setShortcut(QKeySequence(Qt::Key_F5));
    databaseActions_ << header_ << next << back << again;
}

void MainWindow::makeHelpMenu()
{
    menuBar()->addMenu(tr("&Help"))->addAction(tr("&About Zonaris"), this, &MainWindow::about);
}

void MainWindow::showDatabase()
{
    connected_ = true;
    setWindowTitle(databaseName(settings_) + QStringLiteral(" \u2013 ") + tr("Zonaris"));
    for (QAction* action : databaseActions_)
        action->setEnabled(true);
    tabs_->tabBar()->show();
    wells_->setDatabase(databaseName(settings_), databaseOption(settings_));
    reload();
    openPage(0);
}

void MainWindow::openFile(const QString& file)
{
    ConnectionSettings wanted = settings_;
    wanted.databaseFile = file.toStdString();
    wanted.connectString.clear();
    if (connected_) {
        if (!services_.startProgram(programArguments(wanted)))
            reportError("Zonaris could not be started for " + wanted.databaseFile);
        return;
    }
    const std::string error = openAndRemember(wanted);
    if (!error.empty()) {
        reportError(error);
        return;
    }
    settings_ = wanted;
    showDatabase();
}

void MainWindow::setUnits(DepthUnits units)
{
    units_ = units;
    for (QAction* action : unitsActions_->actions())
        action->setChecked(action->data().value<DepthUnits>() == units);
    wells_->setUnits(units);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!wells_->mayLeave()) {
        event->ignore();
        return;
    }
    QMainWindow::closeEvent(event);
    if (_app)
        _app->quit();
}

void MainWindow::chooseFile()
{
    const QFileInfo here(QString::fromStdString(settings_.databaseFile));
    const QString file = services_.chooseFile(this, here.path());
    if (!file.isEmpty())
        openFile(file);
}

void MainWindow::copySelection()
{
    const QString text = copyableText(focusWidget());
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text);
}

void MainWindow::cyclePanes(int step)
{
    const QList<QWidget*> panes = page().panes();
    const QWidget* focus = focusWidget();
    const auto holds = [&](const QWidget* pane) {
        return pane == focus || pane->isAncestorOf(focus);
    };
    const auto here = std::find_if(panes.begin(), panes.end(), holds);
    const qsizetype count = panes.size();
    // From the search field and the switch the way leads to the pane they belong to.
    const qsizetype from = here == panes.end() ? (step > 0 ? -1 : 1) : here - panes.begin();
    panes[(from + step + count) % count]->setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::openPage(int number)
{
    tabs_->setCurrentIndex(number);
    page().firstPlace().setFocus(Qt::ShortcutFocusReason);
}

void MainWindow::reload()
{
    for (Page* each : pages())
        each->read();
}

void MainWindow::about()
{
    const std::string text =
        "Zonaris " ZONARIS_VERSION "\n\nWells, samples and the fossils in them."
        "\n\nThe ages of the starter dictionary: International Chronostratigraphic Chart 2024-12,"
        " International Commission on Stratigraphy, CC BY 4.0";
    zMessage(windowOf(this), text.c_str(), "About Zonaris", MB_OK);
}

Page& MainWindow::page() const { return *static_cast<Page*>(tabs_->currentWidget()); }

QList<Page*> MainWindow::pages() const { return {wells_, taxa_}; }

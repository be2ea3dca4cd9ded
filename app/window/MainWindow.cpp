// app/window/MainWindow.cpp
#include "app/window/MainWindow.h"

#include "app/shell/OpenDatabase.h"
#include "app/window/Clipboard.h"
#include "app/window/ProgramArguments.h"
#include "app/window/SamplePane.h"
#include "app/window/StartPage.h"
#include "app/window/WellHeaderPanel.h"
#include "app/window/WellListPane.h"
#include "app/window/WellNames.h"
#include "db/ErrorReporter.h"
#include "platform/zapp/qt/QtWindow.h"
#include "platform/zapp/zApp.h"
#include "well/Well.h"

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr QSize kFirstSize(1100, 700);
constexpr int kListWidth = 250;

QWidget* below(QWidget* upper, QWidget* lower)
{
    auto* both = new QWidget;
    auto* layout = new QVBoxLayout(both);
    layout->addWidget(upper);
    layout->addWidget(lower, 1);
    return both;
}

QSplitter* beside(QWidget* left, QWidget* right)
{
    auto* both = new QSplitter(Qt::Horizontal);
    both->addWidget(left);
    both->addWidget(right);
    both->setStretchFactor(1, 1);
    both->setChildrenCollapsible(false);
    both->setSizes({kListWidth, kFirstSize.width() - kListWidth});
    return both;
}

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
    , pages_(new QStackedWidget)
    , start_(new StartPage)
    , wells_(new WellListPane)
    , header_(new WellHeaderPanel)
    , samples_(new SamplePane)
    , unitsActions_(new QActionGroup(this))
{
    makePanes();
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeHelpMenu();
    for (QAction* action : databaseActions_)
        action->setEnabled(false);
    setWindowTitle(tr("Zonaris"));
    resize(kFirstSize);
}

// The panes go with the base class, after the well that they point into.
MainWindow::~MainWindow() { samples_->show(nullptr, 'M'); }

void MainWindow::makePanes()
{
    panes_ = beside(wells_, below(header_, samples_));
    pages_->addWidget(start_);
    pages_->addWidget(panes_);
    setCentralWidget(pages_);
    connect(start_, &StartPage::openAsked, this, &MainWindow::chooseFile);
    connect(wells_, &WellListPane::wellChosen, this, &MainWindow::showWell);
    connect(samples_, &SamplePane::unitsChosen, this, &MainWindow::setUnits);
}

void MainWindow::makeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    QAction* open = menu->addAction(tr("&Open database..."), this, &MainWindow::chooseFile);
    open->setShortcut(QKeySequence::Open);
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
}

void MainWindow::makeEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    QAction* copy = menu->addAction(tr("&Copy"), this, &MainWindow::copySelection);
    copy->setShortcut(QKeySequence::Copy);
    QAction* find = menu->addAction(tr("&Find well"), wells_, &WellListPane::startSearch);
    find->setShortcut(QKeySequence::Find);
    databaseActions_ << copy << find;
}

void MainWindow::makeViewMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&View"));
    const auto addUnits = [&](const QString& text, DepthUnits units) {
        QAction* action = menu->addAction(text, this, [this, units] { setUnits(units); });
        action->setCheckable(true);
        action->setChecked(units == units_);
        action->setData(QVariant::fromValue(units));
        unitsActions_->addAction(action);
    };
    addUnits(tr("Depths as the &well has them"), DepthUnits::OfWell);
    addUnits(tr("Depths in &metres"), DepthUnits::Metres);
    addUnits(tr("Depths in &feet"), DepthUnits::Feet);
    menu->addSeparator();
    QAction* next = menu->addAction(tr("&Next pane"), this, [this] { cyclePanes(1); });
    next->setShortcut(QKeySequence(Qt::Key_F6));
    QAction* back = menu->addAction(tr("&Previous pane"), this, [this] { cyclePanes(-1); });
    back->setShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F6));
    menu->addSeparator();
    QAction* again = menu->addAction(tr("&Read again"), this, &MainWindow::reload);
    again->setShortcut(QKeySequence(Qt::Key_F5));
    databaseActions_ << next << back << again;
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
    pages_->setCurrentWidget(panes_);
    reload();
    wells_->list().setFocus();
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
    const std::string error = openDatabase(wanted);
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
    samples_->setUnits(units, shownUnits());
    header_->showWell(well_.get(), shownUnits());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
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
    const QList<QWidget*> panes{&wells_->list(), header_, &samples_->table()};
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

void MainWindow::showWell(long well_id)
{
    // The panes keep the well before until this one is there: a message box that a failure shows
    // lets them paint.
    std::unique_ptr<Well> well;
    if (well_id != 0) {
        well = std::make_unique<Well>(well_id);
        well->LoadSamples(0);
    }
    well_.swap(well);
    samples_->show(well_.get(), shownUnits());
    header_->showWell(well_.get(), shownUnits());
}

void MainWindow::reload()
{
    auto wells = readWellNames();
    if (!wells)
        return;
    if (wells->empty())
        start_->showNoWells(databaseName(settings_), databaseOption(settings_));
    pages_->setCurrentWidget(wells->empty() ? start_ : panes_);
    wells_->setWells(std::move(*wells));
}

void MainWindow::about()
{
    const std::string text =
        "Zonaris " ZONARIS_VERSION "\n\nWells, samples and the fossils in them.";
    zMessage(windowOf(this), text.c_str(), "About Zonaris", MB_OK);
}

char MainWindow::shownUnits() const { return unitsLetter(units_, well_ ? well_->units : 'M'); }

// app/window/WellsPage.cpp
#include "app/window/WellsPage.h"

#include "app/window/SamplePane.h"
#include "app/window/Splitting.h"
#include "app/window/StartPage.h"
#include "app/window/WellHeaderPanel.h"
#include "app/window/WellListPane.h"
#include "app/window/WellNames.h"
#include "well/Well.h"

#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int kListWidth = 250;

} // namespace

WellsPage::WellsPage(QWidget* parent)
    : Page(parent)
    , states_(new QStackedWidget(this))
    , start_(new StartPage)
    , wells_(new WellListPane)
    , header_(new WellHeaderPanel)
    , tabs_(new QTabWidget)
{
    both_ = beside(wells_, makeDetails(), kListWidth);
    states_->addWidget(start_);
    states_->addWidget(both_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(states_);
    connect(start_, &StartPage::openAsked, this, &WellsPage::openAsked);
    connect(wells_, &WellListPane::wellChosen, this, &WellsPage::showWell);
}

// The views go with the base class, after the well that they point into.
WellsPage::~WellsPage()
{
    for (WellView* view : views_)
        view->showWell(nullptr, 'M');
}

void WellsPage::setDatabase(const QString& name, const QString& option)
{
    databaseName_ = name;
    databaseOption_ = option;
}

void WellsPage::setUnits(DepthUnits units)
{
    units_ = units;
    for (WellView* view : views_)
        view->setUnits(units, shownUnits());
    header_->showWell(well_.get(), shownUnits());
}

void WellsPage::read()
{
    auto wells = readWellNames();
    if (!wells)
        return;
    if (wells->empty())
        start_->showNoWells(databaseName_, databaseOption_);
    states_->setCurrentWidget(wells->empty() ? start_ : both_);
    wells_->setWells(std::move(*wells));
}

void WellsPage::startSearch() { wells_->startSearch(); }

QWidget& WellsPage::firstPlace() const { return wells_->list(); }

QList<QWidget*> WellsPage::panes() const
{
    const auto current = static_cast<std::size_t>(tabs_->currentIndex());
    return {&wells_->list(), header_, &views_[current]->place()};
}

// A view more of the chosen well is a line here.
QWidget* WellsPage::makeDetails()
{
    tabs_->setDocumentMode(true);
    tabs_->setTabBarAutoHide(true);     // one view needs no choice
    tabs_->setFocusPolicy(Qt::NoFocus); // else the Tab key stops at the bar that is hidden
    addView(new SamplePane, tr("&Samples"));

    auto* details = new QWidget;
    auto* layout = new QVBoxLayout(details);
    layout->addWidget(header_);
    layout->addWidget(tabs_, 1);
    return details;
}

void WellsPage::addView(WellView* view, const QString& title)
{
    tabs_->addTab(view, title);
    views_.push_back(view);
    connect(view, &WellView::unitsChosen, this, &WellsPage::unitsChosen);
}

void WellsPage::showWell(long well_id)
{
    // The views keep the well before until this one is there: a message box that a failure shows
    // lets them paint.
    std::unique_ptr<Well> well;
    if (well_id != 0) {
        well = std::make_unique<Well>(well_id);
        well->LoadSamples(0);
    }
    well_.swap(well);
    for (WellView* view : views_)
        view->showWell(well_.get(), shownUnits());
    header_->showWell(well_.get(), shownUnits());
}

char WellsPage::shownUnits() const { return unitsLetter(units_, well_ ? well_->units : 'M'); }

// app/window/WellsPage.cpp
#include "app/window/WellsPage.h"

#include "app/shell/WellLoading.h"
#include "app/window/Interpretation.h"
#include "app/window/OccurrencePane.h"
#include "app/window/ReadingBar.h"
#include "app/window/ReportStrip.h"
#include "app/window/Splitting.h"
#include "app/window/StartPage.h"
#include "app/window/SurveyPane.h"
#include "app/window/TablePane.h"
#include "app/window/UnitsSwitch.h"
#include "app/window/WellHeaderPanel.h"
#include "app/window/WellListPane.h"
#include "app/window/WellNames.h"
#include "app/window/WellReader.h"
#include "app/window/WellTables.h"
#include "app/window/ZonePane.h"

#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kListWidth = 250;

constexpr TableWords kSamples{"sampleTable", "Samples of the well", "No samples", "Samples: %1"};
constexpr TableWords kEvents{"eventTable", "Events of the well", "No events", "Events: %1"};
constexpr TableWords kCores{"coreTable", "Cores of the well", "No cores", "Cores: %1"};
constexpr TableWords kLithology{"lithologyTable", "Lithology of the well", "No lithology",
    "Rocks and what is said of them: %1"};
constexpr TableWords kEnvironments{
    "environmentTable", "Environments of the well", "No environments", "Environments: %1"};
constexpr TableWords kMarkers{"markerTable", "Markers and picks of the well",
    "No markers and no picks", "Markers and picks: %1"};

} // namespace

WellsPage::WellsPage(QWidget* parent)
    : Page(parent)
    , reader_(new WellReader(this))
    , states_(new QStackedWidget(this))
    , start_(new StartPage)
    , wells_(new WellListPane)
    , header_(new WellHeaderPanel)
    , tabs_(new QTabWidget)
    , switch_(new UnitsSwitch)
    , reading_(new ReadingBar)
    , reports_(new ReportStrip)
{
    both_ = beside(wells_, makeDetails(), kListWidth);
    states_->addWidget(start_);
    states_->addWidget(both_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(states_);
    connect(start_, &StartPage::openAsked, this, &WellsPage::openAsked);
    connect(wells_, &WellListPane::wellChosen, this, &WellsPage::showWell);
    connect(switch_, &UnitsSwitch::unitsChosen, this, &WellsPage::unitsChosen);
    connectReader();
}

// The views go with the base class, after the well that they point into.
WellsPage::~WellsPage()
{
    reader_->stop();
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
    switch_->setUnits(units);
    for (WellView* view : views_)
        view->setUnits(shownUnits());
    header_->showWell(well(), shownUnits());
}

bool WellsPage::chooseWell(long well_id) { return wells_->choose(well_id); }

bool WellsPage::openView(const QString& title)
{
    for (int number = 0; number < tabs_->count(); ++number) {
        if (tabs_->tabText(number).remove(QLatin1Char('&')).compare(title, Qt::CaseInsensitive)
            != 0)
            continue;
        tabs_->setCurrentIndex(number);
        return true;
    }
    return false;
}

bool WellsPage::isReading() const { return reader_->isReading(); }

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
void WellsPage::addViews()
{
    addView(new TablePane(sampleTable(), kSamples), tr("&Samples"));
    addView(new OccurrencePane, tr("&Occurrences"));
    addView(new TablePane(eventTable(), kEvents), tr("Eve&nts"));
    addView(new TablePane(coreTable(), kCores), tr("&Cores"));
    addView(new SurveyPane, tr("De&pth model"));
    addView(new ZonePane, tr("&Zones"));
    addView(new RecordPane(lithology(), kLithology), tr("&Lithology"));
    addView(new RecordPane(environments(), kEnvironments), tr("Environment"));
    addView(new RecordPane(markers(), kMarkers), tr("Mar&kers and picks"));
}

QWidget* WellsPage::makeDetails()
{
    tabs_->setDocumentMode(true);
    tabs_->tabBar()->setAccessibleName(tr("Views of the well"));
    tabs_->setCornerWidget(switch_);
    addViews();
    // The arrows that a narrow window shows: the keys left and right do what they do.
    for (QToolButton* arrow : tabs_->tabBar()->findChildren<QToolButton*>())
        arrow->setFocusPolicy(Qt::NoFocus);
    auto* details = new QWidget;
    auto* layout = new QVBoxLayout(details);
    layout->addWidget(header_);
    layout->addWidget(tabs_, 1);
    layout->addWidget(reading_);
    layout->addWidget(reports_);
    return details;
}

void WellsPage::addView(WellView* view, const QString& title)
{
    tabs_->addTab(view, title);
    views_.push_back(view);
    connect(view, &WellView::told, reports_, &ReportStrip::add);
}

void WellsPage::connectReader()
{
    const auto showMore = [this] {
        for (WellView* view : views_)
            view->showMore();
    };
    connect(reading_, &ReadingBar::cancelled, reader_, &WellReader::cancel);
    connect(reader_, &WellReader::told, reports_, &ReportStrip::add);
    connect(reader_, &WellReader::progressed, reading_, &ReadingBar::showProgress);
    connect(reader_, &WellReader::progressed, this, showMore);
    connect(reader_, &WellReader::ended, this, [=, this](const QString& leftOff) {
        reading_->end();
        if (!leftOff.isEmpty())
            reports_->addLeftOff(leftOff);
        showMore();
    });
}

void WellsPage::showWell(long well_id)
{
    reader_->stop();
    reading_->end();
    reports_->clear();
    // The views keep the well before until the samples of this one are there: a message box that a
    // failure shows lets them paint.
    std::unique_ptr<LoadedWell> before = std::move(well_);
    if (well_id != 0) {
        auto loaded = std::make_unique<LoadedWell>(well_id);
        reader_->start(*loaded);
        well_ = std::move(loaded);
    }
    for (WellView* view : views_)
        view->showWell(well(), shownUnits());
    header_->showWell(well(), shownUnits());
}

Well* WellsPage::well() const { return well_ ? &well_->well : nullptr; }

char WellsPage::shownUnits() const { return unitsLetter(units_, well_ ? well()->units : 'M'); }

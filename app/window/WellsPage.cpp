// app/window/WellsPage.cpp
#include "app/window/WellsPage.h"

#include "app/shell/WellLoading.h"
#include "app/window/Interpretation.h"
#include "app/window/LithologyPane.h"
#include "app/window/OccurrencePane.h"
#include "app/window/ReadingBar.h"
#include "app/window/ReportStrip.h"
#include "app/window/Splitting.h"
#include "app/window/StartPage.h"
#include "app/window/SurveyPane.h"
#include "app/window/TablePane.h"
#include "app/window/Texts.h"
#include "app/window/UnitsSwitch.h"
#include "app/window/WellHeaderPanel.h"
#include "app/window/WellListPane.h"
#include "app/window/WellNames.h"
#include "app/window/WellReader.h"
#include "app/window/WellTables.h"
#include "app/window/ZonePane.h"

#include <QShortcut>
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
constexpr TableWords kEnvironments{
    "environmentTable", "Environments of the well", "No environments", "Environments: %1"};
constexpr TableWords kMarkers{"markerTable", "Markers and picks of the well",
    "No markers and no picks", "Markers and picks: %1"};

QString withoutKey(QString title) { return title.remove(QLatin1Char('&')); }

} // namespace

WellsPage::WellsPage(WindowServices services, QWidget* parent)
    : Page(parent)
    , services_(std::move(services))
    , reader_(new WellReader(this))
    , escape_(new QShortcut(Qt::Key_Escape, this))
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
    connect(wells_, &WellListPane::wellChosen, this, &WellsPage::leaveFor);
    connect(header_, &WellHeaderPanel::foldAsked, this, &WellsPage::headerFoldAsked);
    connect(switch_, &UnitsSwitch::unitsChosen, this, &WellsPage::unitsChosen);
    connectReader();
    leaving_.setSingleShot(true);
    leaving_.setInterval(0);
    connect(&leaving_, &QTimer::timeout, this, [this] {
        if (mayLeave())
            showWell(next_);
        else
            wells_->stayWith(well()->well_id);
    });
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
        if (withoutKey(titles_[number]).compare(title, Qt::CaseInsensitive) != 0)
            continue;
        tabs_->setCurrentIndex(number);
        return true;
    }
    return false;
}

bool WellsPage::isReading() const { return reader_->isReading(); }

void WellsPage::setHeaderFolded(bool folded) { header_->setFolded(folded); }

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
    addView(new LithologyPane, tr("&Lithology"));
    addView(new RecordPane(environments(), kEnvironments), tr("Environ&ment"));
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
    titles_ += title;
    connect(view, &WellView::told, reports_, &ReportStrip::add);
    connect(view, &WellView::unsavedChanged, this, &WellsPage::markUnsaved);
    connect(view, &WellView::versionChosen, this, [this](long interp_id) {
        for (WellView* each : views_)
            each->setVersion(interp_id);
    });
}

void WellsPage::connectReader()
{
    const auto showMore = [this] {
        for (WellView* view : views_)
            view->showMore();
    };
    connect(reading_, &ReadingBar::cancelled, reader_, &WellReader::cancel);
    connect(escape_, &QShortcut::activated, reader_, &WellReader::cancel);
    setReading(false);
    connect(reader_, &WellReader::told, reports_, &ReportStrip::add);
    connect(reader_, &WellReader::progressed, reading_, &ReadingBar::showProgress);
    connect(reader_, &WellReader::progressed, this, showMore);
    connect(reader_, &WellReader::ended, this, [=, this](const QString& leftOff) {
        reading_->end();
        setReading(false);
        if (!leftOff.isEmpty())
            reports_->addLeftOff(leftOff);
        showMore();
    });
}

// Escape empties the search field of the list otherwise, and can mean one thing at a time.
void WellsPage::setReading(bool reading)
{
    escape_->setEnabled(reading);
    wells_->setEscapeClears(!reading);
}

void WellsPage::markUnsaved()
{
    for (int number = 0; number < titles_.size(); ++number) {
        const bool unsaved = views_[static_cast<std::size_t>(number)]->hasUnsaved();
        tabs_->setTabText(number, titles_[number] + (unsaved ? QStringLiteral(" *") : QString()));
    }
}

bool WellsPage::hasUnsaved() const
{
    return std::any_of(
        views_.begin(), views_.end(), [](const WellView* view) { return view->hasUnsaved(); });
}

bool WellsPage::mayLeave()
{
    for (std::size_t i = 0; i < views_.size(); ++i) {
        if (!views_[i]->hasUnsaved())
            continue;
        tabs_->setCurrentWidget(views_[i]);
        const Unsaved wish = services_.askUnsaved(this,
            tr("%1 of %2 has edits that are not saved.")
                .arg(withoutKey(titles_[static_cast<int>(i)]),
                    shownOrMissing(well()->well_name.view())));
        if (wish == Unsaved::Stay || (wish == Unsaved::Save && !views_[i]->saveEdits()))
            return false;
    }
    return true;
}

// The list is in the middle of a change of its own, so it is asked from the event loop.
void WellsPage::leaveFor(long well_id)
{
    next_ = well_id;
    if (hasUnsaved())
        leaving_.start();
    else
        showWell(well_id);
}

void WellsPage::showWell(long well_id)
{
    leaving_.stop();
    reader_->stop();
    reading_->end();
    setReading(false);
    reports_->clear();
    // The views keep the well before until the samples of this one are there: a message box that a
    // failure shows lets them paint.
    std::unique_ptr<LoadedWell> before = std::move(well_);
    if (well_id != 0) {
        auto loaded = std::make_unique<LoadedWell>(well_id);
        setReading(true);
        reader_->start(*loaded);
        well_ = std::move(loaded);
    }
    for (WellView* view : views_)
        view->showWell(well(), shownUnits());
    header_->showWell(well(), shownUnits());
}

Well* WellsPage::well() const { return well_ ? &well_->well : nullptr; }

char WellsPage::shownUnits() const { return unitsLetter(units_, well_ ? well()->units : 'M'); }

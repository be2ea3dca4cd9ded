// app/window/OccurrencePane.cpp
#include "app/window/OccurrencePane.h"

#include "app/shell/CollectedReports.h"
#include "app/shell/WellLoading.h"
#include "app/window/Choices.h"
#include "app/window/FrozenTable.h"
#include "app/window/OccurrenceTable.h"
#include "app/window/TableLook.h"
#include "app/window/Texts.h"
#include "taxonomy/Disciplines.h"
#include "well/Sample.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace {

constexpr int kCellMargin = 10; // pixels beside the text of a cell, on both sides together

/// Lets the choice stand as long as it is there, else the first.
void choose(QComboBox& combo, const QVariant& data)
{
    combo.setCurrentIndex(std::max(0, combo.findData(data)));
}

QString sentence(QString text)
{
    if (!text.isEmpty())
        text[0] = text[0].toUpper();
    return text;
}

} // namespace

OccurrencePane::OccurrencePane(QWidget* parent)
    : WellView(parent)
    , disciplines_(makeCombo("occurrenceDiscipline", tr("Discipline")))
    , analysts_(makeCombo("occurrenceAnalyst", tr("Analyst")))
    , allSamples_(new QCheckBox(tr("Samples not e&xamined too")))
    , count_(new QLabel)
    , table_(new FrozenTable(&model_, OccurrenceModel::kSampleColumns))
{
    table_->table().setObjectName(QStringLiteral("occurrenceTable"));
    table_->table().setAccessibleName(tr("Samples by taxa"));
    count_->setObjectName(QStringLiteral("occurrenceCount"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kViewMargins);
    layout->addWidget(makeChoice());
    layout->addWidget(table_, 1);
    auto* signs = new QHBoxLayout;
    signs->addWidget(count_);
    signs->addStretch();
    signs->addWidget(new QLabel(findLegend()));
    layout->addLayout(signs);
    connect(disciplines_, &QComboBox::activated, this, &OccurrencePane::chooseDiscipline);
    connect(analysts_, &QComboBox::activated, this, &OccurrencePane::showTable);
    connect(allSamples_, &QCheckBox::toggled, this, &OccurrencePane::showTable);
    fit();
}

OccurrencePane::~OccurrencePane() = default;

QWidget* OccurrencePane::makeChoice()
{
    auto* choice = new QWidget;
    auto* line = new QHBoxLayout(choice);
    line->setContentsMargins({});
    addChoice(*line, tr("D&iscipline"), disciplines_);
    addChoice(*line, tr("&Analyst"), analysts_);
    line->addWidget(allSamples_);
    line->addStretch();
    return choice;
}

void OccurrencePane::showWell(Well* well, char units)
{
    units_ = units;
    showNothing();
    found_.reset();
    well_ = well;
    extent_ = {};
    stale_ = true;
    if (isVisible() || !well)
        update();
}

void OccurrencePane::showMore()
{
    stale_ = true;
    if (isVisible())
        update();
}

void OccurrencePane::setUnits(char units)
{
    units_ = units;
    model_.setUnits(units);
    fit();
}

QWidget& OccurrencePane::place() const { return table_->table(); }

void OccurrencePane::showEvent(QShowEvent* event)
{
    WellView::showEvent(event);
    update();
}

OccurrencePane::Extent OccurrencePane::extent(char disc) const
{
    Extent extent;
    extent.loaded = well_->occurrencesLoaded[static_cast<std::size_t>(discIndex(disc))];
    for (const Sample* sample : well_->samples) {
        ++extent.samples;
        for (const Smpdtl* record : sample->details) {
            if (record->disc != disc)
                continue;
            ++extent.records;
            extent.finds += static_cast<std::size_t>(record->occurrences.count());
        }
    }
    return extent;
}

void OccurrencePane::update()
{
    if (!stale_)
        return;
    stale_ = false;
    listDisciplines();
    listAnalysts();
    const Extent now = well_ && disc() ? extent(disc()) : Extent();
    if (now == extent_ && found_)
        return;
    extent_ = now;
    readTaxa();
    showTable();
}

// Names that are there already are not read again.
void OccurrencePane::listDisciplines()
{
    const QVariant chosen = disciplines_->currentData();
    const std::set<char> letters = well_ ? disciplinesOf(*well_) : std::set<char>();
    for (int row = disciplines_->count() - 1; row >= 0; --row)
        if (!letters.contains(static_cast<char>(disciplines_->itemData(row).toInt())))
            disciplines_->removeItem(row);
    CollectedReports reports;
    int row = 0;
    for (const char letter : letters) {
        if (disciplines_->findData(int(letter)) < 0)
            disciplines_->insertItem(
                row, sentence(QString::fromStdString(disciplineName(letter))), int(letter));
        ++row;
    }
    choose(*disciplines_, chosen);
    emit told(tr("names of disciplines"), reports.take());
}

void OccurrencePane::listAnalysts()
{
    const QVariant chosen = analysts_->currentData();
    analysts_->clear();
    analysts_->addItem(tr("all"), QString());
    if (well_)
        for (const std::string& key : analystsOf(*well_, disc()))
            if (!key.empty())
                analysts_->addItem(shownOrMissing(key), QString::fromStdString(key));
    choose(*analysts_, chosen);
}

void OccurrencePane::chooseDiscipline()
{
    stale_ = true;
    extent_ = {};
    update();
}

void OccurrencePane::readTaxa()
{
    CollectedReports reports;
    auto found = well_ && disc() ? std::make_unique<FoundTaxa>(*well_, disc())
                                 : std::make_unique<FoundTaxa>();
    showNothing(); // points into those before
    found_ = std::move(found);
    emit told(tr("names of taxa"), reports.take());
}

void OccurrencePane::showTable()
{
    if (!well_ || !found_)
        return;
    const FindChoice choice{
        disc(), analysts_->currentData().toString().toStdString(), allSamples_->isChecked()};
    model_.show(std::make_unique<OccurrenceTable>(*well_, *found_, choice), units_);
    fit();
}

void OccurrencePane::showNothing()
{
    model_.show(std::make_unique<OccurrenceTable>(), units_);
    fit();
}

void OccurrencePane::fit()
{
    QFont bold = table_->table().font(); // as markers are, which are wider
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    std::vector<int> widths;
    for (int taxon = 0; taxon < model_.columnCount() - OccurrenceModel::kSampleColumns; ++taxon)
        widths.push_back(metrics.horizontalAdvance(model_.longestText(taxon)) + kCellMargin);
    table_->fit(widths);
    count_->setText(countText());
}

QString OccurrencePane::countText() const
{
    if (disciplines_->count() == 0)
        return tr("No samples were examined");
    if (extent_.loaded == 0)
        return tr("The occurrences are not loaded");
    return tr("Samples: %1, taxa: %2")
        .arg(model_.rowCount())
        .arg(model_.columnCount() - OccurrenceModel::kSampleColumns);
}

char OccurrencePane::disc() const { return static_cast<char>(disciplines_->currentData().toInt()); }

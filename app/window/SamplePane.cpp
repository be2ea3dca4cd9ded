// app/window/SamplePane.cpp
#include "app/window/SamplePane.h"

#include "app/window/TableLook.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QTableView>

namespace {

QComboBox* makeUnits(QWidget* parent)
{
    auto* units = new QComboBox(parent);
    units->setObjectName(QStringLiteral("depthUnits"));
    units->setAccessibleName(SamplePane::tr("Units of depths"));
    units->addItem(SamplePane::tr("as the well"), QVariant::fromValue(DepthUnits::OfWell));
    units->addItem(SamplePane::tr("metres"), QVariant::fromValue(DepthUnits::Metres));
    units->addItem(SamplePane::tr("feet"), QVariant::fromValue(DepthUnits::Feet));
    return units;
}

QTableView* makeTable(QWidget* parent, QAbstractItemModel* samples)
{
    auto* table = new QTableView(parent);
    table->setObjectName(QStringLiteral("sampleTable"));
    table->setAccessibleName(SamplePane::tr("Samples of the well"));
    table->setModel(samples);
    lookLikeTable(*table);
    table->horizontalHeader()->setStretchLastSection(true);
    return table;
}

} // namespace

SamplePane::SamplePane(QWidget* parent)
    : WellView(parent)
    , count_(new QLabel(this))
    , units_(makeUnits(this))
    , table_(makeTable(this, &samples_))
{
    count_->setObjectName(QStringLiteral("sampleCount"));
    auto* label = new QLabel(tr("&Depths in"), this);
    label->setBuddy(units_);
    auto* line = new QHBoxLayout;
    line->addWidget(count_);
    line->addStretch();
    line->addWidget(label);
    line->addWidget(units_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addLayout(line);
    layout->addWidget(table_);
    connect(units_, &QComboBox::activated, this,
        [this](int row) { emit unitsChosen(units_->itemData(row).value<DepthUnits>()); });
    showWell(nullptr, 'M');
}

void SamplePane::showWell(const Well* well, char units)
{
    samples_.show(well, units);
    fitColumns(*table_);
    const int count = samples_.rowCount();
    count_->setText(count == 0 ? tr("No samples") : tr("Samples: %1").arg(count));
}

void SamplePane::setUnits(DepthUnits shown, char units)
{
    units_->setCurrentIndex(units_->findData(QVariant::fromValue(shown)));
    samples_.setUnits(units);
    fitColumns(*table_);
}

QWidget& SamplePane::place() const { return *table_; }

// app/window/UnitsSwitch.cpp
#include "app/window/UnitsSwitch.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int kBelow = 4; // pixels, to the line that the tabs stand on

} // namespace

UnitsSwitch::UnitsSwitch(QWidget* parent)
    : QWidget(parent)
    , choice_(new QComboBox(this))
{
    choice_->setObjectName(QStringLiteral("depthUnits"));
    choice_->setAccessibleName(tr("Units of depths"));
    choice_->addItem(tr("as the well"), QVariant::fromValue(DepthUnits::OfWell));
    choice_->addItem(tr("metres"), QVariant::fromValue(DepthUnits::Metres));
    choice_->addItem(tr("feet"), QVariant::fromValue(DepthUnits::Feet));
    auto* caption = new QLabel(tr("&Depths in"), this);
    caption->setBuddy(choice_);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, kBelow);
    layout->addWidget(caption);
    layout->addWidget(choice_);
    connect(choice_, &QComboBox::activated, this,
        [this](int row) { emit unitsChosen(choice_->itemData(row).value<DepthUnits>()); });
}

void UnitsSwitch::setUnits(DepthUnits units)
{
    choice_->setCurrentIndex(choice_->findData(QVariant::fromValue(units)));
}

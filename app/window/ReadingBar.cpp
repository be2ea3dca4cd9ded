// app/window/ReadingBar.cpp
#include "app/window/ReadingBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr int kMoment = 150; // ms

} // namespace

ReadingBar::ReadingBar(QWidget* parent)
    : QWidget(parent)
    , next_(new QLabel)
    , bar_(new QProgressBar)
{
    auto* cancel = new QPushButton(tr("Cancel"));
    cancel->setObjectName(QStringLiteral("cancelReading"));
    cancel->setToolTip(tr("Leave off (Esc); what is loaded stays"));
    next_->setObjectName(QStringLiteral("readingNext"));
    bar_->setAccessibleName(tr("Loading the well"));
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins({});
    line->addWidget(next_);
    line->addWidget(bar_, 1);
    line->addWidget(cancel);
    patience_.setSingleShot(true);
    patience_.setInterval(kMoment);
    connect(&patience_, &QTimer::timeout, this, &QWidget::show);
    connect(cancel, &QPushButton::clicked, this, &ReadingBar::cancelled);
    hide();
}

void ReadingBar::showProgress(int done, int count, const QString& next)
{
    if (!isVisible() && !patience_.isActive())
        patience_.start();
    bar_->setRange(0, count);
    bar_->setValue(done);
    next_->setText(tr("Reading %1").arg(next));
}

void ReadingBar::end()
{
    patience_.stop();
    hide();
}

// app/window/ReportStrip.cpp
#include "app/window/ReportStrip.h"

#include "app/window/Texts.h"

#include <QPlainTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int kLines = 7;       // of the texts in sight
constexpr int kArrowRoom = 40;  // pixels beside the text of the line
constexpr int kMostTexts = 999; // a bad well may have one for each of its rows

} // namespace

ReportStrip::ReportStrip(QWidget* parent)
    : QWidget(parent)
    , opener_(new QToolButton)
    , texts_(new QPlainTextEdit)
{
    opener_->setObjectName(QStringLiteral("reportOpener"));
    opener_->setCheckable(true);
    opener_->setAutoRaise(true);
    opener_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    opener_->setArrowType(Qt::RightArrow);
    opener_->setFocusPolicy(Qt::StrongFocus);
    texts_->setObjectName(QStringLiteral("reportTexts"));
    texts_->setAccessibleName(tr("What was refused while the well was loaded"));
    texts_->setReadOnly(true);
    texts_->setTabChangesFocus(true);
    texts_->setFixedHeight(kLines * fontMetrics().lineSpacing());
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(opener_);
    layout->addWidget(texts_);
    connect(opener_, &QToolButton::toggled, this, [this](bool open) {
        texts_->setVisible(open);
        opener_->setArrowType(open ? Qt::DownArrow : Qt::RightArrow);
    });
    clear();
}

void ReportStrip::clear()
{
    refused_ = 0;
    first_.clear();
    leftOff_.clear();
    texts_->clear();
    opener_->setChecked(false);
    texts_->hide();
    update();
}

void ReportStrip::add(const QString& reading, const std::vector<std::string>& reports)
{
    for (const std::string& report : reports) {
        const QString text = shownOrMissing(report);
        if (refused_ == 0)
            first_ = text;
        ++refused_;
        if (refused_ <= kMostTexts)
            say(reading + QLatin1String(": ") + text);
        else if (refused_ == kMostTexts + 1)
            say(tr("... and more"));
    }
    update();
}

void ReportStrip::addLeftOff(const QString& reading)
{
    leftOff_ = tr("Loading was cancelled: from %1 on nothing is loaded.").arg(reading);
    say(leftOff_);
    update();
}

void ReportStrip::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitSummary();
}

void ReportStrip::say(const QString& line) { texts_->appendPlainText(line); }

void ReportStrip::update()
{
    summary_ = leftOff_;
    if (refused_ > 0) {
        const QString count =
            refused_ == 1 ? tr("1 row was refused") : tr("%1 rows were refused").arg(refused_);
        summary_ += (summary_.isEmpty() ? QString() : QStringLiteral(" ")) + count
            + QLatin1String(": ") + first_;
    }
    fitSummary();
    setVisible(!summary_.isEmpty());
}

// The button must not make the window wider.
void ReportStrip::fitSummary()
{
    const QString line = summary_.section(QLatin1Char('\n'), 0, 0);
    opener_->setText(opener_->fontMetrics().elidedText(line, Qt::ElideRight, width() - kArrowRoom));
}

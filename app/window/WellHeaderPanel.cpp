// app/window/WellHeaderPanel.cpp
#include "app/window/WellHeaderPanel.h"

#include "app/window/FieldLabels.h"
#include "app/window/Texts.h"
#include "well/Well.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

namespace {

constexpr int kColumns = 3;    // of fields beside each other
constexpr int kArrowGap = 6;   // pixels before the title
constexpr int kMostLines = 18; // of text, before the panel scrolls

} // namespace

WellHeaderPanel::WellHeaderPanel(QWidget* parent)
    : FieldPanel(parent)
{
    makeFields();
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setObjectName(QStringLiteral("wellHeader"));
    setAccessibleName(tr("Header of the well"));
    showWell(nullptr, 'M');
}

void WellHeaderPanel::showWell(const Well* well, char units)
{
    std::vector<HeaderField> fields =
        well ? headerFields(*well, units) : std::vector<HeaderField>();
    for (std::size_t i = 0; i < fields.size(); ++i)
        values_[i]->setText(fields[i].value);
    if (well) {
        title_->setText(shownOrMissing(well->well_name.view()));
        fields.insert(fields.begin(), {tr("Name"), title_->text()});
    }
    setFields(std::move(fields));
}

void WellHeaderPanel::setFolded(bool folded)
{
    folded_ = folded;
    arrow_->setArrowType(folded ? Qt::RightArrow : Qt::DownArrow);
    for (QLabel* label : widget()->findChildren<QLabel*>())
        label->setVisible(label == title_ || !folded);
}

int WellHeaderPanel::heightForWidth(int width) const
{
    const int frame = 2 * frameWidth();
    // Folded, nothing wraps, and the height is the same for all widths.
    const int page = widget()->hasHeightForWidth() ? widget()->heightForWidth(width - frame)
                                                   : widget()->sizeHint().height();
    const int wanted = page + frame;
    return std::min(wanted, kMostLines * fontMetrics().lineSpacing());
}

QSize WellHeaderPanel::sizeHint() const
{
    const int width = widget()->sizeHint().width() + 2 * frameWidth();
    return {width, heightForWidth(width)};
}

// Folded, it is lower than any panel that scrolls.
QSize WellHeaderPanel::minimumSizeHint() const
{
    const QSize least = FieldPanel::minimumSizeHint();
    return {least.width(), std::min(least.height(), sizeHint().height())};
}

// The height that the panel wants is that of its page, which changes with the texts in it.
bool WellHeaderPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return FieldPanel::eventFilter(watched, event);
}

// Column by column, since neighbours belong together; the last one, which may be long, below all.
void WellHeaderPanel::makeFields()
{
    QWidget* page = widget();
    auto* grid = new QGridLayout(page);
    title_ = makeTitle(page);
    title_->setObjectName(QStringLiteral("wellTitle"));
    arrow_ = new QToolButton(page);
    arrow_->setObjectName(QStringLiteral("headerArrow"));
    arrow_->setToolTip(tr("Show the whole header, or its title alone"));
    arrow_->setArrowType(Qt::DownArrow);
    arrow_->setAutoRaise(true);
    arrow_->setFocusPolicy(Qt::NoFocus); // the menu of views does the same
    connect(arrow_, &QToolButton::clicked, this, [this] { emit foldAsked(!folded_); });
    auto* line = new QHBoxLayout;
    line->setSpacing(kArrowGap);
    line->addWidget(arrow_);
    line->addWidget(title_, 1);
    grid->addLayout(line, 0, 0, 1, -1);
    const std::vector<HeaderField> blank = headerFields(Well(), 'M');
    const int beside = static_cast<int>(blank.size()) - 1;
    const int rows = (beside + kColumns - 1) / kColumns;
    for (const HeaderField& field : blank) {
        const int number = static_cast<int>(values_.size());
        const bool last = number == beside;
        const int row = last ? rows + 1 : 1 + number % rows;
        const int column = last ? 0 : 2 * (number / rows);
        QLabel* value = makeValue(page, field.caption);
        grid->addWidget(addCaption(field.caption), row, column);
        grid->addWidget(value, row, column + 1, 1, last ? -1 : 1);
        values_.push_back(value);
    }
    for (int column = 0; column < kColumns; ++column)
        grid->setColumnStretch(2 * column + 1, column == 0 ? 3 : 2); // names need more room
    grid->setHorizontalSpacing(2 * grid->horizontalSpacing());
}

// app/window/WellHeaderPanel.cpp
#include "app/window/WellHeaderPanel.h"

#include "app/window/FieldLabels.h"
#include "app/window/Texts.h"
#include "well/Well.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int kColumns = 3;    // of fields beside each other
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

int WellHeaderPanel::heightForWidth(int width) const
{
    const int frame = 2 * frameWidth();
    const int wanted = widget()->heightForWidth(width - frame) + frame;
    return std::min(wanted, kMostLines * fontMetrics().lineSpacing());
}

QSize WellHeaderPanel::sizeHint() const
{
    const int width = widget()->sizeHint().width() + 2 * frameWidth();
    return {width, heightForWidth(width)};
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
    grid->addWidget(title_, 0, 0, 1, -1);
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

// app/window/WellHeaderPanel.cpp
#include "app/window/WellHeaderPanel.h"

#include "app/window/Clipboard.h"
#include "app/window/Texts.h"
#include "well/Well.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace {

constexpr int kColumns = 3;       // of fields beside each other
constexpr int kMostLines = 18;    // of text, before the panel scrolls
constexpr float kCaption = 0.65F; // of the text's colour
constexpr double kTitle = 1.4;    // times the size of the other texts

QLabel* makeTitle(QWidget* parent)
{
    auto* title = new QLabel(parent);
    title->setObjectName(QStringLiteral("wellTitle"));
    title->setTextFormat(Qt::PlainText);
    title->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * kTitle);
    title->setFont(font);
    return title;
}

QLabel* makeCaption(QWidget* parent, const QString& caption)
{
    auto* label = new QLabel(caption, parent);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return label;
}

// Paler than the values and still easy to read, on light and on dark.
QColor captionColour(const QPalette& palette)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor behind = palette.color(QPalette::Window);
    const auto mixed = [](float a, float b) { return kCaption * a + (1 - kCaption) * b; };
    return QColor::fromRgbF(mixed(text.redF(), behind.redF()),
        mixed(text.greenF(), behind.greenF()), mixed(text.blueF(), behind.blueF()));
}

QLabel* makeValue(QWidget* parent, const QString& caption)
{
    auto* value = new QLabel(parent);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setAccessibleName(caption);
    return value;
}

} // namespace

WellHeaderPanel::WellHeaderPanel(QWidget* parent)
    : QScrollArea(parent)
{
    setWidget(new QWidget(this));
    setWidgetResizable(true);
    makeFields();
    setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setFocusPolicy(Qt::StrongFocus);
    setObjectName(QStringLiteral("wellHeader"));
    setAccessibleName(tr("Header of the well"));
    markFocus(false);
    showWell(nullptr, 'M');
}

void WellHeaderPanel::showWell(const Well* well, char units)
{
    fields_ = well ? headerFields(*well, units) : std::vector<HeaderField>();
    for (std::size_t i = 0; i < fields_.size(); ++i)
        values_[i]->setText(fields_[i].value);
    if (well) {
        title_->setText(shownOrMissing(well->well_name.view()));
        fields_.insert(fields_.begin(), {tr("Name"), title_->text()});
    }
    widget()->setVisible(well != nullptr);
    setAccessibleDescription(text());
}

QString WellHeaderPanel::text() const
{
    QList<QStringList> lines;
    for (const HeaderField& field : fields_)
        lines += {field.caption, field.value};
    return tabSeparated(lines);
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

void WellHeaderPanel::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourCaptions();
}

void WellHeaderPanel::focusInEvent(QFocusEvent* event)
{
    QScrollArea::focusInEvent(event);
    markFocus(true);
}

void WellHeaderPanel::focusOutEvent(QFocusEvent* event)
{
    QScrollArea::focusOutEvent(event);
    markFocus(false);
}

// The height that the panel wants is that of its page, which changes with the texts in it.
bool WellHeaderPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

// Column by column, since neighbours belong together; the last one, which may be long, below all.
void WellHeaderPanel::makeFields()
{
    QWidget* page = widget();
    auto* grid = new QGridLayout(page);
    title_ = makeTitle(page);
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
        captions_.push_back(makeCaption(page, field.caption));
        grid->addWidget(captions_.back(), row, column);
        grid->addWidget(value, row, column + 1, 1, last ? -1 : 1);
        values_.push_back(value);
    }
    for (int column = 0; column < kColumns; ++column)
        grid->setColumnStretch(2 * column + 1, column == 0 ? 3 : 2); // names need more room
    grid->setHorizontalSpacing(2 * grid->horizontalSpacing());
    colourCaptions();
}

void WellHeaderPanel::markFocus(bool focused)
{
    setForegroundRole(focused ? QPalette::Highlight : QPalette::Mid);
}

void WellHeaderPanel::colourCaptions()
{
    for (QLabel* caption : captions_) {
        QPalette colours;
        colours.setColor(QPalette::WindowText, captionColour(palette()));
        caption->setPalette(colours);
    }
}

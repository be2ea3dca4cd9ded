// app/window/WellHeaderPanel.cpp
#include "app/window/WellHeaderPanel.h"

#include "app/window/Clipboard.h"

#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int kColumns = 3;    // of fields beside each other
constexpr double kTitle = 1.4; // times the size of the other texts

QLabel* makeTitle(QWidget* parent)
{
    auto* title = new QLabel(parent);
    title->setObjectName(QStringLiteral("wellTitle"));
    title->setTextFormat(Qt::PlainText);
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * kTitle);
    title->setFont(font);
    return title;
}

QLabel* makeValue(QWidget* parent, const QString& caption)
{
    auto* value = new QLabel(parent);
    value->setTextFormat(Qt::PlainText);
    value->setWordWrap(true);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value->setAccessibleName(caption);
    return value;
}

} // namespace

WellHeaderPanel::WellHeaderPanel(QWidget* parent)
    : QScrollArea(parent)
{
    auto* page = new QWidget(this);
    title_ = makeTitle(page);
    grid_ = new QGridLayout(page);
    grid_->addWidget(title_, 0, 0, 1, 2 * kColumns);
    for (int column = 0; column < kColumns; ++column)
        grid_->setColumnStretch(2 * column + 1, 1);
    setWidget(page);
    setWidgetResizable(true);
    setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(tr("Header of the well"));
    markFocus(false);
}

void WellHeaderPanel::show(const QString& title, const std::vector<HeaderField>& fields)
{
    const int count = static_cast<int>(fields.size());
    for (int number = static_cast<int>(values_.size()); number < count; ++number)
        addField(fields[static_cast<std::size_t>(number)].caption, number, count);
    for (std::size_t i = 0; i < fields.size(); ++i)
        values_[i]->setText(fields[i].value);
    title_->setText(title);
    fields_ = fields;
    fields_.insert(fields_.begin(), {tr("Name"), title});
    setAccessibleDescription(text());
    widget()->setVisible(true);
}

void WellHeaderPanel::clear()
{
    fields_.clear();
    setAccessibleDescription({});
    widget()->setVisible(false);
}

QString WellHeaderPanel::text() const
{
    QList<QStringList> lines;
    for (const HeaderField& field : fields_)
        lines += {field.caption, field.value};
    return tabSeparated(lines);
}

QSize WellHeaderPanel::sizeHint() const
{
    const QSize page = widget()->sizeHint();
    return {page.width(), widget()->heightForWidth(viewport()->width()) + 2 * frameWidth()};
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

// Column by column, as the captions belong together; the last field below all of them.
void WellHeaderPanel::addField(const QString& caption, int number, int fields)
{
    auto* label = new QLabel(caption, widget());
    label->setForegroundRole(QPalette::PlaceholderText);
    QLabel* value = makeValue(widget(), caption);
    const int rows = (fields - 1 + kColumns - 1) / kColumns;
    const bool last = number == fields - 1;
    const int row = last ? rows + 1 : 1 + number % rows;
    const int column = last ? 0 : number / rows;
    grid_->addWidget(label, row, 2 * column, Qt::AlignTop);
    grid_->addWidget(value, row, 2 * column + 1, 1, last ? -1 : 1, Qt::AlignTop);
    values_.push_back(value);
}

void WellHeaderPanel::markFocus(bool focused)
{
    setForegroundRole(focused ? QPalette::Highlight : QPalette::Mid);
}

// app/window/NameDelegate.cpp
#include "app/window/NameDelegate.h"

#include "app/window/NameText.h"

#include <QApplication>
#include <QPainter>

#include <cmath>

namespace {

constexpr QChar kEllipsis(0x2026);

/// A name in one line, laid out.
class NameLine {
public:
    NameLine(const NameText& name, const QFont& font)
        : layout_(name.text, font)
    {
        layout_.setFormats(name.italics);
        QTextOption option;
        option.setWrapMode(QTextOption::NoWrap);
        layout_.setTextOption(option);
        layout_.beginLayout();
        line_ = layout_.createLine();
        layout_.endLayout();
    }

    qreal width() const { return line_.isValid() ? line_.naturalTextWidth() : 0; }
    qreal height() const { return line_.isValid() ? line_.height() : 0; }
    /// How many characters end in front of `x`.
    int charactersBefore(qreal x) const
    {
        int count = line_.xToCursor(std::max(x, 0.0), QTextLine::CursorOnCharacter);
        while (count > 0 && layout_.text().at(count - 1).isSpace())
            --count;
        return count;
    }
    void draw(QPainter& painter, QPointF place) const { layout_.draw(&painter, place); }

private:
    QTextLayout layout_;
    QTextLine line_;
};

NameText elided(const NameText& name, const QFont& font, qreal width)
{
    const NameLine line(name, font);
    if (line.width() <= width)
        return name;
    const int kept =
        line.charactersBefore(width - QFontMetricsF(font).horizontalAdvance(kEllipsis));
    NameText cut{name.text.left(kept) + kEllipsis, {}};
    for (QTextLayout::FormatRange range : name.italics) {
        range.length = std::min(range.length, kept - range.start);
        if (range.length > 0)
            cut.italics += range;
    }
    return cut;
}

QStyle& styleOf(const QStyleOptionViewItem& option)
{
    return *(option.widget ? option.widget->style() : QApplication::style());
}

// As the style insets the texts of other cells.
qreal margin(const QStyleOptionViewItem& option)
{
    return 1 + styleOf(option).pixelMetric(QStyle::PM_FocusFrameHMargin, &option, option.widget);
}

QColor textColour(const QStyleOptionViewItem& option)
{
    const bool active = option.state.testFlag(QStyle::State_Active);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    return option.palette.color(active ? QPalette::Active : QPalette::Inactive,
        selected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

void NameDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QVariant name = index.data(kNameRole);
    if (!name.canConvert<NameText>()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear(); // everything of the cell but the text
    styleOf(cell).drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    const QRectF room = QRectF(cell.rect).adjusted(margin(cell), 0, -margin(cell), 0);
    const NameLine line(elided(name.value<NameText>(), cell.font, room.width()), cell.font);
    painter->save();
    painter->setPen(textColour(cell));
    line.draw(*painter, {room.left(), room.top() + (room.height() - line.height()) / 2});
    painter->restore();
}

QSize NameDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QVariant name = index.data(kNameRole);
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (name.canConvert<NameText>())
        size.setWidth(static_cast<int>(
            std::ceil(NameLine(name.value<NameText>(), option.font).width() + 2 * margin(option))));
    return size;
}

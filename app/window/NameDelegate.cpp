// app/window/NameDelegate.cpp
#include "app/window/NameDelegate.h"

#include "app/window/NameLine.h"

#include <QApplication>
#include <QPainter>

#include <cmath>

namespace {

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
    painter->save();
    painter->setPen(textColour(cell));
    drawName(*painter, name.value<NameText>(), cell.font,
        QRectF(cell.rect).adjusted(margin(cell), 0, -margin(cell), 0));
    painter->restore();
}

QSize NameDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QVariant name = index.data(kNameRole);
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (name.canConvert<NameText>())
        size.setWidth(static_cast<int>(
            std::ceil(nameWidth(name.value<NameText>(), option.font) + 2 * margin(option))));
    return size;
}

// app/window/NameHeader.cpp
#include "app/window/NameHeader.h"

#include "app/window/NameDelegate.h"
#include "app/window/NameLine.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMargin = 4;    // pixels in front of and behind a name
constexpr int kMostEms = 17;  // of the longest name that is shown whole
constexpr int kLeastEms = 5;  // for headings that are no names
constexpr int kUpwards = -90; // degrees

} // namespace

NameHeader::NameHeader(QWidget* parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setMinimumSectionSize(fontMetrics().height() + kMargin);
}

int NameHeader::heightForNames(int first) const
{
    const int em = fontMetrics().height();
    qreal longest = kLeastEms * em;
    for (int section = first; section < count() && longest < kMostEms * em; ++section)
        longest = std::max(longest, nameWidth(nameOf(section), font()));
    return std::min(static_cast<int>(std::ceil(longest)), kMostEms * em) + 2 * kMargin;
}

void NameHeader::paintSection(QPainter* painter, const QRect& rect, int section) const
{
    QStyleOptionHeader head;
    initStyleOption(&head);
    initStyleOptionForIndex(&head, section);
    head.rect = rect;
    head.text.clear(); // everything of the section but the text
    painter->save();
    style()->drawControl(QStyle::CE_Header, &head, painter, this);
    painter->restore(); // the style leaves a clipping of its own
    painter->save();
    painter->setPen(palette().color(QPalette::ButtonText));
    painter->translate(rect.left(), rect.bottom());
    painter->rotate(kUpwards);
    drawName(*painter, nameOf(section), font(),
        QRectF(kMargin, 0, rect.height() - 2 * kMargin, rect.width()));
    painter->restore();
}

NameText NameHeader::nameOf(int section) const
{
    return model()->headerData(section, Qt::Horizontal, NameDelegate::kNameRole).value<NameText>();
}

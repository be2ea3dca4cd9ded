// app/window/NameLine.cpp
#include "app/window/NameLine.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

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

} // namespace

qreal nameWidth(const NameText& name, const QFont& font) { return NameLine(name, font).width(); }

void drawName(QPainter& painter, const NameText& name, const QFont& font, const QRectF& room)
{
    const NameLine line(elided(name, font, room.width()), font);
    line.draw(painter, {room.left(), room.top() + (room.height() - line.height()) / 2});
}

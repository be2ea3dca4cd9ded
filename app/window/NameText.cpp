// app/window/NameText.cpp
#include "app/window/NameText.h"

#include "store/Value.h"
#include "taxonomy/Taxon.h"

namespace {

constexpr QLatin1Char kItalicSwitch('\\');

QTextLayout::FormatRange italicFrom(qsizetype start)
{
    QTextLayout::FormatRange range;
    range.start = static_cast<int>(start);
    range.length = 0;
    range.format.setFontItalic(true);
    return range;
}

} // namespace

QString NameText::html() const
{
    QString html;
    int done = 0;
    for (const QTextLayout::FormatRange& range : italics) {
        html += text.mid(done, range.start - done).toHtmlEscaped() + QLatin1String("<i>")
            + text.mid(range.start, range.length).toHtmlEscaped() + QLatin1String("</i>");
        done = range.start + range.length;
    }
    return html + text.mid(done).toHtmlEscaped();
}

NameText markedName(std::string_view marked)
{
    NameText name;
    bool italic = false;
    bool blank = false; // one that stands in front of the next letter, if there is one
    for (const QChar c : QString::fromStdString(shownText(marked))) {
        if (c == kItalicSwitch) {
            italic = !italic;
            if (italic)
                name.italics += italicFrom(name.text.size() + blank);
        } else if (c == QLatin1Char(' ')) {
            blank = !name.text.isEmpty();
        } else {
            name.text += blank ? QLatin1String(" ") : QLatin1String();
            name.text += c;
            blank = false;
            if (italic)
                name.italics.back().length =
                    static_cast<int>(name.text.size()) - name.italics.back().start;
        }
    }
    return name;
}

NameText nameText(Taxon& taxon) { return markedName(taxon.displayName(1, 1, 0, 0)); }

// app/window/FindTexts.cpp
#include "app/window/FindTexts.h"

#include "app/window/Texts.h"
#include "well/Smpdtl.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString tr(const char* text) { return QCoreApplication::translate("FindTexts", text); }

long counted(const Fssabnd& find) { return find.coarse + find.medium + find.fine; }

bool isQuestionable(const Fssabnd& find) { return find.ident_type == '?'; }

QString abundanceText(const Fssabnd& find)
{
    if (const long count = counted(find))
        return QString::number(count);
    return find.abund.view().empty() ? QStringLiteral("+") : shownOrMissing(find.abund.view());
}

QString abundanceWords(const Fssabnd& find)
{
    if (const long count = counted(find))
        return tr("count %1").arg(count);
    return find.abund.view().empty() ? tr("present, not counted")
                                     : tr("code %1").arg(shownOrMissing(find.abund.view()));
}

} // namespace

QString findText(const Find& find)
{
    const Fssabnd& occurrence = *find.occurrence;
    QString marks;
    if (occurrence.isReworked())
        marks += QLatin1Char('R');
    if (occurrence.isCaved())
        marks += QLatin1Char('C');
    return (isQuestionable(occurrence) ? QStringLiteral("?") : QString())
        + abundanceText(occurrence) + (marks.isEmpty() ? marks : QLatin1Char(' ') + marks);
}

QString findWords(const Find& find)
{
    const Fssabnd& occurrence = *find.occurrence;
    QStringList words{abundanceWords(occurrence)};
    const auto add = [&](bool applies, const QString& word) {
        if (applies)
            words += word;
    };
    add(isQuestionable(occurrence), tr("questionable"));
    add(occurrence.isReworked(), tr("reworked"));
    add(occurrence.isCaved(), tr("caved"));
    add(!occurrence.isReworked() && !occurrence.isCaved(), tr("in place"));
    add(occurrence.marker != 0, tr("marker"));
    const auto preservation = occurrence.preserv.view();
    add(!preservation.empty(), tr("preservation %1").arg(shownOrMissing(preservation)));
    const auto comments = occurrence.comments.view();
    add(!comments.empty(), shownOrMissing(comments));
    return shownOrMissing(find.record->analyst.view()) + QLatin1String(": ")
        + words.join(QLatin1String(", "));
}

QString findLegend()
{
    return tr("? questionable \u00B7 R reworked \u00B7 C caved \u00B7 + not counted \u00B7"
              " bold: marker");
}

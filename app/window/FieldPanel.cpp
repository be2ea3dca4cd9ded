// app/window/FieldPanel.cpp
#include "app/window/FieldPanel.h"

#include "app/window/Clipboard.h"
#include "app/window/FieldLabels.h"

#include <QEvent>

FieldPanel::FieldPanel(QWidget* parent)
    : QScrollArea(parent)
{
    setWidget(new QWidget(this));
    setWidgetResizable(true);
    setFrameStyle(int(QFrame::Box) | int(QFrame::Plain));
    setFocusPolicy(Qt::StrongFocus);
    markFocus(false);
}

QString FieldPanel::text() const
{
    QList<QStringList> lines;
    for (const HeaderField& field : fields_)
        lines += {field.caption, field.value};
    return tabSeparated(lines);
}

QLabel* FieldPanel::addCaption(const QString& caption)
{
    captions_.push_back(makeCaption(widget(), caption));
    colourCaptions({captions_.back()}, palette());
    return captions_.back();
}

void FieldPanel::setFields(std::vector<HeaderField> fields)
{
    fields_ = std::move(fields);
    widget()->setVisible(!fields_.empty());
    setAccessibleDescription(text());
}

void FieldPanel::changeEvent(QEvent* event)
{
    QScrollArea::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        colourCaptions(captions_, palette());
}

void FieldPanel::focusInEvent(QFocusEvent* event)
{
    QScrollArea::focusInEvent(event);
    markFocus(true);
}

void FieldPanel::focusOutEvent(QFocusEvent* event)
{
    QScrollArea::focusOutEvent(event);
    markFocus(false);
}

void FieldPanel::markFocus(bool focused)
{
    setForegroundRole(focused ? QPalette::Highlight : QPalette::Mid);
}

// app/window/FieldLabels.cpp
#include "app/window/FieldLabels.h"

#include <QLabel>

namespace {

constexpr float kCaption = 0.65F; // of the text's colour
constexpr double kTitle = 1.4;    // times the size of the other texts

QColor captionColour(const QPalette& palette)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor behind = palette.color(QPalette::Window);
    const auto mixed = [](float a, float b) { return kCaption * a + (1 - kCaption) * b; };
    return QColor::fromRgbF(mixed(text.redF(), behind.redF()),
        mixed(text.greenF(), behind.greenF()), mixed(text.blueF(), behind.blueF()));
}

} // namespace

QLabel* makeTitle(QWidget* parent)
{
    auto* title = new QLabel(parent);
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

void colourCaptions(const std::vector<QLabel*>& captions, const QPalette& palette)
{
    QPalette colours;
    colours.setColor(QPalette::WindowText, captionColour(palette));
    for (QLabel* caption : captions)
        caption->setPalette(colours);
}

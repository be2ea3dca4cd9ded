// app/window/Choices.cpp
#include "app/window/Choices.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>

QComboBox* makeCombo(const char* object, const QString& spoken)
{
    auto* combo = new QComboBox;
    combo->setObjectName(QLatin1String(object));
    combo->setAccessibleName(spoken);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return combo;
}

void addChoice(QHBoxLayout& line, const QString& caption, QComboBox* combo)
{
    auto* label = new QLabel(caption);
    label->setBuddy(combo);
    line.addWidget(label);
    line.addWidget(combo);
}

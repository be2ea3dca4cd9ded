// app/window/Choices.h
#pragma once

#include <QString>

class QComboBox;
class QHBoxLayout;

// The choices above a table.

/// A choice that is as wide as its longest text. `object` is its name among the widgets.
QComboBox* makeCombo(const char* object, const QString& spoken);

/// Puts it at the end of the line, behind a caption whose key leads to it.
void addChoice(QHBoxLayout& line, const QString& caption, QComboBox* combo);

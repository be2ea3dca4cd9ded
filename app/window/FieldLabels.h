// app/window/FieldLabels.h
#pragma once

#include <vector>

class QLabel;
class QPalette;
class QString;
class QWidget;

// The labels of a panel of fields: a title, captions, and the values beside them.

/// Larger than the other texts; what is in it can be selected.
QLabel* makeTitle(QWidget* parent);
QLabel* makeCaption(QWidget* parent, const QString& caption);
/// `caption` is what a screen reader calls it.
QLabel* makeValue(QWidget* parent, const QString& caption);

/// Paler than the values and still easy to read, on light and on dark: to be done again when the
/// palette changes.
void colourCaptions(const std::vector<QLabel*>& captions, const QPalette& palette);

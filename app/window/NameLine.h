// app/window/NameLine.h
#pragma once

#include "app/window/NameText.h"

class QFont;
class QPainter;
class QRectF;

// A name of a taxon in one line, italic where its marks say so.

qreal nameWidth(const NameText& name, const QFont& font);

/// Draws it from the left of `room`, between top and bottom, in the colour of the painter's pen. A
/// name that is too wide ends with an ellipsis.
void drawName(QPainter& painter, const NameText& name, const QFont& font, const QRectF& room);

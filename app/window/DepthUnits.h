// app/window/DepthUnits.h
#pragma once

#include <QString>

/// The units that the window shows depths in. A matter of showing alone: nothing is stored.
enum class DepthUnits { OfWell, Metres, Feet };

/// The units letter to show the depths of a well in whose own letter is `wellUnits`: 'F' or 'M'.
char unitsLetter(DepthUnits shown, char wellUnits);

/// "ft" for 'F', else "m". The apostrophe that labels write for feet would be lost in a heading.
QString unitsSign(char units);

/// A stored depth (metres) in `units` with two decimals; the missing text when it is absent.
QString depthText(float metres, char units);

/// A value of the well header, which is in the well's own units, in `units` with its sign and at
/// most two decimals; the missing text when it is absent.
QString headerDepthText(float value, char wellUnits, char units);

// app/window/FindTexts.h
#pragma once

#include <QString>

class Fssabnd;
struct Smpdtl;

/// What one analyst recorded of one taxon in one sample.
struct Find {
    const Smpdtl* record;
    const Fssabnd* occurrence;
};

/// A find in a cell: a "?" in front when it is questionable; the count, else the code, else "+";
/// behind a blank, as they are letters like codes, R when it is reworked and C when it is caved.
QString findText(const Find& find);

/// The same in words, with the analyst, and what else is recorded.
QString findWords(const Find& find);

/// What the signs of `findText` mean, in one line.
QString findLegend();

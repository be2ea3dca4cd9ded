// app/window/NameText.h
#pragma once

#include <QString>
#include <QTextLayout>

#include <string_view>

class Taxon;

/// The printed name of a taxon: the text, and where it is italic.
struct NameText {
    QString text;
    QList<QTextLayout::FormatRange> italics;

    /// For labels: italics as elements, everything else escaped.
    QString html() const;
};

/// A name as the composer marks it: a backslash wherever upright and italic text change. Texts of
/// the database become texts that people read, runs of blanks one blank.
NameText markedName(std::string_view marked);

/// With author and year.
NameText nameText(Taxon& taxon);

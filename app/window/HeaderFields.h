// app/window/HeaderFields.h
#pragma once

#include <QString>

#include <vector>

class Well;

/// One line of the header of a well.
struct HeaderField {
    QString caption;
    QString value;
};

/// The header of a well as people read it, depths in `units` ('F' or 'M'). The captions are the
/// same for every well, the missing text stands where there is no value, and the description comes
/// last.
std::vector<HeaderField> headerFields(const Well& well, char units);

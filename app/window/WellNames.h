// app/window/WellNames.h
#pragma once

#include <QString>

#include <optional>
#include <vector>

/// A well as the list of wells shows it: texts as people read them, empty where there is none.
struct WellName {
    long well_id;
    QString name;
    QString code;
};

/// The wells of the database, in no order, without their headers: one statement for all. A well
/// that no number belongs to cannot be opened and is left out. Nothing after a failure, which is
/// reported and not fatal.
std::optional<std::vector<WellName>> readWellNames();

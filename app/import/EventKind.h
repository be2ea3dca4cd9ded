// app/import/EventKind.h
#pragma once

#include <optional>
#include <string_view>

/// What a written kind of event is to the system.
struct EventKind {
    char kind = 0;           ///< 'F' a top, 'L' a base
    bool common = false;     ///< of the range in which the taxon is common, not of all of it
    bool translated = false; ///< the file's words turn the letters round
};

/// The one place that turns the words of the literature into the system's kinds.
///
/// The system speaks in the order of drilling, from the surface down: F, first met, is the top of a
/// range and L, last met, its base. The literature speaks in the order of time: a First Occurrence
/// (FO, FAD) is the oldest one, so the base, L, and a Last Occurrence (LO, LAD) the youngest one,
/// so the top, F. Bare letters F and L are the system's own; LO is the last occurrence, not the
/// lowest. None for a word that is not known.
std::optional<EventKind> eventKindOf(std::string_view written);

// dict/EventLabels.h
#pragma once

#include "util/FixedText.h"

#include <cstddef>
#include <string_view>

// How the place of an event is labelled: "Top of " or "Base of ", then the name of the event. The
// words in front are the user's own and empty until they are loaded.

extern FixedText<19> eventTopPrefix;
extern FixedText<19> eventBasePrefix;

/// Reads both for `currentUserId`; a missing preference gives "Top of " and "Base of ". Failure:
/// reported, as missing.
void loadEventPrefixes();

/// Room for a label, terminator included.
inline constexpr std::size_t kEventLabelRoom = 122;

/// The label of a top ('F'), a base ('L') or, with nothing in front, any other kind, into `out`.
void eventLabel(char* out, char kind, std::string_view name);

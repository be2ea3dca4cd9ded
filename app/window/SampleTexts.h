// app/window/SampleTexts.h
#pragma once

#include <QString>

class Sample;

// What the tables of a well say of its samples.

/// The depth of a sample in `units`: its base, or its top when it has no base.
QString sampleDepthText(const Sample& sample, char units);

/// The heading of a column of such depths, and what to know of it; "%1" is the sign of the units.
/// American practice dates cuttings at their top, so the heading says which end it is.
inline constexpr const char* kSampleDepth = "Depth (%1), sample base";
inline constexpr const char* kSampleDepthMeaning =
    "The depth of a sample is its base, or its top when it has no base.";

/// What the code of its type stands for; empty for a code that is none of the five.
QString sampleTypeWord(const Sample& sample);

// app/shell/DepthModel.h
#pragma once

#include "well/Well.h"

/// The deviation survey of a well, read at the first call with room for all of its points; it
/// stays the well's. A failure is reported and leaves it empty.
const TVDepth& depthModel(Well& well);

enum class DepthAxis { Measured, Vertical };

/// Whether a depth (metres) lies below the last point of the survey, where conversion only gives
/// that point's value.
bool isBeyondSurvey(const TVDepth& survey, float depth, DepthAxis axis);

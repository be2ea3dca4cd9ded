// app/import/DepthInterval.h
#pragma once

/// Metres. The base lies below the top; in an outcrop both are heights.
struct DepthInterval {
    double top = 0;
    double base = 0;
};

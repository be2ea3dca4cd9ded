// db/Units.h
#pragma once

// Depth units: 'F' is feet, any other character metres. Stored depths are metres.

/// Exactly as written in the system: the second is not computed from the first.
inline constexpr double kMetresPerFoot = 0.3048;
inline constexpr double kFeetPerMetre = 3.280839895013123;

/// A depth whose absolute value is below this counts as absent. Metres.
inline constexpr float kAbsentDepth = 0.0001f;

float toMetres(float value, char units);
float fromMetres(float value, char units);

/// Writes `value` right-aligned in 8 characters with `decimals` [0-..], halves rounded away from
/// zero for 0 and 1 decimals, then "m" when `units` is 'M', else "'". `stripZeros` not 0 drops zero
/// decimals and the point. `out` must have room for the number and two more bytes.
void formatDepth(char* out, float value, char units, int decimals, int stripZeros);

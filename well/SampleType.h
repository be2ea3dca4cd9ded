// well/SampleType.h
#pragma once

#include <string_view>

// The five sample type codes: "CU" (cuttings), "SC" (sidewall core), "CO" (core), "OC" (outcrop),
// "LOG". Results are codes of that table and stay valid for good.

/// What stands for a type that is missing or unknown.
inline constexpr std::string_view kDefaultSampleType = "CU";

/// 2 to the power of the code's place in the table: 1, 2, 4, 8 or 16; 0 for any other text. Letter
/// case counts.
long sampleTypeBit(std::string_view code);

/// The code itself when it is one of the five, else "CU".
std::string_view knownSampleType(std::string_view code);

/// The code for a type from the sample list of a well: upper-cased and without trailing white
/// space, "CU" when that is none of the five.
std::string_view storedSampleType(std::string_view text);

/// The code for a type that a user or an import gave: upper-cased, the neighbouring programs' codes
/// "WDC", "DDC" and "SWC" and everything that begins with "CO" translated, "CU" for the rest.
std::string_view enteredSampleType(std::string_view text);

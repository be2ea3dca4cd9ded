// interp/LocaleDate.h
#pragma once

#include "util/Date.h"

#include <string_view>

/// Reads a date of three numbers in the order of the global locale, or, with a first number above
/// 31, year first. Years below 100 are of the twentieth century. Anything may stand between the
/// numbers. The invalid date when there is no such day.
Date dateInLocale(std::string_view text);

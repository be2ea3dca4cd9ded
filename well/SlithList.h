// well/SlithList.h
#pragma once

#include "util/OwningList.h"
#include "well/Slith.h"

/// The lithologies that one sample is made of. Owns them.
using SlithList = OwningList<Slith>;

// well/LithoList.h
#pragma once

#include "util/OwningList.h"
#include "well/Litho.h"

/// The lithostratigraphic codes of one well. Owns them.
using LithoList = OwningList<Litho>;

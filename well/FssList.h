// well/FssList.h
#pragma once

#include "util/OwningList.h"
#include "well/Fssabnd.h"

/// The occurrences that one analyst recorded in one sample. Owns them.
using FssList = OwningList<Fssabnd>;

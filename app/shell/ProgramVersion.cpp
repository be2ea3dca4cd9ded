// app/shell/ProgramVersion.cpp
#include "app/shell/ProgramVersion.h"

const char* programVersion() { return "zonaris " ZONARIS_VERSION; }

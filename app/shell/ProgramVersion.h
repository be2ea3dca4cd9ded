// app/shell/ProgramVersion.h
#pragma once

/// Name and version of the program, "zonaris 1.2.3".
const char* programVersion();

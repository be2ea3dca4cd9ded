// app/window/OpenAndRemember.h
#pragma once

#include "app/shell/ConnectionSettings.h"

#include <string>

/// Opens the database that the settings name, as `openDatabase` does, and puts its file in front of
/// the recent ones. That its tables were converted is reported, since it left a second file. Empty
/// on success, else what went wrong, not reported.
std::string openAndRemember(const ConnectionSettings& settings);

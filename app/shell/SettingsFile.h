// app/shell/SettingsFile.h
#pragma once

#include "app/shell/Settings.h"

#include <filesystem>
#include <functional>
#include <string>

// The settings on the disk: a JSON file that only its owner may read, since connection strings hold
// passwords. A file that cannot be understood is told and never written over; what it holds beside
// the known keys stays in it.

/// $ZONARIS_SETTINGS (empty: no settings are kept), or zonaris/settings.json in $XDG_CONFIG_HOME or
/// in ~/.config. Empty: there is no place for it.
std::filesystem::path settingsFile();

/// Reads the file; one that is not there reads as empty settings. Empty on success, else what is
/// wrong with it and where, without repeating what stands there.
std::string readSettings(Settings* settings);

/// Reads the file, lets `change` edit the settings and writes them, all or nothing, while other
/// processes that do the same wait. Nothing is written when `change` gives a text, which says what
/// is wrong and is returned. Empty on success.
std::string changeSettings(const std::function<std::string(Settings*)>& change);

/// Puts the file of an embedded database in front of the recent ones. Does nothing for a server. A
/// failure is of no consequence and not told.
void rememberDatabase(const ConnectionSettings& connection);

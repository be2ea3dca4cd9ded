// app/window/ProgramArguments.h
#pragma once

#include <QStringList>

struct ConnectionSettings;

/// The command line, without the program's name, that opens the main window with these settings.
QStringList programArguments(const ConnectionSettings& settings);

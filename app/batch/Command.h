// app/batch/Command.h
#pragma once

#include "app/batch/BatchOptions.h"

#include <CLI/CLI.hpp>

#include <memory>

/// Declares a command on the command line. When it is chosen, `run` becomes the one of `options`;
/// what `run` needs from options of its own, which the caller adds to the result, it shares with
/// them. The result belongs to `app`.
CLI::App* addCommand(CLI::App& app, BatchOptions* options, const char* name, const char* help,
    std::function<int()> run, DatabaseNeed database = DatabaseNeed::Open);

/// Declares a word that commands stand behind, as in "pref get": they are added to the result, and
/// one of them must follow. The result belongs to `app`.
CLI::App* addGroup(CLI::App& app, const char* name, const char* help);

/// The argument that names a well.
void addWell(CLI::App* command, std::string* well);

/// The option that names a discipline.
void addDiscipline(CLI::App* command, std::string* discipline);

/// `--units`: 'M' or 'F', left alone when it is not given.
void addUnits(CLI::App* command, char* units);

// app/batch/Commands.h
#pragma once

#include "app/batch/BatchOptions.h"

namespace CLI {
class App;
}

// One function per command: it declares the command with its options. The table in CommandLine.cpp
// lists them all, in the order of the help.

void addCreate(CLI::App& app, BatchOptions* options);
void addImport(CLI::App& app, BatchOptions* options);
void addWells(CLI::App& app, BatchOptions* options);
void addSamples(CLI::App& app, BatchOptions* options);
void addTaxa(CLI::App& app, BatchOptions* options);
void addTaxon(CLI::App& app, BatchOptions* options);
void addAbundance(CLI::App& app, BatchOptions* options);

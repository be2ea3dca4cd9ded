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
void addExport(CLI::App& app, BatchOptions* options);
void addWells(CLI::App& app, BatchOptions* options);
void addSamples(CLI::App& app, BatchOptions* options);
void addLoad(CLI::App& app, BatchOptions* options);
void addSummary(CLI::App& app, BatchOptions* options);
void addList(CLI::App& app, BatchOptions* options);
void addOccurrences(CLI::App& app, BatchOptions* options);
void addTops(CLI::App& app, BatchOptions* options);
void addEvents(CLI::App& app, BatchOptions* options);
void addStandard(CLI::App& app, BatchOptions* options);
void addDepth(CLI::App& app, BatchOptions* options);
void addSampleLithology(CLI::App& app, BatchOptions* options);
void addSchemes(CLI::App& app, BatchOptions* options);
void addScheme(CLI::App& app, BatchOptions* options);
void addAge(CLI::App& app, BatchOptions* options);
void addDepthOfAge(CLI::App& app, BatchOptions* options);
void addZones(CLI::App& app, BatchOptions* options);
void addConflicts(CLI::App& app, BatchOptions* options);
void addLithology(CLI::App& app, BatchOptions* options);
void addEnvironment(CLI::App& app, BatchOptions* options);
void addPicks(CLI::App& app, BatchOptions* options);
void addTaxa(CLI::App& app, BatchOptions* options);
void addTaxon(CLI::App& app, BatchOptions* options);
void addAbundance(CLI::App& app, BatchOptions* options);
void addPref(CLI::App& app, BatchOptions* options);
void addConnections(CLI::App& app, BatchOptions* options);
void addConnection(CLI::App& app, BatchOptions* options);
void addBackup(CLI::App& app, BatchOptions* options);
void addDoctor(CLI::App& app, BatchOptions* options);

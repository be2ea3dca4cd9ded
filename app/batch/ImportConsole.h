// app/batch/ImportConsole.h
#pragma once

#include "app/import/Importer.h"

#include <string>

/// Follows an import on the standard error stream: every issue a line, and how far it is. On a
/// terminal the progress is one line that changes, else a line now and then.
class ImportConsole : public ImportListener {
public:
    ImportConsole();
    ~ImportConsole() override;
    void issue(const Issue& issue) override;
    void progress(const std::string& file, long rows, ImportPhase phase) override;

private:
    void clearProgress();

    bool terminal_;
    bool shown_ = false;
};

/// The counts as a table on the standard output, with a closing line that says what was stored.
void writeCounts(const ImportResult& result, bool dryRun);

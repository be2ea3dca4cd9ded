// app/batch/ImportConsole.cpp
#include "app/batch/ImportConsole.h"

#include "app/batch/TextTable.h"

#include <unistd.h>

#include <iostream>

namespace {

constexpr long kRowsPerLine = 100000; // of progress, where lines stay
constexpr const char* kClearLine = "\r\x1B[K";

const char* verb(ImportPhase phase)
{
    return phase == ImportPhase::Checking ? "checking" : "storing";
}

std::string closingLine(const ImportResult& result, bool dryRun)
{
    if (dryRun)
        return "Dry run: nothing was stored.";
    if (result.stored() > 0)
        return "Stored.";
    return result.refused() > 0 ? "Nothing changed: no row that could be stored was new."
                                : "Nothing changed: all rows are in the database already.";
}

} // namespace

ImportConsole::ImportConsole()
    : terminal_(isatty(STDERR_FILENO) == 1)
{
}

ImportConsole::~ImportConsole() { clearProgress(); }

void ImportConsole::clearProgress()
{
    if (shown_)
        std::cerr << kClearLine;
    shown_ = false;
}

void ImportConsole::issue(const Issue& issue)
{
    clearProgress();
    std::cerr << issueText(issue) << '\n';
}

void ImportConsole::progress(const std::string& file, long rows, ImportPhase phase)
{
    if (!terminal_ && rows % kRowsPerLine != 0)
        return;
    clearProgress();
    std::cerr << file << ": " << verb(phase) << ", " << rows << " rows";
    if (!terminal_)
        std::cerr << '\n';
    else
        std::cerr << std::flush;
    shown_ = terminal_;
}

void writeCounts(const ImportResult& result, bool dryRun)
{
    using enum TextTable::Align;
    TextTable table({{"file", Left}, {"read", Right}, {"new", Right}, {"updated", Right},
        {"unchanged", Right}, {"adjusted", Right}, {"refused", Right}});
    for (const FileCounts& file : result.files) {
        std::vector<std::string> cells{file.file};
        for (const long count :
            {file.read, file.added, file.changed, file.same, file.adjusted, file.refused})
            cells.push_back(std::to_string(count));
        table.add(std::move(cells));
    }
    if (table.rows() > 0)
        table.write(std::cout);
    if (result.failure.empty())
        std::cout << closingLine(result, dryRun) << '\n';
}

// tests/app/ImportRun.h
#pragma once

#include "app/import/Importer.h"
#include "tests/app/Files.h"
#include "tests/support/TestDatabase.h"

#include <string>
#include <vector>

/// Keeps what an import says.
class IssueLog : public ImportListener {
public:
    void issue(const Issue& issue) override { texts.push_back(issueText(issue)); }
    void progress(const std::string& file, long rows, ImportPhase phase) override
    {
        const char* word = phase == ImportPhase::Checking ? " checked " : " stored ";
        steps.push_back(file + word + std::to_string(rows));
    }
    bool cancelled() override { return !steps.empty() && steps.back() == cancelAt; }

    std::vector<std::string> texts;
    std::vector<std::string> steps;
    std::string cancelAt;
};

/// "file read/new/updated/unchanged/adjusted/refused".
inline std::string countsText(const FileCounts& c)
{
    std::string text = c.file + ' ' + std::to_string(c.read);
    for (const long n : {c.added, c.changed, c.same, c.adjusted, c.refused})
        text += '/' + std::to_string(n);
    return text;
}

inline std::vector<std::string> countsOf(const ImportResult& result)
{
    std::vector<std::string> texts;
    for (const FileCounts& counts : result.files)
        texts.push_back(countsText(counts));
    return texts;
}

/// Every row of the tables that an import writes.
inline std::vector<std::string> contentsOf(TestDatabase& db)
{
    std::vector<std::string> all;
    for (const char* table : {"WELLS", "WELL_IDENT", "SAMPLES"})
        for (std::string& row : db.rows(std::string("SELECT * FROM ") + table + " ORDER BY 1"))
            all.push_back(std::string(table) + ": " + row);
    return all;
}

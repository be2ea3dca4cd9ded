// tests/app/export/RoundTrip.h
#pragma once

#include "app/export/Exporter.h"
#include "tests/app/ImportRun.h"

#include <map>
#include <string>

#include <gtest/gtest.h>

using Files = std::map<std::string, std::string>; // name, bytes

inline Files filesIn(const std::filesystem::path& folder)
{
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        files[entry.path().filename().string()] = contentOf(entry.path());
    return files;
}

inline Files exported(const ExportOptions& options)
{
    const ExportResult result = exportTables(options);
    EXPECT_EQ("", result.failure);
    EXPECT_TRUE(result.left.empty()) << result.left.front();
    return filesIn(options.folder);
}

/// Fills a database and exports it to `folder`; imports that into the same database, where it may
/// change nothing, and into a new one, whose export must be the same byte by byte.
template <typename Fill> void expectRoundTrip(const std::filesystem::path& folder, const Fill& fill)
{
    Files first;
    {
        TestDatabase db;
        fill(db);
        first = exported({folder});
        IssueLog log;
        const ImportResult again = importFiles({{folder}, false}, log);
        EXPECT_EQ("", again.failure);
        EXPECT_EQ(std::vector<std::string>(), log.texts);
        for (const FileCounts& counts : again.files)
            EXPECT_EQ(counts.read, counts.same) << countsText(counts);
    }
    TestDatabase db;
    IssueLog log;
    const ImportResult brought = importFiles({{folder}, false}, log);
    EXPECT_EQ("", brought.failure);
    EXPECT_EQ(std::vector<std::string>(), log.texts);
    for (const FileCounts& counts : brought.files)
        EXPECT_EQ(counts.read, counts.added) << countsText(counts);
    const Folder other;
    const Files second = exported({other.path()});
    EXPECT_EQ(first.size(), second.size());
    for (const auto& [name, bytes] : first)
        EXPECT_EQ(bytes, second.at(name)) << name;
}

// tests/app/import/dictionary/FaultSweep.h
#pragma once

#include "tests/app/import/dictionary/DictionaryRun.h"

#include <gmock/gmock.h>

/// Imports the files with each driver call failing in turn, into a database that `prepare` made:
/// all is stored or nothing, and what failed is told. Returns how many calls there were.
inline int sweepFaults(const Files& files, void (*prepare)(TestDatabase&),
    Lines (*contents)(TestDatabase&), std::size_t stored)
{
    for (int n = 1;; ++n) {
        TestDatabase db;
        prepare(db);
        const Lines before = contents(db);
        const DriverFault fault(n);
        IssueLog log;
        const ImportResult result = importAll(files, log);
        const std::string where = fault.call() + ' ' + std::to_string(n);
        if (result.failure.empty()) {
            EXPECT_EQ(stored, contents(db).size()) << where;
            if (fault.fired()) {
                EXPECT_THAT(fault.call(), testing::StartsWith("SQLFree")) << where;
            }
        } else {
            EXPECT_EQ(before, contents(db)) << where;
            EXPECT_THAT(result.failure,
                testing::HasSubstr(fault.call() == "SQLFreeStmt" ? "is open" : "injected fault"))
                << where;
        }
        if (!fault.fired())
            return n - 1;
    }
}

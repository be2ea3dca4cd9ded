// tests/support/FaultTable.h
#pragma once

#include "db/Session.h"
#include "tests/support/MessageLog.h"
#include "tests/support/TestDatabase.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

/// What is left when the n-th statement does not run, and when its first row cannot be fetched.
/// Where a failure is fatal a lost connection is restored, so that the operation goes on.
struct FaultOutcome {
    int n;
    std::string report; ///< how the first box begins
    std::string failed;
    std::string unfetched{}; ///< empty: not asked
    bool fatal = false;
};

/// An operation on a database that `Data` makes; its result as text.
template <typename Data> struct FaultCase {
    const char* name;
    std::string (*run)(Data&);
    std::vector<FaultOutcome> outcomes;
};

template <typename Data> void expectFault(const FaultCase<Data>& c, const FaultOutcome& o, bool row)
{
    SCOPED_TRACE(c.name + (" " + std::to_string(o.n)) + (row ? " unfetched" : " failed"));
    Data data;
    const MessageLog boxes;
    const std::string text = o.fatal ? "ORA-03113: lost" : "injected";
    {
        const char* call = row ? "SQLFetch" : "SQLExecDirect";
        const DriverFault fault(o.n, call, DriverFault::Once, "HY000", text);
        EXPECT_EQ(row ? o.unfetched : o.failed, c.run(data));
        EXPECT_TRUE(fault.fired());
    }
    const std::vector<std::string> texts = boxes.texts();
    ASSERT_EQ(row, texts.empty());
    EXPECT_TRUE(row || texts[0].starts_with(o.report)) << texts[0];
    EXPECT_THAT(texts, testing::Contains(testing::HasSubstr(text)).Times(row ? 0 : 1));
    EXPECT_EQ(1, dbExecute("SELECT 1")) << "a cursor was left";
}

template <typename Cases> void expectFaults(const Cases& cases)
{
    for (const auto& c : cases) {
        for (const FaultOutcome& o : c.outcomes) {
            expectFault(c, o, false);
            if (!o.unfetched.empty())
                expectFault(c, o, true);
        }
    }
}

template <typename Data> void runEchoing(const FaultCase<Data>& c, const FaultOutcome& o)
{
    Data data;
    MessageLog boxes;
    boxes.echo();
    const DriverFault fault(o.n, "SQLExecDirect");
    c.run(data);
}

/// That the fatal ones end the process.
template <typename Cases> void expectEnds(const Cases& cases)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const auto& c : cases) {
        for (const FaultOutcome& o : c.outcomes) {
            if (!o.fatal)
                continue;
            EXPECT_EXIT(runEchoing(c, o), testing::ExitedWithCode(1), "^box: " + o.report);
        }
    }
}

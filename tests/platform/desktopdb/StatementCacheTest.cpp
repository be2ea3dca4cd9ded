// tests/platform/desktopdb/StatementCacheTest.cpp
#include "platform/desktopdb/StatementCache.h"

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

class Idle : public EngineStatement {
public:
    explicit Idle(int& living)
        : living_(living)
    {
        ++living_;
    }
    ~Idle() override { --living_; }
    Step step(Failure&) override { return Step::Done; }
    int columnCount() const override { return 0; }
    Cell cell(int) const override { return {}; }
    ResultColumn column(int) const override { return {}; }
    int parameterCount() const override { return 0; }
    bool bind(int, const Cell&, Failure&) override { return true; }
    void reset() override {}
    bool readOnly() const override { return true; }
    std::int64_t changes() const override { return 0; }

private:
    int& living_;
};

class StatementCacheTest : public testing::Test {
protected:
    std::unique_ptr<EngineStatement> made() { return std::make_unique<Idle>(living_); }
    int living_ = 0;
    StatementCache cache_{3};
};

TEST_F(StatementCacheTest, GivesBackWhatItGotByItsText)
{
    auto statement = made();
    const EngineStatement* const given = statement.get();
    cache_.give("a", std::move(statement));
    EXPECT_EQ(cache_.take("b"), nullptr);
    EXPECT_EQ(cache_.take("a").get(), given);
    EXPECT_EQ(cache_.hits(), 1);
    EXPECT_EQ(cache_.misses(), 1);
}

TEST_F(StatementCacheTest, AStatementInUseIsNotGivenTwice)
{
    cache_.give("a", made());
    const auto first = cache_.take("a");
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(cache_.take("a"), nullptr);
}

TEST_F(StatementCacheTest, KeepsTwoOfOneText)
{
    cache_.give("a", made());
    cache_.give("a", made());
    const auto first = cache_.take("a");
    EXPECT_NE(first, nullptr);
    EXPECT_NE(cache_.take("a"), nullptr);
}

TEST_F(StatementCacheTest, TheOneUnusedLongestGoes)
{
    for (const char* sql : {"a", "b", "c"})
        cache_.give(sql, made());
    cache_.give("a", cache_.take("a"));
    cache_.give("d", made());
    EXPECT_EQ(living_, 3);
    EXPECT_EQ(cache_.size(), 3u);
    EXPECT_EQ(cache_.take("b"), nullptr);
    EXPECT_NE(cache_.take("a"), nullptr);
}

TEST_F(StatementCacheTest, ClearingEndsAllIdleOnes)
{
    cache_.give("a", made());
    const auto kept = cache_.take("a");
    cache_.give("b", made());
    cache_.clear();
    EXPECT_EQ(living_, 1);
    EXPECT_EQ(cache_.take("b"), nullptr);
}

} // namespace

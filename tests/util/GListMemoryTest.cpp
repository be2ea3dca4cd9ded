// tests/util/GListMemoryTest.cpp
#include "util/GList.h"

#include <new>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {
bool memoryIsUsedUp = false;
}

// The allocation that reports failure by null, switched off on demand. It hands on to the throwing
// one, so that a sanitizer sees each block come and go through the same pair.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (memoryIsUsedUp)
        return nullptr;
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

namespace {

class GListMemoryDeathTest : public testing::Test {
protected:
    GListMemoryDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }

    void insertWithoutMemory(void* reference)
    {
        memoryIsUsedUp = true;
        list_.insert(reference, &item_);
    }

    GList list_;
    int item_ = 0;
};

TEST_F(GListMemoryDeathTest, PushEndsTheProcess)
{
    EXPECT_EXIT(insertWithoutMemory(nullptr), testing::ExitedWithCode(1),
        testing::Eq("\n Out of memory in GList::push"));
}

TEST_F(GListMemoryDeathTest, InsertEndsTheProcess)
{
    list_.push(&item_);
    EXPECT_EXIT(insertWithoutMemory(&item_), testing::ExitedWithCode(1),
        testing::Eq("\n Out of memory in GList::insert"));
}

} // namespace

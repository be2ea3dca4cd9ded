// tests/platform/desktopdb/HandlesTest.cpp
#include "platform/desktopdb/Handles.h"

#include <set>

#include <gtest/gtest.h>

using namespace desktopdb;

namespace {

TEST(HandleTable, FindsTheLivingOnly)
{
    HandleTable<int> table;
    int a = 0;
    int b = 0;
    void* const first = table.add(&a);
    void* const second = table.add(&b);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(table.find(first), &a);
    EXPECT_EQ(table.find(second), &b);
    table.remove(first);
    EXPECT_EQ(table.find(first), nullptr);
    EXPECT_EQ(table.find(second), &b);
}

TEST(HandleTable, AUsedSlotGetsANewHandle)
{
    HandleTable<int> table;
    int a = 0;
    void* const before = table.add(&a);
    table.remove(before);
    void* const after = table.add(&a);
    EXPECT_NE(after, before);
    EXPECT_EQ(table.find(before), nullptr);
    EXPECT_EQ(table.find(after), &a);
}

TEST(HandleTable, ForeignHandlesAreNone)
{
    HandleTable<int> table;
    int a = 0;
    table.add(&a);
    for (void* made : {static_cast<void*>(nullptr), static_cast<void*>(&a),
             reinterpret_cast<void*>(~std::uintptr_t{0}), reinterpret_cast<void*>(1)})
        EXPECT_EQ(table.find(made), nullptr);
}

TEST(HandleTable, GrowsAndKeepsAllApart)
{
    HandleTable<int> table;
    std::vector<int> objects(2000);
    std::vector<void*> handles;
    for (int& object : objects)
        handles.push_back(table.add(&object));
    EXPECT_EQ(std::set<void*>(handles.begin(), handles.end()).size(), objects.size());
    for (std::size_t i = 0; i < objects.size(); ++i)
        ASSERT_EQ(table.find(handles[i]), &objects[i]);
}

} // namespace

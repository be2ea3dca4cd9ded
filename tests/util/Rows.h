// tests/util/Rows.h
#pragma once

#include <initializer_list>

#include <gtest/gtest.h>

/// A rule, what it gives and what it should give.
template <typename T> struct Row {
    const char* rule;
    T given;
    T wanted;
};

template <typename T> void expectRows(std::initializer_list<Row<T>> rows)
{
    for (const Row<T>& row : rows)
        EXPECT_EQ(row.wanted, row.given) << row.rule;
}

#include "layout/tab_table.h"

#include <gtest/gtest.h>

#include "toolkit/base/error.h"

namespace zev {
namespace {

template <typename Action>
void expectSubscriptFailure(Action action) {
    try {
        action();
        FAIL() << "no failure";
    } catch (const toolkit::RunTimeError& error) {
        EXPECT_EQ(error.number(), 9);
    }
}

TEST(TabTable, BeginsWithTheSingleCellZero) { EXPECT_EQ(TabTable().UBound(), 0); }

TEST(TabTable, GrowsWithItsContent) {
    TabTable table;
    table.growTo(3);
    table.set(3, 1005);
    table.growTo(1005);
    EXPECT_EQ(table.UBound(), 1005);
    EXPECT_EQ(table[3], 1005);
    EXPECT_EQ(table[1005], 0);
}

TEST(TabTable, NeverShrinks) {
    TabTable table;
    table.growTo(5);
    table.growTo(2);
    table.growTo(-1);
    EXPECT_EQ(table.UBound(), 5);
}

TEST(TabTable, ClearsItsCellsAndKeepsTheBound) {
    TabTable table;
    table.growTo(5);
    table.set(5, 2);
    table.clear();
    EXPECT_EQ(table.UBound(), 5);
    EXPECT_EQ(table[5], 0);
}

TEST(TabTable, IsDiscardedToTheSingleCell) {
    TabTable table;
    table.growTo(5);
    table.set(5, 2);
    table.discard();
    EXPECT_EQ(table.UBound(), 0);
    table.growTo(5);
    EXPECT_EQ(table[5], 0);
}

TEST(TabTable, FailsOutsideItsCells) {
    TabTable table;
    table.growTo(2);
    expectSubscriptFailure([&] { static_cast<void>(table[0]); });
    expectSubscriptFailure([&] { static_cast<void>(table[3]); });
    expectSubscriptFailure([&] { static_cast<void>(table[-1]); });
    expectSubscriptFailure([&] { table.set(0, 1); });
    expectSubscriptFailure([&] { table.set(3, 1); });
}

TEST(TabTable, FindsTheLowestPredecessor) {
    TabTable table;
    table.growTo(1002);
    table.set(1001, 7);
    table.set(4, 7);
    table.set(5, 7);
    EXPECT_EQ(table.predecessor(7), 4);
    EXPECT_EQ(table.predecessor(8), std::nullopt);
}

TEST(TabTable, HasNoPredecessorsWhenEmpty) { EXPECT_EQ(TabTable().predecessor(0), std::nullopt); }

} // namespace
} // namespace zev

#include "view/row_work.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace zev {
namespace {

/// How often each row was done, and by which threads.
struct Tally {
    explicit Tally(int rows) : done(static_cast<std::size_t>(rows)) {}

    RowWork::Worker worker() {
        return [this](int hand, const RowWork::Next& next) {
            {
                const std::lock_guard lock(mutex);
                hands.insert(hand);
            }
            while (const auto rows = next())
                for (int y = rows->from; y < rows->to; ++y) ++done[static_cast<std::size_t>(y)];
        };
    }
    [[nodiscard]] bool isEachDoneOnce() const {
        return std::ranges::all_of(done, [](const auto& times) { return times == 1; });
    }

    std::vector<std::atomic<int>> done;
    std::mutex mutex;
    std::set<int> hands;
};

TEST(RowWork, EveryRowIsDoneOnceWhenItIsFinished) {
    for (const int rows : {1, 15, 16, 17, 63, 64, 500, 2473}) {
        Tally tally(rows);
        RowWork work(rows, tally.worker());
        work.finish();
        EXPECT_TRUE(tally.isEachDoneOnce()) << rows;
    }
}

TEST(RowWork, HasNothingToDoWithoutRows) {
    Tally tally(0);
    RowWork work(0, tally.worker());
    work.finish();
    EXPECT_TRUE(tally.done.empty());
}

TEST(RowWork, HandsHaveNumbersOfTheirOwn) {
    Tally tally(2000);
    RowWork(2000, tally.worker()).finish();
    EXPECT_TRUE(tally.hands.contains(0));
    EXPECT_LT(*tally.hands.rbegin(), RowWork::hands(2000));
    EXPECT_EQ(static_cast<int>(tally.hands.size()), RowWork::hands(2000));
}

TEST(RowWork, FewRowsAreNotWorthASecondHand) { EXPECT_EQ(RowWork::hands(100), 1); }

TEST(RowWork, IsFinishedWhenAnotherTakesItsPlace) {
    Tally first(300);
    Tally second(300);
    RowWork work(300, first.worker());
    work = RowWork(300, second.worker());
    EXPECT_TRUE(first.isEachDoneOnce());
    work.finish();
    EXPECT_TRUE(second.isEachDoneOnce());
}

TEST(RowWork, IsFinishedWhereItIsLeft) {
    Tally tally(300);
    { const RowWork work(300, tally.worker()); }
    EXPECT_TRUE(tally.isEachDoneOnce());
}

TEST(RowWork, FinishedTwiceDoesNothingMore) {
    Tally tally(300);
    RowWork work(300, tally.worker());
    work.finish();
    work.finish();
    EXPECT_TRUE(tally.isEachDoneOnce());
}

} // namespace
} // namespace zev

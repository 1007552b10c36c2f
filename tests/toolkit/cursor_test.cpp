// The cursor's place where the platform lets no program move the pointer.
#include <QtGui/QCursor>
#include <gtest/gtest.h>

#include "toolkit/window/cursor.h"
#include "toolkit/window/screen.h"

namespace toolkit {
namespace {

class PinnedPointer : public testing::Test {
  protected:
    PinnedPointer() {
        QCursor::setPos(10, 20);
        overrideScreen({.pointerStays = true});
    }
    ~PinnedPointer() override { overrideScreen({}); }
    static void expectAt(int x, int y) {
        EXPECT_EQ(cursorPosition().x, x);
        EXPECT_EQ(cursorPosition().y, y);
    }
};

TEST_F(PinnedPointer, PlaceThatWasAskedForCounts) {
    setCursorPosition({123, 145});
    EXPECT_EQ(QCursor::pos(), QPoint(10, 20));
    expectAt(123, 145);
    setCursorPosition({-5000, 7});
    expectAt(-5000, 7);
}

TEST_F(PinnedPointer, PointerThatThePlayerMovesCountsFromThenOn) {
    setCursorPosition({123, 145});
    QCursor::setPos(11, 20);
    expectAt(11, 20);
    QCursor::setPos(10, 20);
    expectAt(10, 20);
}

TEST_F(PinnedPointer, NobodySeesThePlaceUntilThePlayerMovesThePointer) {
    EXPECT_FALSE(isCursorUnseen());
    setCursorPosition({123, 145});
    EXPECT_TRUE(isCursorUnseen());
    setCursorPosition({200, 210});
    EXPECT_TRUE(isCursorUnseen());
    QCursor::setPos(11, 20);
    EXPECT_FALSE(isCursorUnseen());
    QCursor::setPos(10, 20);
    EXPECT_FALSE(isCursorUnseen());
}

TEST_F(PinnedPointer, ThePlaceIsSeenWhereThePointerHappensToBe) {
    setCursorPosition({11, 21});
    EXPECT_FALSE(isCursorUnseen());
}

TEST(MovedPointer, ShowsThePlace) {
    QCursor::setPos(10, 20);
    setCursorPosition({123, 145});
    EXPECT_EQ(QCursor::pos(), QPoint(123, 145));
    EXPECT_FALSE(isCursorUnseen());
}

TEST_F(PinnedPointer, APlaceBeyondTheScreensTellsNothingOfThePlatform) {
    setCursorPosition({-5000, 7});
    EXPECT_FALSE(isCursorUnseen());
}

} // namespace
} // namespace toolkit

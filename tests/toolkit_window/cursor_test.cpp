// The place of the cursor.
#include "fixture.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/window/cursor.h"

namespace window_test {
namespace {

using namespace toolkit;

class Cursor : public WindowTest {};

TEST_F(Cursor, CursorIsWhereItWasAskedForUntilThePointerMoves) {
    setCursorPosition({123, 145});
    EXPECT_EQ(cursorPosition().x, 123);
    EXPECT_EQ(cursorPosition().y, 145);
    // Beyond the screen no pointer can be.
    setCursorPosition({-5000, -5000});
    EXPECT_EQ(cursorPosition().x, -5000);
    test::moveMouse(px(30), px(40));
    EXPECT_GE(cursorPosition().x, 0);
}

TEST_F(Cursor, CursorPositionFollowsThePointer) {
    test::moveMouse(px(30), px(40));
    const CursorPosition before = cursorPosition();
    test::moveMouse(px(34), px(41));
    EXPECT_EQ(cursorPosition().x - before.x, 4);
    EXPECT_EQ(cursorPosition().y - before.y, 1);
}

} // namespace
} // namespace window_test

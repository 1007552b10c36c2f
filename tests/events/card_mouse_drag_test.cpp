#include "events/card_mouse.h"
#include "text/edit_test.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
using toolkit::button::left;
using toolkit::button::right;

/// Points count from the card, which moves with the mouse.
class CardDrag : public EditTest {
  protected:
    static constexpr float start = 800 * pixel;
};

TEST_F(CardDrag, CardFollowsTheGrabPoint) {
    startSmall();
    moveMouse(start, start);
    pressMouse(start, start);
    EXPECT_EQ(form.P1.MousePointer, toolkit::MousePointer::Hand);
    moveMouse(start, start, left);
    moveMouse(start - 30 * pixel, start + 12 * pixel, left);
    EXPECT_EQ(form.P1.Left, -30 * pixel);
    EXPECT_EQ(form.P1.Top, 12 * pixel);
    EXPECT_EQ(form.LastX, start);
    moveMouse(start - 5 * pixel, start, left);
    EXPECT_EQ(form.P1.Left, -35 * pixel);
    releaseMouse(start, start);
    EXPECT_EQ(form.P1.MousePointer, toolkit::MousePointer::Default);
    EXPECT_EQ(form.P1.Left, -35 * pixel);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(CardDrag, CardCanBePulledRightOutOfTheForm) {
    startSmall();
    moveMouse(start, start);
    pressMouse(start, start);
    moveMouse(start, start, left);
    moveMouse(start - 3000 * pixel, start - 2000 * pixel, left);
    EXPECT_EQ(form.P1.Left, -3000 * pixel);
    EXPECT_EQ(form.P1.Top, -2000 * pixel);
}

TEST_F(CardDrag, FirstMoveOnlyArmsTheDrag) {
    startSmall();
    moveMouse(start, start);
    pressMouse(start, start);
    moveMouse(start + 40 * pixel, start, left);
    EXPECT_EQ(form.P1.Left, 0);
    moveMouse(start + 40 * pixel, start, left);
    EXPECT_EQ(form.P1.Left, 40 * pixel);
}

TEST_F(CardDrag, DragThatEndsOnAMarkSetsNothing) {
    startSmall();
    moveMouse(start, start);
    pressMouse(start, start);
    moveMouse(start, start, left);
    moveMouse(start + 10 * pixel, start, left);
    const auto target = targetOf(1);
    releaseMouse(target.x, target.y);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(CardDrag, NeitherFromAMarkNorWithTheRightOrBothButtons) {
    startSmall();
    const auto target = targetOf(1);
    moveMouse(target.x, target.y);
    pressMouse(target.x, target.y);
    EXPECT_EQ(form.P1.MousePointer, toolkit::MousePointer::Default);
    moveMouse(target.x + 50 * pixel, target.y, left);
    moveMouse(target.x + 90 * pixel, target.y, left);
    releaseMouse(start, start);
    EXPECT_EQ(form.P1.Left, 0);
    moveMouse(start, start);
    pressMouse(start, start, right);
    EXPECT_EQ(form.P1.MousePointer, toolkit::MousePointer::Default);
    moveMouse(start + 50 * pixel, start, right);
    moveMouse(start + 90 * pixel, start, right);
    moveMouse(start + 90 * pixel, start, left + right);
    EXPECT_EQ(form.LastButton, left + right);
    releaseMouse(start, start, right);
    EXPECT_EQ(form.P1.Left, 0);
}

TEST_F(CardDrag, NeitherFromATextNorFromASetMark) {
    startSmall();
    form.AMark[1].Visible = true;
    for (const CardPoint from : {middleOf(form.AText[1]), targetOf(1)}) {
        moveMouse(from.x, from.y);
        pressMouse(from.x, from.y);
        moveMouse(from.x + 50 * pixel, from.y, left);
        moveMouse(from.x + 90 * pixel, from.y, left);
        releaseMouse(start, start);
        EXPECT_EQ(form.P1.Left, 0);
    }
}

TEST_F(CardDrag, MoveRemembersPlaceButtonsAndModifiers) {
    startSmall();
    moveMouse(start, start - 60, 0, toolkit::shift::ctrl);
    EXPECT_EQ(form.LastX, start);
    EXPECT_EQ(form.LastY, start - 60);
    EXPECT_EQ(form.LastButton, 0);
    EXPECT_EQ(form.LastShift, toolkit::shift::ctrl);
}

} // namespace
} // namespace zev::test

#include "events/card_mouse.h"

#include <cmath>

#include "text/edit_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
using toolkit::button::left;
using toolkit::button::right;

class CardMouse : public EditTest {
  protected:
    /// Clicks at whole pixels from the mark's top left corner.
    void clickAt(int mark, int across, int down, int button = left) {
        const toolkit::Label& label = form.AMark[mark];
        click(label.Left + static_cast<float>(across) * pixel,
              label.Top + static_cast<float>(down) * pixel, button);
    }
    /// The first pixel from the mark's edge at which a length less five pixels isn't inside.
    static int firstMiss(float length) {
        return static_cast<int>(std::ceil((length - 5 * pixel) / pixel));
    }
    [[nodiscard]] int widthOf(int mark) const { return firstMiss(form.AMark[mark].Width); }
    [[nodiscard]] int heightOf(int mark) const { return firstMiss(form.AMark[mark].Height); }
};

TEST_F(CardMouse, ClickOnTheLeftEdgeMissesAndOnePixelRightHits) {
    startSmall();
    clickAt(1, 0, 10);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_FALSE(form.CardModified);
    clickAt(1, 1, 10);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(CardMouse, ClickWithinFivePixelsOfTheRightEdgeMisses) {
    startSmall();
    clickAt(1, widthOf(1), 10);
    EXPECT_FALSE(form.AMark[1].Visible);
    clickAt(1, widthOf(1) - 1, 10);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(CardMouse, ClickWithinFivePixelsOfTheTopMisses) {
    startSmall();
    clickAt(1, 8, 5);
    EXPECT_FALSE(form.AMark[1].Visible);
    clickAt(1, 8, 6);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(CardMouse, BottomFivePixelsClearAMarkButDoNotSetIt) {
    startSmall();
    const int bottom = heightOf(1);
    clickAt(1, 8, bottom);
    EXPECT_FALSE(form.AMark[1].Visible);
    clickAt(1, 8, bottom - 1);
    ASSERT_TRUE(form.AMark[1].Visible);
    clickAt(1, 8, bottom + 3);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(CardMouse, WholeRectangleOfASetMarkClearsIt) {
    startSmall();
    for (const int x : {0, widthOf(1) + 3}) {
        form.AMark[1].Visible = true;
        clickAt(1, x, 0);
        EXPECT_FALSE(form.AMark[1].Visible) << x;
    }
    form.AMark[1].Visible = true;
    clickAt(1, -1, 10);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(CardMouse, LowerOfTwoOverlappingMarksIsSet) {
    startSmall();
    form.AMark[2].Move(form.AMark[1].Left - 2 * pixel, form.AMark[1].Top);
    clickMark(2);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
}

TEST_F(CardMouse, EmptyTextOverAnUnsetMarkTakesTheClick) {
    startSmall();
    form.AMark[1].Move(form.AText[1].Left + 100 * pixel, form.AText[1].Top - 5 * pixel);
    clickMark(1);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_EQ(form.TIndex, 1);
}

TEST_F(CardMouse, SetMarkBehindAnotherTakesTheClickOnlyWhereNoneIsInFront) {
    startSmall();
    form.AMark[2].Move(form.AMark[1].Left, form.AMark[1].Top);
    form.AMark[1].Visible = true;
    form.AMark[2].Visible = true;
    form.AMark[1].Stack = form.AMark[2].Stack - 1;
    clickMark(1);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
}

TEST_F(CardMouse, RightClickOnAnUnsetMarkDoesNothing) {
    startSmall();
    clickMark(1, right);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_FALSE(form.CardModified);
    EXPECT_FALSE(form.TabActive);
}

TEST_F(CardMouse, RightClickOnBareCardDoesNothing) {
    startSmall();
    const float x = 800 * pixel;
    const float y = 800 * pixel;
    moveMouse(x, y);
    pressMouse(x, y, right);
    EXPECT_EQ(form.P1.MousePointer, toolkit::MousePointer::Default);
    EXPECT_FALSE(form.MarkHitPending);
    moveMouse(x + 30 * pixel, y + 20 * pixel, right);
    EXPECT_EQ(form.P1.Left, 0);
    EXPECT_EQ(form.P1.Top, 0);
    const auto target = targetOf(2);
    moveMouse(target.x, target.y, right);
    releaseMouse(target.x, target.y, right);
    EXPECT_EQ(form.P1.Left, 0);
    for (int mark = 1; mark <= 3; ++mark) EXPECT_FALSE(form.AMark[mark].Visible) << mark;
    EXPECT_EQ(form.AMark.UBound(), 3);
    EXPECT_EQ(form.AText.UBound(), 4);
    EXPECT_FALSE(isEditing());
    EXPECT_FALSE(form.CardModified);
    EXPECT_FALSE(form.TabActive);
    EXPECT_EQ(popups, 0);
    EXPECT_EQ(form.ActiveControl, &form.P1);
}

TEST_F(CardMouse, RightClickAfterAClearedMarkDoesNotSetItAgain) {
    startSmall();
    clickMark(1);
    clickMark(1);
    ASSERT_FALSE(form.AMark[1].Visible);
    const auto target = targetOf(1);
    pressMouse(target.x, target.y, right);
    releaseMouse(target.x, target.y, right);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(CardMouse, RightClickAfterSpaceClearedTheMarkDoesNotSetItAgain) {
    startSmall();
    clickMark(1);
    typeKey(toolkit::key::space);
    ASSERT_FALSE(form.AMark[1].Visible);
    const auto target = targetOf(1);
    pressMouse(target.x, target.y, right);
    releaseMouse(target.x, target.y, right);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(CardMouse, ClicksWithoutMovingTheMouseToggleEachTime) {
    startSmall();
    const auto target = targetOf(2);
    moveMouse(target.x, target.y);
    for (const bool set : {true, false, true, false}) {
        pressMouse(target.x, target.y);
        releaseMouse(target.x, target.y);
        EXPECT_EQ(form.AMark[2].Visible, set);
    }
}

TEST_F(CardMouse, DoubleClickTogglesTwice) {
    startSmall();
    const auto target = targetOf(1);
    doubleClick(target.x, target.y);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.CardModified);
    click(target.x, target.y);
    doubleClick(target.x, target.y);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(CardMouse, MarkUnderTheReleaseIsSetAfterASlideFromAnother) {
    startSmall();
    const auto from = targetOf(1);
    const auto to = targetOf(2);
    moveMouse(from.x, from.y);
    pressMouse(from.x, from.y);
    moveMouse(to.x, to.y, left);
    releaseMouse(to.x, to.y);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(CardMouse, ReleaseBesideTheMarkSetsNothing) {
    startSmall();
    const auto from = targetOf(1);
    moveMouse(from.x, from.y);
    pressMouse(from.x, from.y);
    moveMouse(800 * pixel, 800 * pixel, left);
    releaseMouse(800 * pixel, 800 * pixel);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_FALSE(form.MarkHitPending);
}

TEST_F(CardMouse, SetMarkComesToTheFrontAndTakesTheKeyboard) {
    startSmall();
    const auto target = targetOf(1);
    clickMark(1);
    for (const int other : {2, 3}) EXPECT_GT(form.AMark[1].Stack, form.AMark[other].Stack);
    EXPECT_TRUE(form.TabActive);
    EXPECT_EQ(form.TabCode, 1001);
    EXPECT_EQ(form.TabCursorX, toolkit::cursorPosition().x);
    EXPECT_EQ(form.TabCursorY, toolkit::cursorPosition().y);
    EXPECT_EQ(form.LastX, std::floor(target.x / pixel) * pixel);
}

TEST_F(CardMouse, TracesTellThePressTheMarkAndTheClick) {
    startSmall();
    form.AMark[1].Move(1500, 1500, 300, 375);
    form.Trace.clear();
    click(1605, 1695);
    EXPECT_TRUE(traced("P1_MouseDown  B=1 S=0 X=1605 Y=1695"));
    EXPECT_TRUE(traced("  P1_MouseDown Amark(1) at 1500, 1500, 300, 375"));
    EXPECT_TRUE(traced("P1_Click 1605, 1695"));
    EXPECT_TRUE(traced(
        "  P1_Click AMark(1)1500, 1500, 300, 375; Cursor: " + std::to_string(form.TabCursorX) +
        ", " + std::to_string(form.TabCursorY) + ", 1001"));
    EXPECT_LT(traceIndex("P1_Click 1605, 1695"), traceIndex("SetMod 0"));
}

TEST_F(CardMouse, ScanOfPressAndClickReadThePlaceOfTheLastMove) {
    startSmall();
    const auto target = targetOf(1);
    form.LastX = target.x;
    form.LastY = target.y;
    toolkit::MouseArguments press{left, 0, 9000, 9000};
    P1_MouseDown(form, press);
    EXPECT_TRUE(form.MarkHitPending);
    EXPECT_EQ(form.LastX, 9000);
    EXPECT_EQ(form.LastButton, left);
    P1_MouseUp(form, press);
    EXPECT_FALSE(form.MarkHitPending);
    P1_Click(form);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(CardMouse, DesignModeSetsNoMark) {
    startSmall();
    form.MShowShapes.Checked = true;
    clickMark(1);
    EXPECT_FALSE(form.AMark[1].Visible);
}

/// What the pointer looks like over the card.
class PointerOverCard : public CardMouse {
  protected:
    enum class Shape { Arrow, IBeam, Hand };
    [[nodiscard]] static Shape shapeAt(float x, float y) {
        moveMouse(x, y);
        if (showsIBeam()) return Shape::IBeam;
        return shownPointer().empty() ? Shape::Arrow : Shape::Hand;
    }
    [[nodiscard]] static Shape shapeAt(CardPoint point) { return shapeAt(point.x, point.y); }
};

TEST_F(PointerOverCard, TellsWhatAPressWouldDo) {
    startSmall();
    enter(2, "1^h");
    EXPECT_EQ(shapeAt(middleOf(form.AText[1])), Shape::IBeam);
    ASSERT_TRUE(form.SText[1].Visible);
    EXPECT_EQ(shapeAt(middleOf(form.SText[1])), Shape::IBeam);
    EXPECT_EQ(shapeAt(800 * pixel, 800 * pixel), Shape::Hand);
    EXPECT_EQ(shapeAt(targetOf(1)), Shape::Arrow);
    clickMark(1);
    EXPECT_EQ(shapeAt(targetOf(1)), Shape::Arrow);
    EXPECT_EQ(shapeAt(form.AMark[2].Left, form.AMark[2].Top + 10 * pixel), Shape::Hand);
}

TEST_F(PointerOverCard, TellsItWhereverTheCardIsMovedTo) {
    startSmall();
    EXPECT_EQ(shapeAt(middleOf(form.AText[1])), Shape::IBeam);
    turnWheel(-120);
    EXPECT_FALSE(showsIBeam());
    turnWheel(120);
    EXPECT_TRUE(showsIBeam());
}

TEST_F(PointerOverCard, IsTheArrowInDesignModeAndBehindTheHelp) {
    startSmall();
    typeKey(toolkit::key::f1);
    EXPECT_EQ(shapeAt(0, 0), Shape::Arrow);
    typeKey(toolkit::key::escape, 0, "\x1b");
    EXPECT_EQ(shapeAt(0, 0), Shape::Hand);
    ASSERT_TRUE(chooseMenu("Options>Show the Design Menu         Shift Ctrl  D"));
    ASSERT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(shapeAt(middleOf(form.AText[1])), Shape::Arrow);
    EXPECT_EQ(shapeAt(800 * pixel, 800 * pixel), Shape::Arrow);
}

} // namespace
} // namespace zev::test

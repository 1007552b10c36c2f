// What is typed stays in sight.
#include "text/edit_test.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class FollowCaret : public EditTest {
  protected:
    /// The window's inside gets this size, with the first text at its corner.
    void startInWindowOf(float width, float height) {
        startSmall();
        form.Width = width + form.FrameWidth;
        form.Height = height + form.FrameHeight;
        form.P1.Move(-form.AText[1].Left, 10 * pixel - form.AText[1].Top);
        toolkit::test::settle();
        ASSERT_FLOAT_EQ(form.ScaleWidth(), width);
    }
    /// At its beginning, which the window shows.
    void clickField() {
        const toolkit::Label& field = form.AText[1];
        toolkit::test::click(field.Left + 10 * pixel, field.Top + field.Height / 2);
    }
    [[nodiscard]] float fieldWidth() const { return form.AText[1].Width; }
    [[nodiscard]] bool seesCaret() {
        return toolkit::test::insideArea().holds(toolkit::test::caretArea(openBox()));
    }
    void typeInSight() {
        int moves = 0;
        for (int letter = 0; letter < 30; ++letter) {
            const float before = form.P1.Left;
            toolkit::test::typeText("e");
            EXPECT_TRUE(seesCaret()) << letter;
            if (form.P1.Left != before) ++moves;
        }
        EXPECT_GE(moves, 1);
        EXPECT_LE(moves, 6) << "at almost each letter";
        for (const int key : {toolkit::key::home, toolkit::key::end}) {
            toolkit::test::typeKey(key);
            EXPECT_TRUE(seesCaret());
        }
    }
    [[nodiscard]] float leftOfField() const { return form.P1.Left + form.AText[1].Left; }
    [[nodiscard]] float rightOfField() const { return leftOfField() + fieldWidth(); }
};

TEST_F(FollowCaret, OfATextWiderThanTheWindowEachLetterIsSeenAsItIsTyped) {
    startInWindowOf(120 * pixel, 100 * pixel);
    clickField();
    typeInSight();
}

TEST_F(FollowCaret, EachLetterOfATextToTheLeftIsSeenToo) {
    startInWindowOf(120 * pixel, 100 * pixel);
    clickField();
    toolkit::test::typeText("e");
    toolkit::test::typeKey('L', toolkit::shift::ctrl);
    clickText(1);
    ASSERT_TRUE(form.LText.Visible);
    typeInSight();
}

TEST_F(FollowCaret, TheWalkShowsTheCaretOfAShortTextInAWideField) {
    startInWindowOf(60 * pixel, 100 * pixel);
    clickField();
    toolkit::test::typeKey(toolkit::key::tab);
    ASSERT_EQ(form.TIndex, 2);
    EXPECT_TRUE(seesCaret());
}

TEST_F(FollowCaret, AFieldThatHasRoomComesBackWhole) {
    startInWindowOf(400 * pixel, 100 * pixel);
    clickField();
    for (const bool isBeyond : {true, false}) {
        form.P1.Move(isBeyond ? 500 * pixel : -500 * pixel, isBeyond ? 300 * pixel : -800 * pixel);
        toolkit::test::settle();
        EXPECT_FALSE(seesCaret());
        toolkit::test::typeText("e");
        EXPECT_TRUE(seesCaret());
        EXPECT_GE(leftOfField(), 0);
        EXPECT_LE(rightOfField(), form.ScaleWidth());
    }
    EXPECT_EQ(form.Hint, "");
}

TEST_F(FollowCaret, NothingMovesWhileItIsSeen) {
    startInWindowOf(400 * pixel, 100 * pixel);
    form.P1.Left -= fieldWidth() / 4;
    const float left = form.P1.Left;
    const float top = form.P1.Top;
    clickText(1);
    toolkit::test::typeText("Stayman");
    EXPECT_EQ(form.P1.Left, left);
    EXPECT_EQ(form.P1.Top, top);
}

TEST_F(FollowCaret, AKeyThatMovesTheCardIsNotTakenBack) {
    startInWindowOf(400 * pixel, 100 * pixel);
    clickField();
    toolkit::test::typeText("1");
    toolkit::test::typeKey(toolkit::key::pageDown);
    const float top = form.P1.Top;
    EXPECT_FALSE(seesCaret());
    toolkit::test::typeKey(toolkit::key::up);
    EXPECT_NE(form.P1.Top, top);
    EXPECT_FALSE(seesCaret());
    toolkit::test::typeText("2");
    EXPECT_TRUE(seesCaret());
}

} // namespace
} // namespace zev::test

#include "design/drag_field.h"

#include "design/design_test.h"
#include "events/mark_clicks.h"
#include "form/field_values.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
using toolkit::button::left;
using toolkit::button::middle;

struct Place {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    friend bool operator==(const Place&, const Place&) = default;
};

void PrintTo(const Place& place, std::ostream* out) {
    *out << place.left << ", " << place.top << ", " << place.width << ", " << place.height;
}

class DragField : public DesignTest {
  protected:
    static Place placeOf(const toolkit::Label& label) {
        return {label.Left, label.Top, label.Width, label.Height};
    }
    static Place moved(Place place, float across, float down) {
        place.left += across * pixel;
        place.top += down * pixel;
        return place;
    }
    void press(const toolkit::Label& label) {
        const CardPoint at = middleOf(label);
        moveMouse(at.x, at.y);
        pressMouse(at.x, at.y);
    }
    /// Lets go where the pointer was pressed.
    void release(const toolkit::Label& label) {
        const CardPoint at = middleOf(label);
        releaseMouse(at.x, at.y);
    }
};

TEST_F(DragField, AMarkGoesWhereThePointerGoes) {
    design();
    const Place before = placeOf(form.AMark[2]);
    dragLabel(form.AMark[2], 37, -11);
    EXPECT_EQ(placeOf(form.AMark[2]), moved(before, 37, -11));
    EXPECT_TRUE(form.DesignDirty);
    EXPECT_EQ(visibleMarks(), 4);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(DragField, AJobPrintsADragThatIsntSavedAndLeavesItSo) {
    design();
    const std::string layout = dataFileContent("Definitions.Ini");
    dragLabel(form.AMark[2], 37, -11);
    const Place dragged = placeOf(form.AMark[2]);
    Place printed;
    answerFile({});
    whileAsking = [&] { printed = placeOf(form.AMark[2]); };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(printed.left, 2 * dragged.left);
    EXPECT_EQ(printed.top, 2 * dragged.top);
    EXPECT_EQ(placeOf(form.AMark[2]), dragged);
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(visibleMarks(), 4);
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
    choose("Design>Save Design");
    EXPECT_NE(dataFileContent("Definitions.Ini"), layout);
}

TEST_F(DragField, TheGrabPointStaysUnderThePointerStepByStep) {
    design();
    form.AMark[2].Left += 4; // between two pixels
    const Place before = placeOf(form.AMark[2]);
    const CardPoint at = middleOf(form.AMark[2]);
    press(form.AMark[2]);
    for (int step = 1; step <= 20; ++step) {
        const auto distance = static_cast<float>(step);
        moveMouse(at.x + distance * pixel, at.y + 2 * distance * pixel, left);
        EXPECT_EQ(placeOf(form.AMark[2]), moved(before, distance, 2 * distance)) << step;
        EXPECT_EQ(form.DragLeft, form.AMark[2].Left);
        EXPECT_EQ(form.DragTop, form.AMark[2].Top);
    }
    moveMouse(at.x, at.y, left);
    EXPECT_EQ(placeOf(form.AMark[2]), before);
    releaseMouse(at.x, at.y);
}

TEST_F(DragField, OnePixelIsADragAndNoneIsNoChange) {
    design();
    const Place before = placeOf(form.AMark[2]);
    press(form.AMark[2]);
    const CardPoint at = middleOf(form.AMark[2]);
    moveMouse(at.x, at.y, left);
    EXPECT_FALSE(form.DesignDirty);
    moveMouse(at.x + pixel, at.y, left);
    EXPECT_EQ(placeOf(form.AMark[2]), moved(before, 1, 0));
    EXPECT_TRUE(form.DesignDirty);
    releaseMouse(at.x + pixel, at.y);
}

TEST_F(DragField, AMarkCanBeDraggedOffTheCard) {
    design();
    dragLabel(form.AMark[1], -500, 0);
    EXPECT_LT(form.AMark[1].Left + form.AMark[1].Width, 0);
    EXPECT_EQ(form.AMark.UBound(), 4);
}

TEST_F(DragField, TheReadOutFollows) {
    design();
    press(form.AMark[2]);
    EXPECT_EQ(form.MCoord.Caption, readOut(2, form.AMark[2]));
    const CardPoint at = middleOf(form.AMark[2]);
    moveMouse(at.x + 5 * pixel, at.y, left);
    EXPECT_EQ(form.MCoord.Caption, readOut(2, form.AMark[2]));
    EXPECT_TRUE(form.MCoord.Caption.starts_with("2: (3075,")) << form.MCoord.Caption;
    releaseMouse(at.x + 5 * pixel, at.y);
    EXPECT_EQ(form.MCoord.Caption, readOut(2, form.AMark[2]));
}

TEST_F(DragField, APressBringsTheFieldToTheFront) {
    design();
    press(form.AText[1]);
    release(form.AText[1]);
    EXPECT_GT(form.AText[1].Stack, form.AMark[4].Stack);
    press(form.AMark[1]);
    release(form.AMark[1]);
    EXPECT_GT(form.AMark[1].Stack, form.AText[1].Stack);
}

TEST_F(DragField, APressLeavesNothingForOthers) {
    design();
    toolkit::MouseArguments mouse{.Button = left, .Shift = 1, .X = 30, .Y = 45};
    pressField(form, {FieldKind::Text, 1}, mouse);
    EXPECT_EQ(mouse.Button, 0);
    EXPECT_EQ(mouse.Shift, 0);
    EXPECT_EQ(form.LastButton, 0);
    EXPECT_EQ(form.LastX, 30);
    EXPECT_EQ(form.LastY, 45);
    EXPECT_EQ(form.TextDragX, 30);
    EXPECT_EQ(form.TextDragY, 45);
}

TEST_F(DragField, LettingAMarkGoForgetsTheDrag) {
    design();
    dragLabel(form.AMark[2], 5, 5);
    EXPECT_EQ(form.LastX, 0);
    EXPECT_EQ(form.LastY, 0);
    EXPECT_EQ(form.DragLeft, 0);
    EXPECT_EQ(form.DragTop, 0);
    const Place after = placeOf(form.AMark[2]);
    moveMouse(after.left + 30, after.top + 30);
    EXPECT_EQ(placeOf(form.AMark[2]), after);
}

TEST_F(DragField, APointerOverAFieldIsAnArrow) {
    design();
    const CardPoint mark = middleOf(form.AMark[2]);
    moveMouse(mark.x, mark.y);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Arrow);
    dragLabel(form.AText[1], 0, 0);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
}

TEST_F(DragField, OnANormalCardNothingIsDragged) {
    start();
    clickMark(2);
    const Place before = placeOf(form.AMark[2]);
    const Place text = placeOf(form.AText[1]);
    dragLabel(form.AMark[2], 20, 20);
    dragLabel(form.AText[1], 20, 20);
    EXPECT_EQ(placeOf(form.AMark[2]), before);
    EXPECT_EQ(placeOf(form.AText[1]), text);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
    EXPECT_FALSE(form.DesignDirty);
}

TEST_F(DragField, ATextGoesWhereThePointerGoes) {
    design();
    const Place before = placeOf(form.AText[2]);
    dragLabel(form.AText[2], -20, 33);
    EXPECT_EQ(placeOf(form.AText[2]), moved(before, -20, 33));
    EXPECT_TRUE(form.DesignDirty);
    EXPECT_FALSE(isEditing());
}

TEST_F(DragField, LettingATextGoMakesItTheFieldWorkedOn) {
    design();
    press(form.AText[2]);
    EXPECT_FALSE(form.DesignDirty);
    release(form.AText[2]);
    EXPECT_EQ(form.TIndex, 2);
    EXPECT_TRUE(form.DesignDirty);
    EXPECT_EQ(form.LastX, 0);
    EXPECT_EQ(form.DragLeft, 0);
    EXPECT_EQ(form.TextDragX, 0);
    EXPECT_EQ(form.TextDragY, 0);
    EXPECT_EQ(form.ActiveControl, &form.P1);
}

TEST_F(DragField, WithControlATextIsNarrowedAndNotMoved) {
    design();
    Place expected = placeOf(form.AText[1]);
    expected.width -= 3 * pixel;
    dragLabel(form.AText[1], -3, 4, left, toolkit::shift::ctrl);
    EXPECT_EQ(placeOf(form.AText[1]), expected);
    EXPECT_TRUE(form.DesignDirty);
}

TEST_F(DragField, WithControlEachStepCountsOnce) {
    design();
    Place expected = placeOf(form.AText[1]);
    const CardPoint at = middleOf(form.AText[1]);
    press(form.AText[1]);
    for (const float step : {4.0F, 9.0F, 2.0F})
        moveMouse(at.x + step * pixel, at.y, left, toolkit::shift::ctrl);
    expected.width += 2 * pixel;
    EXPECT_EQ(placeOf(form.AText[1]), expected);
    EXPECT_EQ(form.MCoord.Caption, readOut(1, form.AText[1]));
    releaseMouse(at.x + 2 * pixel, at.y);
}

TEST_F(DragField, ATextKeepsAWidthThatCanBeTakenHoldOf) {
    design();
    const float width = form.AText[4].Width;
    const CardPoint at = middleOf(form.AText[4]);
    press(form.AText[4]);
    moveMouse(at.x - 100 * pixel, at.y, left, toolkit::shift::ctrl);
    EXPECT_EQ(form.AText[4].Width, width);
    moveMouse(at.x - 10 * pixel, at.y, left, toolkit::shift::ctrl);
    EXPECT_EQ(form.AText[4].Width, width - 10 * pixel);
    releaseMouse(at.x - 10 * pixel, at.y);
}

TEST_F(DragField, WithControlAMarkIsMovedAllTheSame) {
    design();
    const Place before = placeOf(form.AMark[1]);
    dragLabel(form.AMark[1], 6, 0, left, toolkit::shift::ctrl);
    EXPECT_EQ(placeOf(form.AMark[1]), moved(before, 6, 0));
}

TEST_F(DragField, TheMiddleButtonDragsNothingAndGivesUpTheUndo) {
    design();
    dragLabel(form.AMark[1], 5, 0);
    ASSERT_TRUE(form.UndoValid);
    const Place before = placeOf(form.AMark[2]);
    dragLabel(form.AMark[2], 9, 9, middle);
    EXPECT_EQ(placeOf(form.AMark[2]), before);
    EXPECT_FALSE(form.UndoValid);
    EXPECT_EQ(form.UndoIndex, 1);
}

TEST_F(DragField, APressIsRememberedForUndo) {
    design();
    const Place before = placeOf(form.AText[3]);
    press(form.AText[3]);
    EXPECT_TRUE(form.UndoValid);
    EXPECT_TRUE(form.UndoIsText);
    EXPECT_EQ(form.UndoIndex, 3);
    EXPECT_EQ((Place{form.UndoLeft, form.UndoTop, form.UndoWidth, form.UndoHeight}), before);
    release(form.AText[3]);
    press(form.AMark[3]);
    EXPECT_FALSE(form.UndoIsText);
    release(form.AMark[3]);
}

/// A recording press with a little jitter must not throw the field to the card's corner.
TEST_F(DragField, WhileRecordingNothingIsDragged) {
    design();
    answer(toolkit::Answer::No);
    choose("Design>Set Tab sequence");
    const Place mark = placeOf(form.AMark[2]);
    const Place text = placeOf(form.AText[2]);
    dragLabel(form.AMark[2], 3, 3);
    dragLabel(form.AText[2], 3, 3);
    EXPECT_EQ(placeOf(form.AMark[2]), mark);
    EXPECT_EQ(placeOf(form.AText[2]), text);
    EXPECT_EQ(form.TabRecordPrev, 2);
}

TEST_F(DragField, TheSecondPressOfADoubleClickTakesHoldToo) {
    design();
    const Place before = placeOf(form.AMark[2]);
    const CardPoint at = middleOf(form.AMark[2]);
    doubleClick(at.x, at.y);
    EXPECT_EQ(placeOf(form.AMark[2]), before);
    EXPECT_EQ(form.UndoIndex, 2);
}

TEST_F(DragField, AClickOnAMarkShowsItsPlaceAndClearsNothing) {
    design();
    clickMark(3);
    EXPECT_TRUE(form.AMark[3].Visible);
    EXPECT_EQ(form.MCoord.Caption, readOut(3, form.AMark[3]));
}

TEST_F(DragField, WithTheHelpOpenAPressOnlyDismissesIt) {
    design();
    typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    form.THelp.Move(0, 800 * pixel);
    const Place before = placeOf(form.AMark[1]);
    dragLabel(form.AMark[1], 2, 2);
    EXPECT_EQ(placeOf(form.AMark[1]), before);
    EXPECT_EQ(form.UndoIndex, 0);
}

/// A symbol lies over a field and stands for it.
TEST_F(DragField, ASymbolPassesOnWhatTheMouseDoes) {
    start();
    enter(1, "^s");
    ASSERT_EQ(form.SText.UBound(), 1);
    form.MShowShapes.Checked = true;
    toolkit::MouseArguments mouse{.Button = left, .Shift = 0, .X = 15, .Y = 15};
    SText_MouseDown(form, 1, mouse);
    EXPECT_EQ(form.UndoIndex, 1);
    const float before = form.AText[1].Left;
    toolkit::MouseArguments move{.Button = left, .Shift = 0, .X = 45, .Y = 15};
    SText_MouseMove(form, 1, move);
    EXPECT_EQ(form.AText[1].Left, before + 30);
    form.TIndex = 0;
    SText_MouseUp(form, 1, mouse);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_EQ(form.TextDragX, 0);
    form.MShowShapes.Checked = false;
}

TEST_F(DragField, FailuresAreTraced) {
    design();
    toolkit::MouseArguments mouse{.Button = left, .Shift = 0, .X = 15, .Y = 15};
    const std::string missing = "340, Control array element '9' doesn't exist";
    for (const char* name : {"AMark_MouseMove", "AText_MouseMove"})
        announceError("Error in " + std::string(name) + ": #");
    form.FieldHeld = true;
    AMark_MouseMove(form, 9, mouse);
    EXPECT_TRUE(traced("Error in AMark_MouseMove: #" + missing));
    AText_MouseMove(form, 9, mouse);
    EXPECT_TRUE(traced("Error in AText_MouseMove: #" + missing));
}

} // namespace
} // namespace zev::test

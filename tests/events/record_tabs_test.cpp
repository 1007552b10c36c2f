#include "events/record_tabs.h"

#include "events/edit_field.h"
#include "events/mark_clicks.h"
#include "layout/layout_file.h"
#include "text/edit_test.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/cursor.h"
#include "toolkit/window/dialog_answers.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
using toolkit::button::left;
using toolkit::button::right;

/// The small card with every mark shown and the menu item enabled, as in design mode.
class RecordTabs : public EditTest {
  protected:
    void design() {
        startSmall();
        form.MShapes.Visible = true;
        form.MShowShapes.Checked = true;
        form.MSetTabs.Enabled = true;
        for (int i = 1; i <= form.AMark.UBound(); ++i) form.AMark[i].Visible = true;
    }
    void leaveDesign() {
        form.MShowShapes.Checked = form.MSetTabs.Checked = false;
        for (int i = 1; i <= form.AMark.UBound(); ++i) form.AMark[i].Visible = false;
    }
    /// Switches recording by the menu; where a question comes, this is the answer.
    void choose(std::optional<toolkit::Answer> given = {}) {
        if (given) answer(*given);
        ASSERT_TRUE(chooseMenu("Design>Set Tab sequence"));
    }
    void recordFromNothing() {
        design();
        choose(toolkit::Answer::No);
    }
    [[nodiscard]] int next(int item) const { return form.TabTable[item]; }
};

TEST_F(RecordTabs, QuestionComesWhereASequenceExists) {
    design();
    choose(toolkit::Answer::Yes);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, "ZEV - Modify tabbing sequence");
    EXPECT_EQ(boxes[0].text,
              "To modify the existing tab sequence, click 'Yes'.  To discard all existing tabs and "
              "define a new sequence, click 'No'.  To make no changes to the tab sequence, click "
              "'Cancel'.  To make the result permanent, you will also have to 'Save Design' when "
              "finished with tab definitions.");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNoCancel);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Information);
    EXPECT_TRUE(traced("MSetTabs_Click"));
}

TEST_F(RecordTabs, YesKeepsTheSequenceAndRecords) {
    design();
    choose(toolkit::Answer::Yes);
    EXPECT_TRUE(form.MSetTabs.Checked);
    EXPECT_EQ(next(1), 2);
    EXPECT_EQ(next(1002), 3);
}

TEST_F(RecordTabs, NoDiscardsTheSequenceAtOnceAndRecords) {
    recordFromNothing();
    EXPECT_TRUE(form.MSetTabs.Checked);
    EXPECT_EQ(form.TabTable.UBound(), 0);
    EXPECT_FALSE(form.DesignDirty);
    // The sequence comes back only when the card is built anew.
    leaveDesign();
    RebuildScreenImage(form);
    EXPECT_EQ(next(1), 2);
}

TEST_F(RecordTabs, CancelChangesNothing) {
    design();
    form.TabRecordPrev = 7;
    choose(toolkit::Answer::Cancel);
    EXPECT_FALSE(form.MSetTabs.Checked);
    EXPECT_EQ(form.TabRecordPrev, 7);
    EXPECT_EQ(next(1), 2);
    clickText(1);
    clickText(3);
    EXPECT_EQ(next(1), 2);
}

TEST_F(RecordTabs, WithoutASequenceNothingIsAsked) {
    recordFromNothing();
    choose();
    EXPECT_FALSE(form.MSetTabs.Checked);
    choose();
    EXPECT_TRUE(form.MSetTabs.Checked);
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(RecordTabs, ChosenAgainItIsOverAndTheStartIsForgotten) {
    recordFromNothing();
    clickText(1);
    ASSERT_EQ(form.TabRecordPrev, 1);
    choose();
    EXPECT_EQ(form.TabRecordPrev, 0);
    clickText(2);
    EXPECT_EQ(form.TabRecordPrev, 0);
    EXPECT_EQ(form.TabTable.UBound(), 0);
}

TEST_F(RecordTabs, FirstPressOnlyChoosesTheStart) {
    recordFromNothing();
    clickMark(2);
    EXPECT_EQ(form.TabRecordPrev, 1002);
    EXPECT_EQ(form.TabTable.UBound(), 0);
    EXPECT_FALSE(form.DesignDirty);
    EXPECT_TRUE(traced("FlashFocus 1002"));
}

TEST_F(RecordTabs, EachFurtherPressLinksThePressedItems) {
    recordFromNothing();
    clickText(1);
    clickMark(1);
    EXPECT_TRUE(form.DesignDirty);
    EXPECT_EQ(form.TabTable.UBound(), 1);
    clickMark(2);
    clickText(3);
    EXPECT_EQ(next(1), 1001);
    EXPECT_EQ(next(1001), 1002);
    EXPECT_EQ(next(1002), 3);
    // Recording never makes the table larger for its last item.
    EXPECT_EQ(form.TabTable.UBound(), 1002);
    EXPECT_EQ(next(3), 0);
    EXPECT_EQ(form.TabRecordPrev, 3);
}

TEST_F(RecordTabs, EachLinkIsAnUnsavedChangeOfTheDesign) {
    recordFromNothing();
    clickMark(1);
    EXPECT_FALSE(form.DesignDirty);
    clickMark(2);
    EXPECT_TRUE(form.DesignDirty);
    form.DesignDirty = false;
    clickMark(3);
    EXPECT_TRUE(form.DesignDirty);
}

TEST_F(RecordTabs, LaterRecordingSplicesIntoTheChain) {
    recordFromNothing();
    clickText(1);
    clickMark(1);
    clickText(3);
    clickText(4);
    choose();
    choose(toolkit::Answer::Yes);
    clickMark(1);
    clickMark(2);
    EXPECT_EQ(next(1), 1001);
    EXPECT_EQ(next(1001), 1002);
    EXPECT_EQ(form.TabTable.UBound(), 1001);
    EXPECT_EQ(next(3), 4);
    EXPECT_EQ(next(4), 0);
}

TEST_F(RecordTabs, RightPressRecordsTooAndOpensNothing) {
    recordFromNothing();
    clickText(1, right);
    clickMark(3, right);
    EXPECT_EQ(next(1), 1003);
    EXPECT_EQ(popups, 0);
    EXPECT_FALSE(isEditing());
    clickText(2);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(next(1003), 2);
    EXPECT_EQ(form.ClickIndex, 0);
}

TEST_F(RecordTabs, MiddlePressDoesNothing) {
    recordFromNothing();
    clickMark(1, toolkit::button::middle);
    clickText(1, toolkit::button::middle);
    EXPECT_EQ(form.TabRecordPrev, 0);
}

TEST_F(RecordTabs, SecondPressOfADoubleClickIsAStepOfItsOwn) {
    recordFromNothing();
    const auto target = targetOf(1);
    doubleClick(target.x, target.y);
    EXPECT_EQ(next(1001), 1001);
}

TEST_F(RecordTabs, CirclesAreTaken) {
    recordFromNothing();
    form.AMark[3].Caption = mark_symbol::circle;
    clickMark(3);
    clickMark(1);
    EXPECT_EQ(next(1003), 1001);
}

TEST_F(RecordTabs, PressIsUsedUpSoThatNoDragFollows) {
    recordFromNothing();
    toolkit::MouseArguments onMark{left, toolkit::shift::shift, 5, 5};
    AMark_MouseDown(form, 1, onMark);
    EXPECT_EQ(onMark.Button, 0);
    EXPECT_EQ(onMark.Shift, 0);
    EXPECT_EQ(form.LastButton, 0);
    form.LastButton = right;
    toolkit::MouseArguments onText{right, toolkit::shift::ctrl, 5, 5};
    AText_MouseDown(form, 1, onText);
    EXPECT_EQ(onText.Button, 0);
    EXPECT_EQ(onText.Shift, 0);
    EXPECT_EQ(form.LastButton, 0);
}

TEST_F(RecordTabs, JitterOfThePressMovesNeitherMarkNorCard) {
    recordFromNothing();
    const float place = form.AMark[1].Left;
    const auto target = targetOf(1);
    moveMouse(target.x, target.y);
    pressMouse(target.x, target.y);
    moveMouse(target.x + pixel, target.y, left);
    moveMouse(target.x + 2 * pixel, target.y, left);
    releaseMouse(target.x + 2 * pixel, target.y);
    EXPECT_EQ(form.AMark[1].Left, place);
    EXPECT_EQ(form.P1.Left, 0);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(RecordTabs, TextFlashesAndTakesTheCursorWhileAMarkBlinksWhereItIs) {
    recordFromNothing();
    std::vector<toolkit::Color> shades;
    duringWait = [&](int) { shades.push_back(form.AText[1].BackColor); };
    const auto middle = middleOf(form.AText[1]);
    pressMouse(middle.x, middle.y);
    EXPECT_EQ(shades, std::vector{toolkit::rgb(255, 255, 160)});
    const auto atText = toolkit::cursorPosition();
    EXPECT_EQ(atText.x, toolkit::pixelsFromTwips(form.FrameWidth + form.Left + form.P1.Left +
                                                 form.AText[1].Left));
    releaseMouse(middle.x, middle.y);
    std::vector<bool> shown;
    duringWait = [&](int) { shown.push_back(form.AMark[1].Visible); };
    const auto target = targetOf(1);
    moveMouse(target.x, target.y);
    const auto before = toolkit::cursorPosition();
    pressMouse(target.x, target.y);
    EXPECT_EQ(shown, (std::vector<bool>{false, true}));
    EXPECT_EQ(toolkit::cursorPosition().x, before.x);
    releaseMouse(target.x, target.y);
}

TEST_F(RecordTabs, OutsideDesignModePressesAreAsEver) {
    startSmall();
    form.MSetTabs.Checked = true;
    clickMark(1);
    clickText(1);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(isEditing());
    EXPECT_EQ(form.TabRecordPrev, 0);
}

TEST_F(RecordTabs, RecordedWalkIsTheOneThatTabTakes) {
    recordFromNothing();
    clickMark(3);
    clickMark(1);
    clickText(4);
    leaveDesign();
    clickMark(3);
    typeKey(toolkit::key::tab);
    EXPECT_EQ(form.TabCode, 1001);
    typeKey(toolkit::key::tab);
    EXPECT_EQ(form.TIndex, 4);
    EXPECT_TRUE(isEditing());
}

TEST_F(RecordTabs, TabFromTheHighestMarkAtTheEndOfARecordingIsBeyondTheTable) {
    recordFromNothing();
    clickMark(1);
    clickMark(3);
    leaveDesign();
    announceError("Error in P1_KeyDown");
    clickMark(3);
    typeKey(toolkit::key::tab);
    EXPECT_TRUE(traced("Error in P1_KeyDown: #9, Subscript out of range"));
}

TEST_F(RecordTabs, SavedDesignHoldsTheRecordedLinks) {
    recordFromNothing();
    clickText(2);
    clickMark(1);
    clickText(4);
    leaveDesign();
    form.MSaveShapes.Enabled = true;
    ASSERT_TRUE(chooseMenu("Design>Save Design"));
    const std::string saved = dataFileContent("Definitions.Ini");
    EXPECT_TRUE(saved.ends_with("\r\n2,1001\r\n1001,4\r\n"));
    EXPECT_FALSE(form.DesignDirty);
}

TEST_F(RecordTabs, DiscardedSequenceLeavesTheSavedDesignWithoutATabPart) {
    recordFromNothing();
    leaveDesign();
    form.MSaveShapes.Enabled = true;
    ASSERT_TRUE(chooseMenu("Design>Save Design"));
    EXPECT_EQ(dataFileContent("Definitions.Ini").find("' Largest tab"), std::string::npos);
}

TEST_F(RecordTabs, UnsavedLinksAreLostWhenTheCardIsBuiltAnew) {
    design();
    choose(toolkit::Answer::Yes);
    clickText(1);
    clickText(4);
    leaveDesign();
    ASSERT_EQ(next(1), 4);
    RebuildScreenImage(form);
    EXPECT_EQ(next(1), 2);
}

TEST_F(RecordTabs, FailuresAreTraced) {
    design();
    announceError("Error in");
    toolkit::answerDialogsWith({.message = [](const toolkit::MessageBox&) -> toolkit::Answer {
        throw toolkit::RunTimeError(toolkit::Failure::OutOfMemory);
    }});
    ASSERT_TRUE(chooseMenu("Design>Set Tab sequence"));
    EXPECT_TRUE(traced("Error in MSetTabs_Click: #7, Out of memory"));
    form.MSetTabs.Checked = true;
    form.TabRecordPrev = -1;
    clickMark(1);
    clickText(1);
    EXPECT_TRUE(traced("Error in AMark_MouseDown: #9, Subscript out of range"));
    EXPECT_TRUE(traced("Error in AText_MouseDown: #9, Subscript out of range"));
}

} // namespace
} // namespace zev::test

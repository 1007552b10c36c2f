#include "design/design_mode.h"

#include <algorithm>

#include "card/save.h"
#include "design/design_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
using toolkit::Answer;

class DesignMode : public DesignTest {
  protected:
    /// The commands that need a card, one letter each: a capital where it can be chosen.
    [[nodiscard]] std::string cardCommands() const {
        std::string letters;
        const std::pair<const toolkit::MenuItem*, const char*> all[] = {
            {&form.MNew, "nN"},          {&form.MOpen, "oO"},      {&form.MSave, "sS"},
            {&form.MSaveAs, "aA"},       {&form.MPartnerID, "pP"}, {&form.MMyID, "mM"},
            {&form.MPrintPartner, "rR"}, {&form.MPrintBoth, "bB"}};
        for (const auto& [item, letter] : all) letters += letter[item->Enabled ? 1 : 0];
        return letters;
    }
    [[nodiscard]] std::string checkedSchemes() const {
        std::string checks;
        for (const auto& scheme : form.mcolorscheme) checks += scheme.Checked ? 'X' : '.';
        return checks;
    }
    [[nodiscard]] static bool equal(const toolkit::Bitmap& left, const toolkit::Bitmap& right) {
        const auto size =
            static_cast<std::size_t>(left.width()) * static_cast<std::size_t>(left.height());
        return left.width() == right.width() && left.height() == right.height() &&
               std::equal(left.row(0), left.row(0) + size, right.row(0));
    }
    /// Chooses a colour for all fields.
    void takeCustomColor() {
        form.ColorScheme = static_cast<std::int32_t>(toolkit::rgb(1, 2, 3));
        form.mcolorscheme[0].Checked = false;
        form.mcolorscheme[1].Checked = true;
        form.AMark[2].ForeColor = toolkit::rgb(1, 2, 3);
    }
};

TEST_F(DesignMode, TheMenuIsHiddenUntilItIsAskedFor) {
    start();
    EXPECT_FALSE(form.MShapes.Visible);
    EXPECT_FALSE(form.MShowDesignMenu.Checked);
    EXPECT_FALSE(form.MCoord.Visible);
    typeKey('A', toolkit::shift::ctrl);
    EXPECT_FALSE(form.MShowShapes.Checked);
}

TEST_F(DesignMode, ShowingTheMenuEntersAtOnceAndHidingItLeaves) {
    start();
    choose("Options>Show the Design Menu         Shift Ctrl  D");
    EXPECT_TRUE(form.MShowDesignMenu.Checked);
    EXPECT_TRUE(form.MShapes.Visible);
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_TRUE(traced("MShowDesignMenu_Click"));
    EXPECT_TRUE(traced("MShowShapes_Click"));
    choose("Options>Show the Design Menu         Shift Ctrl  D");
    EXPECT_FALSE(form.MShowDesignMenu.Checked);
    EXPECT_FALSE(form.MShapes.Visible);
    EXPECT_FALSE(form.MShowShapes.Checked);
}

TEST_F(DesignMode, BothKeysOfTheCardShowTheMenu) {
    start();
    pressDesignKey();
    EXPECT_TRUE(form.MShowShapes.Checked);
    typeKey('S', toolkit::shift::shift | toolkit::shift::ctrl);
    EXPECT_FALSE(form.MShowShapes.Checked);
    EXPECT_FALSE(form.MShapes.Visible);
    EXPECT_FALSE(traced("MSave_Click"));
}

TEST_F(DesignMode, TheKeysDoNothingInATextArea) {
    start();
    clickText(1);
    pressDesignKey();
    EXPECT_FALSE(form.MShapes.Visible);
    EXPECT_TRUE(isEditing());
}

TEST_F(DesignMode, ControlASwitchesTheModeWhileTheMenuIsShown) {
    design();
    typeKey('A', toolkit::shift::ctrl);
    EXPECT_FALSE(form.MShowShapes.Checked);
    EXPECT_TRUE(form.MShapes.Visible);
    typeKey('A', toolkit::shift::ctrl);
    EXPECT_TRUE(form.MShowShapes.Checked);
}

TEST_F(DesignMode, InAnOpenTextControlASelectsAllOfIt) {
    design();
    typeKey('A', toolkit::shift::ctrl);
    clickText(1);
    typeText("abc");
    typeKey('A', toolkit::shift::ctrl);
    EXPECT_FALSE(form.MShowShapes.Checked);
    EXPECT_TRUE(boxes.empty());
    ASSERT_TRUE(isEditing());
    EXPECT_EQ(openBox().SelStart, 0);
    EXPECT_EQ(openBox().SelLength, 3);
    typeText("x");
    EXPECT_EQ(shownText(openBox()), "x");
}

TEST_F(DesignMode, AllMarksAreShownAndTextsTellTheirNumbers) {
    design();
    EXPECT_EQ(visibleMarks(), 4);
    std::string expected = "[ 3";
    for (int i = 0; i < 256; ++i) expected += " ]";
    EXPECT_EQ(form.AText[3].Caption, expected);
    EXPECT_EQ(form.AText[3].Tag, "");
}

/// A pattern far wider than its area begins at the area's edge, where the number is.
TEST_F(DesignMode, TheNumberOfATextIsSeen) {
    design();
    const auto shown = [this] {
        window->update();
        return grabCard();
    };
    const toolkit::Bitmap card = shown();
    for (int i = 1; i <= form.AText.UBound(); ++i) {
        std::string& caption = form.AText[i].Caption;
        caption[2] = caption[2] == '9' ? '8' : '9';
        EXPECT_FALSE(equal(card, shown())) << i;
        caption[2] = static_cast<char>('0' + i);
        EXPECT_TRUE(equal(card, shown())) << i;
    }
}

TEST_F(DesignMode, OnlyWhatWorksOnTheLayoutCanBeChosen) {
    start();
    EXPECT_EQ(cardCommands(), "NOSAPMRB");
    EXPECT_FALSE(form.MSetTabs.Enabled || form.MSaveShapes.Enabled || form.MAutoAdjust.Enabled);
    form.TabRecordPrev = 7;
    pressDesignKey();
    EXPECT_EQ(cardCommands(), "nosapmrb");
    EXPECT_TRUE(form.MSetTabs.Enabled && form.MSaveShapes.Enabled && form.MAutoAdjust.Enabled);
    EXPECT_EQ(form.TabRecordPrev, 0);
    typeKey('S', toolkit::shift::ctrl);
    EXPECT_FALSE(traced("MSave_Click"));
    answer(Answer::Cancel);
    choose("Design>Set Tab sequence");
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(DesignMode, LeavingGivesTheCardCommandsBack) {
    design();
    form.MSetTabs.Checked = true;
    form.TabRecordPrev = 7;
    pressDesignKey();
    EXPECT_EQ(cardCommands(), "NOSAPMRB");
    EXPECT_FALSE(form.MSetTabs.Enabled || form.MSaveShapes.Enabled || form.MAutoAdjust.Enabled);
    EXPECT_FALSE(form.MSetTabs.Checked);
    EXPECT_EQ(form.TabRecordPrev, 0);
}

TEST_F(DesignMode, LeavingShowsABlankCardThatWorksAsBefore) {
    design();
    form.MousePointer = toolkit::MousePointer::Arrow;
    pressDesignKey();
    EXPECT_EQ(visibleMarks(), 0);
    for (int i = 1; i <= form.AText.UBound(); ++i) EXPECT_EQ(form.AText[i].Caption, "") << i;
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
    EXPECT_FALSE(form.MCoord.Visible);
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
    clickMark(2);
    EXPECT_TRUE(form.AMark[2].Visible);
    enter(3, "hello");
    EXPECT_EQ(form.AText[3].Caption, "hello");
}

TEST_F(DesignMode, TheReadOutIsThereAndEmpty) {
    design();
    EXPECT_TRUE(form.MCoord.Visible);
    EXPECT_EQ(form.MCoord.Caption, "");
}

TEST_F(DesignMode, TheCardStaysWhereItLies) {
    start();
    form.P1.Move(-40 * pixel, -25 * pixel);
    pressDesignKey();
    EXPECT_EQ(form.P1.Left, -40 * pixel);
    EXPECT_EQ(form.P1.Top, -25 * pixel);
    form.P1.Move(-10 * pixel, 0);
    pressDesignKey();
    EXPECT_EQ(form.P1.Left, -10 * pixel);
    EXPECT_EQ(form.P1.Top, 0);
}

TEST_F(DesignMode, AnOpenTextIsCommittedAndAskedAbout) {
    start();
    form.MShapes.Visible = true;
    clickText(1);
    typeText("abc");
    answer(Answer::Cancel);
    choose("Design>Show all Marks");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_FALSE(isEditing());
    EXPECT_EQ(form.AText[1].Tag, "abc");
    EXPECT_TRUE(form.CardModified);
}

TEST_F(DesignMode, CancelLeavesTheModeOffAndTheCardIntact) {
    start();
    clickMark(2);
    enter(1, "abc");
    form.P1.Move(-40 * pixel, 0);
    answer(Answer::Cancel);
    pressDesignKey();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Do you want to save your card first?");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNoCancel);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Question);
    EXPECT_FALSE(form.MShowShapes.Checked);
    EXPECT_TRUE(form.MShapes.Visible);
    EXPECT_EQ(visibleMarks(), 1);
    EXPECT_EQ(form.AText[1].Caption, "abc");
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.P1.Left, -40 * pixel);
    EXPECT_EQ(cardCommands(), "NOSAPMRB");
    EXPECT_FALSE(form.MCoord.Visible);
}

TEST_F(DesignMode, YesSavesTheCardFirst) {
    start();
    clickMark(2);
    answer(Answer::Yes);
    answerName("Jones");
    pressDesignKey();
    EXPECT_TRUE(std::filesystem::exists(dataFile("Jones.zev")));
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_EQ(form.CardName, "");
}

TEST_F(DesignMode, ASaveThatIsCancelledLeavesTheCardIntact) {
    start();
    clickMark(2);
    answer(Answer::Yes);
    answerName("");
    pressDesignKey();
    EXPECT_FALSE(form.MShowShapes.Checked);
    EXPECT_EQ(visibleMarks(), 1);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(DesignMode, NoGivesTheCardUp) {
    start();
    clickMark(2);
    enter(1, "abc");
    form.DesignDirty = true;
    answer(Answer::No);
    pressDesignKey();
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_FALSE(form.DesignDirty);
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.AText[1].Tag, "");
    EXPECT_EQ(boxes.size(), 1U);
    pressDesignKey();
    EXPECT_EQ(visibleMarks(), 0);
}

TEST_F(DesignMode, AnUnchangedCardMakesWayUnasked) {
    start();
    clickMark(2);
    answerName("Smith");
    choose("File>Save");
    pressDesignKey();
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(form.CardName, "");
}

TEST_F(DesignMode, DesigningIsDoneInTheLayoutsOwnColours) {
    start();
    takeCustomColor();
    pressDesignKey();
    EXPECT_EQ(checkedSchemes(), "X.");
    EXPECT_EQ(form.AMark[2].ForeColor, form.ColorRed);
    pressDesignKey();
    EXPECT_EQ(checkedSchemes(), ".X");
    EXPECT_EQ(form.AMark[2].ForeColor, toolkit::rgb(1, 2, 3));
}

TEST_F(DesignMode, NoColourForTheCardCanBeChosen) {
    start();
    takeCustomColor();
    pressDesignKey();
    for (const char* item : {"ACBL Compliant", "Custom..."})
        EXPECT_FALSE(chooseMenu("Options>Color Management>" + std::string(item))) << item;
    EXPECT_FALSE(form.ColorPic.Visible);
    EXPECT_EQ(checkedSchemes(), "X.");
    choose("Design>Save Design");
    EXPECT_FALSE(chooseMenu("Options>Color Management>Custom..."));
    pressDesignKey();
    EXPECT_EQ(checkedSchemes(), ".X");
    choose("Options>Color Management>ACBL Compliant");
    EXPECT_EQ(checkedSchemes(), "X.");
    EXPECT_EQ(form.ColorScheme, 0);
}

TEST_F(DesignMode, NothingIsWalkedOrToggledByKey) {
    start();
    clickMark(2);
    ASSERT_TRUE(form.TabActive);
    answer(Answer::No);
    pressDesignKey();
    typeKey(toolkit::key::space, 0, " ");
    EXPECT_EQ(visibleMarks(), 4);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(DesignMode, ClosingTheProgramAsksNothing) {
    design();
    dragLabel(form.AMark[1], 5, 5);
    closeWindow();
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(traced("Form_Unload 0"));
}

TEST_F(DesignMode, WhereTheProgramIsBeingDevelopedTheMenuShowsWithoutTheMode) {
    start();
    // The state after the start of a developer's build.
    form.MShapes.Visible = form.MShowDesignMenu.Checked = true;
    pressDesignKey();
    EXPECT_FALSE(form.MShapes.Visible);
    EXPECT_FALSE(form.MShowShapes.Checked);
}

TEST_F(DesignMode, ADraggedTextTakesItsHighlightAlong) {
    design();
    dragLabel(form.AText[2], 20, 30);
    const float left = form.AText[2].Left;
    pressDesignKey();
    EXPECT_EQ(form.Highlight[2].Left, left + 2 * pixel);
}

/// The scheme that was remembered doesn't exist: whatever fails is traced, and the program goes on.
TEST_F(DesignMode, AFailureIsTraced) {
    design();
    announceError("Error in MShowShapes_Click: #");
    form.SchemeBeforeDesign = 9;
    pressDesignKey();
    EXPECT_TRUE(traced("Error in MShowShapes_Click: #51, Internal error"));
    EXPECT_FALSE(form.MShowShapes.Checked);
}

TEST_F(DesignMode, TheReadOutIsWholeAtTheSmallestZoom) {
    writeOptions("Zoom=1\r\n");
    design();
    ASSERT_EQ(form.ZoomLevel, 1);
    form.MCoord.Caption = "350: (-7185,-7418) - (7185,7418)  [7185*7418]";
    const toolkit::test::ShownReadOut shown = toolkit::test::shownReadOut();
    EXPECT_EQ(shown.text, form.MCoord.Caption);
    EXPECT_TRUE(shown.isWhole);
}

} // namespace
} // namespace zev::test

// What mouse and keys do on the chooser's panel.
#include "card/chooser_events.h"

#include "card/write_card.h"
#include "chooser_form_test.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using toolkit::test::typeKey;
using toolkit::test::typeText;

class ChooserEvents : public ChooserTest {
  protected:
    void SetUp() override {
        start();
        for (const char* name : {"Adams", "Brown", "Clark"}) writeCard(name, "");
    }
};

TEST_F(ChooserEvents, AClickedCardIsNamedAndNotYetTaken) {
    inChooser([&] {
        clickRow(1);
        EXPECT_EQ(toolkit::test::shownText(form.TSaveAs), "Brown");
        EXPECT_FALSE(toolkit::test::isGreyed(form.BOK));
        EXPECT_FALSE(form.ChooserTaken);
        clickOn(form.BOK);
    });
    EXPECT_EQ(chosen, "Brown");
}

TEST_F(ChooserEvents, AreTracedByTheirNames) {
    form.Trace.clear();
    inChooser([&] {
        clickOn(form.LSaveAs);
        typeText("x");
        clickRow(1);
        typeKey('Z');
        clickRow(2, toolkit::button::right);
        leave();
    });
    EXPECT_EQ(popups, 1);
    for (const char* line : {"TSaveAs_GotFocus", "LSaveAs_MouseDown 1", "TSaveAs_KeyPress",
                             "TsaveAs_Change", "FileList_MouseDown 1", "FileList_Click",
                             "FileList_KeyDown", "FileList_MouseDown 2", "FileList_KeyPress"})
        EXPECT_TRUE(traced(line)) << line;
}

TEST_F(ChooserEvents, ADoubleClickTakesTheCard) {
    inChooser([&] {
        const auto point = toolkit::test::pointOnRow(form.FileList, 2);
        toolkit::test::doubleClick(point.x, point.y);
    });
    EXPECT_EQ(chosen, "Clark");
    EXPECT_TRUE(traced("FileList_DblClick"));
    EXPECT_TRUE(traced("BOK_Click"));
}

TEST_F(ChooserEvents, ArrowsWalkTheListWithoutLeavingTheName) {
    inChooser([&] {
        typeKey(toolkit::key::down);
        EXPECT_EQ(form.FileList.ListIndex, 0);
        EXPECT_EQ(toolkit::test::shownText(form.TSaveAs), "Adams");
        typeKey(toolkit::key::down);
        typeKey(toolkit::key::down);
        typeKey(toolkit::key::down);
        EXPECT_EQ(form.TSaveAs.Text, "Clark");
        typeKey(toolkit::key::up);
        EXPECT_EQ(form.TSaveAs.Text, "Brown");
        typeKey(toolkit::key::pageUp);
        EXPECT_EQ(form.TSaveAs.Text, "Adams");
        typeKey(toolkit::key::pageDown);
        EXPECT_EQ(form.TSaveAs.Text, "Clark");
        EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.TSaveAs));
        typeKey(toolkit::key::enter);
    });
    EXPECT_EQ(chosen, "Clark");
}

TEST_F(ChooserEvents, TheFirstArrowUpBeginsAtTheEnd) {
    inChooser([&] {
        typeKey(toolkit::key::up);
        EXPECT_EQ(form.TSaveAs.Text, "Clark");
        leave();
    });
}

TEST_F(ChooserEvents, TypingReplacesTheNameAndFiltersNothing) {
    inChooser([&] {
        typeKey(toolkit::key::down);
        typeText("Br");
        EXPECT_EQ(form.TSaveAs.Text, "Br");
        EXPECT_EQ(form.FileList.List.size(), 3U);
        leave();
    });
}

TEST_F(ChooserEvents, TheTabKeyWalksInACircleAndPassesADisabledOk) {
    inChooser([&] {
        const auto expectFocus = [&](const toolkit::Control& control) {
            EXPECT_TRUE(toolkit::test::hasPlatformFocus(control));
        };
        typeKey(toolkit::key::tab);
        expectFocus(form.FileList);
        typeKey(toolkit::key::tab);
        expectFocus(form.BCancel);
        typeKey(toolkit::key::tab);
        expectFocus(form.TSaveAs);
        typeText("x");
        typeKey(toolkit::key::tab, toolkit::shift::shift);
        expectFocus(form.BCancel);
        typeKey(toolkit::key::tab, toolkit::shift::shift);
        expectFocus(form.BOK);
        typeKey(toolkit::key::space);
    });
    EXPECT_EQ(chosen, "x");
}

TEST_F(ChooserEvents, EnterOnTheListTakesTheSelectedCard) {
    inChooser([&] {
        typeKey(toolkit::key::tab);
        EXPECT_EQ(form.FileList.ListIndex, -1);
        typeKey(toolkit::key::down);
        typeKey(toolkit::key::down);
        EXPECT_EQ(form.TSaveAs.Text, "Brown");
        typeKey(toolkit::key::enter);
    });
    EXPECT_EQ(chosen, "Brown");
}

TEST_F(ChooserEvents, EscapeLeavesFromEveryControl) {
    for (int tabs = 0; tabs < 3; ++tabs) {
        inChooser([&] {
            for (int i = 0; i < tabs; ++i) typeKey(toolkit::key::tab);
            leave();
        });
        EXPECT_EQ(chosen, "");
        EXPECT_TRUE(form.ChooserCancelled) << tabs;
    }
}

TEST_F(ChooserEvents, EnterOnCancelCancels) {
    inChooser([&] {
        typeText("x");
        typeKey(toolkit::key::tab, toolkit::shift::shift);
        typeKey(toolkit::key::enter);
    });
    EXPECT_TRUE(form.ChooserCancelled);
}

TEST_F(ChooserEvents, AKeyThatIsStillHeldTakesNothing) {
    form.TSaveAs.Text = "Adams";
    inChooser([&] {
        toolkit::test::repeatKey(toolkit::key::enter);
        EXPECT_FALSE(form.ChooserTaken);
        leave();
    });
}

TEST_F(ChooserEvents, APressOnThePromptGoesToTheName) {
    inChooser([&] {
        typeKey(toolkit::key::tab);
        clickOn(form.LSaveAs);
        EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.TSaveAs));
        leave();
    });
}

TEST_F(ChooserEvents, ARightPressSelectsTheCardBelowAndOpensItsMenu) {
    writeCard("Smith & Co", "");
    inChooser([&] {
        std::vector<std::string> captions;
        answerPopup([&](std::span<const toolkit::PopupRow> rows) {
            for (const auto& row : rows) captions.push_back(row.item->Caption);
        });
        clickRow(3, toolkit::button::right);
        EXPECT_EQ(captions, (std::vector<std::string>{"&Open Smith && Co", "&Delete Smith && Co",
                                                      "&Rename Smith && Co"}));
        EXPECT_EQ(form.FileList.ListIndex, 3);
        EXPECT_EQ(form.TSaveAs.Text, "Smith & Co");
        leave();
    });
}

TEST_F(ChooserEvents, ARightPressBelowTheLastCardOpensNothing) {
    inChooser([&] {
        const auto point = toolkit::test::pointIn(form.FileList, 300, form.FileList.Height - 75);
        toolkit::test::click(point.x, point.y, toolkit::button::right);
        EXPECT_EQ(popups, 0);
        leave();
    });
}

TEST_F(ChooserEvents, ASelectedCardCountsAsTakenWhateverIsTyped) {
    answerChooser([&] {
        clickRow(0);
        form.SetFocus(form.TSaveAs);
        typeText("Zorn");
        typeKey(toolkit::key::enter);
    });
    answer(toolkit::Answer::No);
    choose("File>Save As...");
    EXPECT_EQ(boxes.at(0).title, "Overwrite existing file?");
}

TEST_F(ChooserEvents, AScreenReaderChoosesACardByItsRow) {
    inChooser([&] {
        const auto panel = toolkit::test::accessiblePart("Choose a card");
        EXPECT_EQ(panel.role, "dialog");
        EXPECT_EQ(panel.description, "Select from list or enter a name for a new card");
        EXPECT_EQ(toolkit::test::accessiblePart("Name of the card").role, "text");
        EXPECT_EQ(toolkit::test::accessiblePartsOf("Cards").size(), 3U);
        EXPECT_TRUE(toolkit::test::accessiblePart("OK").isDefault);
        EXPECT_TRUE(toolkit::test::press("Brown"));
        EXPECT_EQ(toolkit::test::shownText(form.TSaveAs), "Brown");
        clickOn(form.BOK);
    });
    EXPECT_EQ(chosen, "Brown");
}

TEST_F(ChooserEvents, AScreenReaderOpensTheFolder) {
    inChooser([&] {
        const std::string folder = form.LPath.Caption;
        EXPECT_EQ(toolkit::test::accessiblePart(folder).role, "button");
        EXPECT_EQ(toolkit::test::accessiblePart(folder).description, form.LPath.ToolTip);
        EXPECT_TRUE(toolkit::test::press(folder));
        leave();
    });
    EXPECT_EQ(launched.size(), 1U);
}

} // namespace
} // namespace zev::test

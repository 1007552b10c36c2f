#include "card/undo_card.h"

#include <algorithm>

#include "card/chooser_menu.h"
#include "card/journal.h"
#include "card/journal_fixture.h"
#include "card/write_card.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {
namespace {

using toolkit::test::typeKey;

class UndoCard : public JournalTest {
  protected:
    static void undo() { typeKey('Z', toolkit::shift::ctrl); }
    static void redo() { typeKey('Y', toolkit::shift::ctrl); }
    [[nodiscard]] int suits() const {
        int count = 0;
        for (int i = 1; i <= form.SText.UBound(); ++i) count += form.SText[i].Visible ? 1 : 0;
        return count;
    }
    [[nodiscard]] auto journaledMarks() const {
        return std::ranges::count(content().document.marks, true);
    }
    [[nodiscard]] bool hasStar() const { return form.Caption.ends_with(" *"); }
};

TEST_F(UndoCard, TakesBackMarksOneByOneAndBringsThemBack) {
    start();
    clickMark(1);
    clickMark(2);
    undo();
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    undo();
    EXPECT_FALSE(form.AMark[1].Visible);
    undo();
    redo();
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    typeKey('Z', toolkit::shift::ctrl | toolkit::shift::shift);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(UndoCard, TakesBackATextWithItsSwitches) {
    start();
    openCard("Jones", {.texts = {"1,\"old\",4"}});
    typeInOpenField(1, "5^h");
    typeKey('I', toolkit::shift::ctrl, "\x09");
    toolkit::test::click(1000, 20);
    ASSERT_EQ(form.AText[1].Tag, "5^h");
    ASSERT_TRUE(form.AText[1].Font.Italic);
    undo();
    EXPECT_EQ(form.AText[1].Tag, "old");
    EXPECT_FALSE(form.AText[1].Font.Italic);
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Left);
    EXPECT_EQ(suits(), 0);
    redo();
    EXPECT_EQ(form.AText[1].Tag, "5^h");
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_EQ(suits(), 1);
}

TEST_F(UndoCard, EachTextOfAWalkIsAStep) {
    start();
    typeInOpenField(1, "one");
    clickText(2);
    toolkit::test::typeText("two");
    typeKey(toolkit::key::escape, 0, "\x1b");
    undo();
    EXPECT_EQ(form.AText[1].Tag, "one");
    EXPECT_EQ(form.AText[2].Tag, "");
    undo();
    EXPECT_EQ(form.AText[1].Tag, "");
}

TEST_F(UndoCard, AnOpenTextKeepsItsOwnUndo) {
    start();
    clickMark(1);
    typeInOpenField(1, "one");
    EXPECT_FALSE(form.MUndo.Enabled);
    typeKey('Z', toolkit::shift::ctrl, "\x1a");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.CText.Text, "");
    EXPECT_TRUE(form.CText.Visible);
}

TEST_F(UndoCard, GoingBackToTheSavedCardTakesTheStarAway) {
    start();
    openCard("Jones", {});
    clickMark(1);
    choose("File>Save");
    ASSERT_FALSE(hasStar());
    clickMark(2);
    ASSERT_TRUE(hasStar());
    undo();
    EXPECT_FALSE(hasStar());
    EXPECT_FALSE(form.CardModified);
    undo();
    EXPECT_TRUE(hasStar());
    redo();
    EXPECT_FALSE(hasStar());
    // The saved state lies on a way that is given up.
    undo();
    clickMark(3);
    undo();
    EXPECT_TRUE(hasStar());
}

TEST_F(UndoCard, ATextSavedWhileItIsOpenIsSaved) {
    start();
    openCard("Jones", {});
    typeInOpenField(1, "one");
    choose("File>Save");
    clickMark(1);
    undo();
    EXPECT_FALSE(hasStar());
    EXPECT_EQ(form.AText[1].Tag, "one");
    undo();
    EXPECT_EQ(form.AText[1].Tag, "");
    EXPECT_TRUE(hasStar());
}

TEST_F(UndoCard, AnotherCardBeginsWithoutSteps) {
    start();
    clickMark(1);
    ASSERT_TRUE(form.MUndo.Enabled);
    answer(toolkit::Answer::No);
    openCard("Jones", {});
    EXPECT_FALSE(form.MUndo.Enabled);
    EXPECT_FALSE(form.MRedo.Enabled);
    undo();
    EXPECT_FALSE(form.CardModified);
}

TEST_F(UndoCard, OutlastsAZoomACopyAndAnOption) {
    start();
    openCard("Jones", {});
    clickMark(1);
    typeInto(1, "one");
    choose("View>" + form.MZoomIn.Caption);
    choose("Options>Boldface");
    choose("File>Copy to Clipboard");
    EXPECT_EQ(form.AText[1].Tag, "one");
    undo();
    EXPECT_EQ(form.AText[1].Tag, "");
    EXPECT_TRUE(form.AText[1].Font.Bold);
    undo();
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_FALSE(hasStar());
    redo();
    redo();
    EXPECT_EQ(form.AText[1].Tag, "one");
}

TEST_F(UndoCard, TheMenuTellsWhatItWouldDo) {
    start();
    EXPECT_FALSE(form.MUndo.Enabled);
    EXPECT_EQ(form.MUndo.Caption, "&Undo");
    typeInto(1, "one");
    EXPECT_EQ(form.MUndo.Caption, "&Undo typing in Names, both partners");
    choose("Edit>Undo typing in Names, both partners");
    EXPECT_EQ(form.MUndo.Caption, "&Undo");
    EXPECT_EQ(form.MRedo.Caption, "&Redo typing in Names, both partners");
    clickMark(2);
    EXPECT_EQ(form.MUndo.Caption,
              "&Undo setting General approach, two over one game forcing except when suit rebid");
    EXPECT_FALSE(form.MRedo.Enabled);
}

TEST_F(UndoCard, TakesBackThePartnersName) {
    start();
    openCard("Jones", {});
    answerInput("Jane 123");
    choose("Options>Partner's Name");
    ASSERT_EQ(form.PartnerName, "Jane");
    undo();
    EXPECT_EQ(form.PartnerName, "");
    EXPECT_EQ(form.PartnerNumber, "");
    EXPECT_EQ(form.AText[form.NamesField].Tag, "Jones");
    redo();
    EXPECT_EQ(form.PartnerNumber, "123");
}

TEST_F(UndoCard, APartnerWhoWasLeftBehindAtASaveDoesntComeBack) {
    start();
    openCard("Jones", {.partner = "\"Joe\",\"1\""});
    answer(toolkit::Answer::No);
    answerName("Smith");
    choose("File>Save As...");
    ASSERT_EQ(form.PartnerName, "");
    clickMark(1);
    undo();
    EXPECT_EQ(form.PartnerName, "");
    EXPECT_FALSE(hasStar());
}

TEST_F(UndoCard, KeepsTheStyleThatAnOptionHasGivenSince) {
    start();
    choose("Options>Boldface");
    typeInto(1, "one");
    choose("Options>Boldface");
    undo();
    redo();
    EXPECT_EQ(form.AText[1].Tag, "one");
    EXPECT_FALSE(form.AText[1].Font.Bold);
    choose("Options>Left-Justify all text");
    undo();
    redo();
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Left);
}

TEST_F(UndoCard, AnOptionTakesNoStepFromATextThatIsOpen) {
    start();
    openCard("Jones", {.texts = {"1,\"old\",0"}});
    clickText(1);
    typeKey('I', toolkit::shift::ctrl, "\x09");
    choose("Options>Boldface");
    typeKey(toolkit::key::escape, 0, "\x1b");
    clickMark(1);
    undo();
    EXPECT_TRUE(hasStar());
    undo();
    EXPECT_FALSE(form.AText[1].Font.Italic);
}

TEST_F(UndoCard, ACardWhoseFileIsDeletedIsSavedNowhere) {
    start();
    openCard("Jones", {});
    clickMark(1);
    answerChooser([this] {
        form.FileList.ListIndex = 0;
        ASSERT_EQ(form.FileList.List, std::vector<std::string>{"Jones"});
        mpopDelete_Click(form);
        typeKey(toolkit::key::escape, 0, "\x1b");
    });
    choose("File>Save As...");
    undo();
    EXPECT_TRUE(hasStar());
}

TEST_F(UndoCard, IsTraced) {
    start();
    clickMark(1);
    undo();
    EXPECT_TRUE(traced("MUndo_Click"));
    redo();
    EXPECT_TRUE(traced("MRedo_Click"));
}

TEST_F(UndoCard, TheJournalHoldsWhatWasTakenBack) {
    start();
    openCard("Jones", {});
    clickMark(1);
    clickMark(2);
    flushJournal(form);
    EXPECT_EQ(journaledMarks(), 2);
    undo();
    flushJournal(form);
    EXPECT_EQ(journaledMarks(), 1);
    undo();
    // Nothing is left that could be lost.
    EXPECT_FALSE(form.CardModified);
    EXPECT_FALSE(isThere());
}

} // namespace
} // namespace zev::test

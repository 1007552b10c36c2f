#include "card/lifecycle.h"

#include "card/write_card.h"
#include "card_form_test.h"
#include "form/background.h"
#include "form/modified.h"
#include "form/write_options.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

class NewCard : public CardFormTest {
  protected:
    void fillCard() {
        clickMark(1);
        typeInto(1, "5^h");
        form.AText[1].Font.Bold = true;
        form.AText[1].Font.Italic = true;
        form.AText[1].Alignment = toolkit::Alignment::Left;
        form.Highlight[1].Visible = true;
        form.PartnerName = "Jane";
        form.PartnerNumber = "1";
        form.P1.Move(-300, -150);
    }

    void expectFilled() const {
        EXPECT_TRUE(form.AMark[1].Visible);
        EXPECT_EQ(form.AText[1].Tag, "5^h");
        EXPECT_EQ(form.PartnerName, "Jane");
        EXPECT_TRUE(form.CardModified);
    }
};

TEST_F(NewCard, ClearsEveryFieldAndStyle) {
    start();
    fillCard();
    answer(toolkit::Answer::No);
    choose("File>New");
    EXPECT_FALSE(form.AMark[1].Visible);
    const toolkit::Label& text = form.AText[1];
    EXPECT_EQ(text.Caption, "");
    EXPECT_EQ(text.Tag, "");
    EXPECT_FALSE(text.Font.Bold);
    EXPECT_FALSE(text.Font.Italic);
    EXPECT_EQ(text.Alignment, toolkit::Alignment::Center);
    EXPECT_FALSE(form.Highlight[1].Visible);
    EXPECT_EQ(form.SText.UBound(), 0);
    EXPECT_TRUE(form.SuitColors.empty());
}

TEST_F(NewCard, ForgetsTheNameThePartnerAndThePlace) {
    start();
    form.CardName = "Jones";
    fillCard();
    answer(toolkit::Answer::No);
    choose("File>New");
    EXPECT_EQ(form.CardName, "");
    EXPECT_EQ(form.PartnerName, "");
    EXPECT_EQ(form.PartnerNumber, "");
    EXPECT_EQ(form.P1.Left, 0);
    EXPECT_EQ(form.P1.Top, 0);
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
}

TEST_F(NewCard, IsBoldAsTheWholeCardIs) {
    start();
    form.mBold.Checked = true;
    choose("File>New");
    EXPECT_TRUE(form.AText[1].Font.Bold);
}

TEST_F(NewCard, ShowsThePlayersNameAndIsUnchanged) {
    writeOptions("Zoom=5\r\nName=Joe\r\nNumber=7\r\n");
    start();
    choose("File>New");
    EXPECT_EQ(form.AText[3].Caption, "Joe #7");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(NewCard, CancelKeepsAll) {
    start();
    fillCard();
    answer(toolkit::Answer::Cancel);
    choose("File>New");
    expectFilled();
    EXPECT_EQ(form.P1.Left, -300);
}

TEST_F(NewCard, YesOnAnUnnamedCardOpensTheNamingAndCancellingKeepsTheCard) {
    start();
    fillCard();
    answer(toolkit::Answer::Yes);
    answer(toolkit::Answer::Yes); // the same partner
    answerName("");
    choose("File>New");
    EXPECT_EQ(choosers.size(), 1U);
    expectFilled();
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

TEST_F(NewCard, YesSavesUnderTheGivenNameAndClears) {
    start();
    clickMark(1);
    answer(toolkit::Answer::Yes);
    answerName("Jones");
    choose("File>New");
    EXPECT_NE(dataFileContent("Jones.zev").find("\r\n1,1,0\r\n"), std::string::npos);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_EQ(form.CardName, "");
}

TEST_F(NewCard, SpaceTurnsNoMarkThatTheFormerCardHad) {
    start();
    clickMark(1);
    answer(toolkit::Answer::No);
    choose("File>New");
    toolkit::test::typeKey(toolkit::key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(NewCard, KeepsTheMarkInFocusWhereCancelKeepsAll) {
    start();
    clickMark(1);
    answer(toolkit::Answer::Cancel);
    choose("File>New");
    toolkit::test::typeKey(toolkit::key::space);
    EXPECT_FALSE(form.AMark[1].Visible);
}

TEST_F(NewCard, CommitsNothingIntoTheNewCard) {
    start();
    typeInOpenField(1, "old");
    answer(toolkit::Answer::No);
    choose("File>New");
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(form.AText[1].Tag, "");
    EXPECT_EQ(form.TIndex, 0);
    EXPECT_EQ(form.OrigIndex, 0);
}

TEST_F(NewCard, StandsStillWhilePrinting) {
    start();
    fillCard();
    form.Printing = true;
    choose("File>New");
    expectFilled();
    EXPECT_EQ(traceLines().back(), "CheckMod True, True, False");
}

TEST_F(NewCard, TellsItsStepsInTheTrace) {
    start();
    form.Trace.clear();
    choose("File>New");
    CreateBG(form, form.BGPat, 0, 0); // marks the end
    EXPECT_TRUE(tracedInOrder(
        {"MNew_Click", "CheckMod False, False, False", "False RestoreBackgroundPicture ",
         "SetImageSize 0.5, False, False", "ShowNames", "ResetMod 0", "SetCaption", "MakeTimeStamp",
         "PositionTimeStamp", "SetCaption", "MakeTimeStamp", "PositionTimeStamp", "CreateBG"}));
}

class OpenCard : public CardFormTest {
  protected:
    /// What the form showed while the name was asked for.
    struct Asked {
        std::string title;
        std::string cardName;
        bool markSet = false;
    };
    Asked openLookingOn() {
        Asked asked;
        answerChooser([&] {
            asked = {form.Caption, form.CardName, form.AMark[1].Visible};
            toolkit::test::typeKey(toolkit::key::escape);
        });
        choose("File>Open...");
        return asked;
    }
};

TEST_F(OpenCard, BlanksTheCardButKeepsItsNameWhileAsking) {
    start();
    openCard("Jones", {.marks = {"1,1,0"}});
    ASSERT_TRUE(form.AMark[1].Visible);
    const Asked asked = openLookingOn();
    EXPECT_EQ(asked.title, "Zevlin  - Open an existing card file");
    EXPECT_EQ(asked.cardName, "Jones");
    EXPECT_FALSE(asked.markSet);
}

TEST_F(OpenCard, CancelLeavesABlankUnnamedCard) {
    start();
    openCard("Jones", {.marks = {"1,1,0"}});
    openNamed("");
    EXPECT_EQ(form.CardName, "");
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
    EXPECT_TRUE(traced("SetCaption"));
}

TEST_F(OpenCard, LeavesTheTitleAloneWhileZooming) {
    start();
    form.Zooming = true;
    EXPECT_EQ(openLookingOn().title, "Zevlin  (unnamed)");
}

TEST_F(OpenCard, CancelOfTheQuestionKeepsTheChangedCard) {
    start();
    clickMark(1);
    answer(toolkit::Answer::Cancel);
    choose("File>Open...");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(choosers.empty());
}

TEST_F(OpenCard, SavesFirstAndAsksOnlyOnce) {
    start();
    openCard("Jones", {.marks = {"1,0,0"}});
    writeCard("Smith", cardFile({.marks = {"2,1,0"}}));
    clickMark(1);
    answer(toolkit::Answer::Yes);
    openNamed("Smith");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_NE(dataFileContent("Jones.zev").find("\r\n1,1,0\r\n"), std::string::npos);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(OpenCard, AVanishedFileLeavesABlankCardWithThatName) {
    start();
    openNamed("Gone");
    EXPECT_EQ(form.CardName, "Gone");
    EXPECT_EQ(form.Caption, "Zevlin  ( Gone )");
    EXPECT_FALSE(traced("GetCardFile"));
    choose("File>Save");
    EXPECT_TRUE(std::filesystem::exists(dataFile("Gone.zev")));
}

TEST_F(OpenCard, SpaceTurnsNoMarkThatTheFormerCardHad) {
    start();
    clickMark(1);
    answer(toolkit::Answer::No);
    openCard("Jones", {.marks = {"1,1,0"}});
    toolkit::test::typeKey(toolkit::key::space);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(OpenCard, MovesTheCardBackToItsPlace) {
    start();
    form.P1.Move(-300, -150);
    openCard("Jones", {});
    EXPECT_EQ(form.P1.Left, 0);
    EXPECT_EQ(form.P1.Top, 0);
}

TEST_F(OpenCard, StandsStillWhilePrinting) {
    start();
    form.Printing = true;
    choose("File>Open...");
    EXPECT_TRUE(choosers.empty());
    EXPECT_TRUE(tracedInOrder({"MOpen_Click", "CheckMod False, True, False"}));
}

TEST_F(OpenCard, OfTheLastOneIsTheSame) {
    start();
    writeCard("Jones", cardFile({.marks = {"1,1,0"}}));
    answerName("Jones");
    MOpenLast_Click(form);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(tracedInOrder({"MOpenLast_Click", "MOpen_Click"}));
}

TEST_F(OpenCard, TellsItsStepsInTheTrace) {
    start();
    openNamed("Gone");
    EXPECT_TRUE(tracedInOrder({"MOpen_Click", "CheckMod False, False, False", "MNew_Click"}));
    EXPECT_TRUE(tracedInOrder({"PositionTimeStamp", "GetFileNames", "PopulateFileList"}));
    EXPECT_TRUE(tracedInOrder({"BOK_Click", "SetCaption", "MakeTimeStamp"}));
}

} // namespace
} // namespace zev::test

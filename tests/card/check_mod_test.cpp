#include "card/check_mod.h"

#include "card_form_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class CheckModTest : public CardFormTest {};

TEST_F(CheckModTest, QuestionIsAskedOnlyForAChange) {
    start();
    EXPECT_FALSE(CheckMod(form));
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(traceLines().back(), "CheckMod False, False, False");
}

TEST_F(CheckModTest, QuestionHasItsTextAndButtons) {
    start();
    clickMark(1);
    answer(toolkit::Answer::Cancel);
    EXPECT_TRUE(CheckMod(form));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Do you want to save the current card first?");
    EXPECT_EQ(boxes[0].title, "Unsaved changes");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNoCancel);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Question);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(CheckModTest, NoDropsTheChangeAndGoesOn) {
    start();
    clickMark(1);
    answer(toolkit::Answer::No);
    EXPECT_FALSE(CheckMod(form));
    EXPECT_FALSE(form.CardModified);
}

TEST_F(CheckModTest, YesSavesANamedCardAndGoesOn) {
    start();
    form.CardName = "Jones";
    clickMark(1);
    answer(toolkit::Answer::Yes);
    EXPECT_FALSE(CheckMod(form));
    EXPECT_NE(dataFileContent("Jones.zev").find("1,1,0\r\n"), std::string::npos);
}

TEST_F(CheckModTest, YesRefusesWhenTheNamingIsCancelled) {
    start();
    clickMark(1);
    answer(toolkit::Answer::Yes);
    answerName("");
    EXPECT_TRUE(CheckMod(form));
    EXPECT_TRUE(form.CardModified);
}

TEST_F(CheckModTest, NothingIsAskedWhilePrinting) {
    start();
    typeInOpenField(1, "x");
    form.Printing = true;
    EXPECT_FALSE(CheckMod(form));
    EXPECT_EQ(traceLines().back(), "CheckMod True, True, False");
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(CheckModTest, NothingIsAskedInTheDesignView) {
    start();
    clickMark(1);
    form.MShowShapes.Checked = true;
    EXPECT_FALSE(CheckMod(form));
    EXPECT_FALSE(form.CardModified);
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(tracedInOrder({"CheckMod True, False, True", "ResetMod 1"}));
}

TEST_F(CheckModTest, AnOpenEditCountsWithoutAKeyRelease) {
    start();
    clickText(1);
    toolkit::test::compose("", "abc");
    ASSERT_FALSE(form.CardModified);
    answer(toolkit::Answer::Cancel);
    choose("File>New");
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(form.AText[1].Tag, "abc");
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

TEST_F(CheckModTest, ACommittedEditCountsThoughItsFlagWasLost) {
    start();
    typeInto(1, "abc");
    form.CardModified = false;
    answer(toolkit::Answer::Cancel);
    EXPECT_TRUE(CheckMod(form));
    EXPECT_TRUE(traced("SetMod 0"));
}

TEST_F(CheckModTest, LeavingAsksAndCancelStays) {
    start();
    clickMark(1);
    answer(toolkit::Answer::Cancel);
    toolkit::test::closeWindow();
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(form.AMark[1].Visible);
}

} // namespace
} // namespace zev::test

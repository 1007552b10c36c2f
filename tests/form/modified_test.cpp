#include "form/modified.h"

#include "card/card_form_test.h"

namespace zev::test {
namespace {

class Modified : public CardFormTest {};

TEST_F(Modified, TitleTellsTheNameAndTheChange) {
    start();
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
    clickMark(1);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
    form.CardName = "Jones";
    SetCaption(form);
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones ) *");
    choose("File>Save");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
}

TEST_F(Modified, TitleIsNotTouchedByTheNameOfARebuild) {
    start();
    clickMark(1);
    form.CardName = "$$Tempcard";
    form.CardModified = false;
    SetCaption(form);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

TEST_F(Modified, SettingTellsTheOldFlagAndAllowsUndo) {
    start();
    form.mpopUndo.Enabled = false;
    SetMod(form);
    EXPECT_TRUE(form.mpopUndo.Enabled);
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(tracedInOrder({"SetMod 0", "SetCaption", "MakeTimeStamp"}));
    SetMod(form);
    EXPECT_TRUE(tracedInOrder({"SetMod 1", "SetCaption", "MakeTimeStamp"}));
}

TEST_F(Modified, ResettingDropsTheUndo) {
    start();
    typeInOpenField(1, "x");
    ASSERT_TRUE(form.CardModified);
    ResetMod(form);
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.OrigIndex, 0);
    EXPECT_EQ(form.TIndex, 0);
    EXPECT_EQ(form.OrigText, "");
    EXPECT_TRUE(tracedInOrder({"ResetMod 1", "SetCaption", "MakeTimeStamp"}));
}

TEST_F(Modified, ResettingStandsStillWhilePrinting) {
    start();
    typeInto(1, "x");
    form.Printing = true;
    ResetMod(form);
    EXPECT_EQ(traceLines().back(), "ResetMod 1");
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.OrigIndex, 1);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

} // namespace
} // namespace zev::test

#include "layout/position.h"

#include "support/form_test.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

class Position : public FormTest {
  protected:
    void openField() {
        clickText(1);
        toolkit::test::typeText("x");
        ASSERT_TRUE(form.CText.Visible || form.LText.Visible);
    }
    [[nodiscard]] bool isFieldOpen() const { return form.CText.Visible || form.LText.Visible; }
};

TEST_F(Position, SavingKeepsTheCardsPlace) {
    start();
    form.P1.Move(-300, -150);
    PositionSave(form);
    EXPECT_EQ(form.SavedLeft, -300);
    EXPECT_EQ(form.SavedTop, -150);
    EXPECT_EQ(form.SavedWidth, form.P1.Width);
    EXPECT_EQ(traceLines().back(), "PositionSave");
}

TEST_F(Position, SavingKeepsNothingWhileInitializing) {
    start();
    form.P1.Move(-300, -150);
    form.Initializing = true;
    PositionSave(form);
    EXPECT_EQ(form.SavedLeft, 0);
    EXPECT_EQ(form.SavedTop, 0);
}

TEST_F(Position, SavingCommitsAnOpenFieldBeforeAZoom) {
    start();
    openField();
    form.Zooming = true;
    PositionSave(form);
    EXPECT_FALSE(isFieldOpen());
    EXPECT_EQ(form.AText[1].Tag, "x");
}

TEST_F(Position, SavingCommitsAnOpenLeftJustifiedFieldBeforePrinting) {
    start();
    form.AText[1].Alignment = toolkit::Alignment::Left;
    openField();
    ASSERT_TRUE(form.LText.Visible);
    form.Printing = true;
    PositionSave(form);
    EXPECT_FALSE(isFieldOpen());
    EXPECT_EQ(form.AText[1].Tag, "x");
}

TEST_F(Position, SavingLeavesAFieldOpenOtherwise) {
    start();
    openField();
    PositionSave(form);
    EXPECT_TRUE(isFieldOpen());
}

TEST_F(Position, RestoringLeavesTheCardWhereItIs) {
    start();
    PositionSave(form);
    form.P1.Move(-300, -150);
    PositionRestore(form);
    EXPECT_EQ(form.P1.Left, -300);
    EXPECT_EQ(form.P1.Top, -150);
    EXPECT_EQ(traceLines().back(), "PositionRestore");
}

} // namespace
} // namespace zev::test

// What can be seen of the form.
#include "marks/visible_area.h"
#include "text/edit_test.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

/// The screen is 12000 x 11000 twips; a frame of 120 x 600 leaves 14880 x 14400 of the form.
class VisibleArea : public EditTest {
  protected:
    void SetUp() override {
        EditTest::SetUp();
        form.TwipsPerPixel = 15;
        form.Width = form.Height = 15000;
        form.FrameWidth = 120;
        form.FrameHeight = 600;
        toolkit::overrideScreen({.width = 12000, .height = 11000});
    }
    void expectSeen(const toolkit::TaskBar& bar, const Area& wanted) const {
        const Area seen = visibleArea(form, bar);
        EXPECT_FLOAT_EQ(seen.left, wanted.left);
        EXPECT_FLOAT_EQ(seen.top, wanted.top);
        EXPECT_FLOAT_EQ(seen.right, wanted.right);
        EXPECT_FLOAT_EQ(seen.bottom, wanted.bottom);
    }
};

TEST_F(VisibleArea, EndsAtTheScreensEdgesAndItsTaskBar) {
    form.Left = -3000;
    form.Top = -4000;
    expectSeen({}, {2880, 3400, 14880, 14400});
    expectSeen({0, 0, 40, 733}, {2880 + 600, 3400, 14880, 14400});
    expectSeen({0, 0, 800, 40}, {2880, 3400 + 600, 14880, 14400});
    form.Left = form.Top = 0;
    expectSeen({}, {0, 0, 11880, 10400});
    expectSeen({760, 0, 40, 733}, {0, 0, 11880 - 600, 10400});
    expectSeen({0, 693, 800, 40}, {0, 0, 11880, 10400 - 600});
}

TEST_F(VisibleArea, IsTheFormsInsideWhereAllOfItIsOnTheScreen) {
    form.Width = form.Height = 5000;
    expectSeen({}, {0, 0, 4880, 4400});
}

TEST_F(VisibleArea, APointIsPulledInByTheMargin) {
    EXPECT_EQ(pull(99, 100, 200, 30), 31);
    EXPECT_EQ(pull(201, 100, 200, 30), -31);
    for (const float seen : {100.0F, 200.0F}) EXPECT_EQ(pull(seen, 100, 200, 30), 0);
}

TEST_F(VisibleArea, AFieldIsPulledInWholeOrByItsBeginning) {
    EXPECT_EQ(pullWhole(99, 120, 100, 200, 5), 6);
    EXPECT_EQ(pullWhole(190, 201, 100, 200, 5), -6);
    EXPECT_EQ(pullWhole(100, 200, 100, 200, 5), 0);
    EXPECT_EQ(pullWhole(150, 241, 100, 200, 5), -50) << "no room for its margins";
}

} // namespace
} // namespace zev::test

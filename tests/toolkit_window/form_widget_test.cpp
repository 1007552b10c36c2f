// The window of the form: its menu bar above, its inside below.
#include "fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class FormWidget : public WindowTest {
  protected:
    FormWidget() {
        file.Caption = "File";
        menu = {{.level = 0, .item = &file, .Click = [] {}}};
    }

    MenuItem file;
};

TEST_F(FormWidget, InsideBeginsBelowTheMenuBar) {
    card.Move(0, 0, px(50), px(50));
    card.Picture = std::make_shared<Bitmap>(50, 50, rgb(1, 2, 3));
    const Bitmap shown = test::grabWindow();
    const int bar = shown.height() - static_cast<int>(form.ScaleHeight() / px(1));
    ASSERT_GT(bar, 10);
    EXPECT_NE(shown.pixel(25, bar - 1), rgb(1, 2, 3));
    EXPECT_EQ(shown.pixel(25, bar), rgb(1, 2, 3));
    EXPECT_EQ(shown.pixel(49, bar + 49), rgb(1, 2, 3));
    EXPECT_EQ(shown.pixel(50, bar + 49), form.BackColor);
}

TEST_F(FormWidget, InsideGrowsWithTheWindow) {
    const float before = form.ScaleHeight();
    form.Height += px(30);
    test::settle();
    EXPECT_EQ(form.ScaleHeight(), before + px(30));
    EXPECT_EQ(test::grabWindow().pixel(5, test::grabWindow().height() - 1), form.BackColor);
}

TEST_F(FormWidget, TellsTheFormOfItsNewSize) {
    form.Resize = [this] {
        note("Resize " + pixelsText(form.ScaleWidth()) + " x " + pixelsText(form.ScaleHeight()));
    };
    const int width = pixelsFromTwips(form.ScaleWidth());
    const int height = pixelsFromTwips(form.ScaleHeight());
    test::resizeWindow(20, 30);
    ASSERT_EQ(log,
              Log{"Resize " + std::to_string(width + 20) + " x " + std::to_string(height + 30)});
    form.Width -= px(50);
    test::settle();
    ASSERT_EQ(log.back(),
              "Resize " + std::to_string(width - 30) + " x " + std::to_string(height + 30));
    test::shiftWindow(10, 10);
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(FormWidget, IsShownAndHiddenByItsValue) {
    EXPECT_TRUE(test::isShown(card));
    form.Visible = false;
    EXPECT_FALSE(test::isShown(card));
}

TEST_F(FormWidget, IsAWindowToScreenReaders) {
    form.Caption = "Zevlin  (unnamed)";
    EXPECT_EQ(test::accessiblePart("Zevlin  (unnamed)").role, "window");
}

} // namespace
} // namespace window_test

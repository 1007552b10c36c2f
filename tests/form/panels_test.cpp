#include "form/panels.h"

#include "support/form_test.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class Panels : public FormTest {
  protected:
    void showPanel() {
        start();
        form.P1.Visible = false;
        form.P3.Move(100 * pixel, 80 * pixel, 200 * pixel, 120 * pixel);
        form.P3.Visible = true;
    }
    /// The window's pixel at a place of the form's client area.
    [[nodiscard]] toolkit::Color at(const toolkit::Bitmap& shown, int x, int y) const {
        const int inside = static_cast<int>(form.ScaleHeight() / pixel);
        return shown.pixel(x, shown.height() - inside + y).value_or(0);
    }
};

TEST_F(Panels, TheGradientRunsFromLightBlueToDarkerBlue) {
    showPanel();
    form.P3.Visible = false;
    GradientFill(form, IncludePanel::No);
    EXPECT_TRUE(traced("GradientFill False"));
    const auto shown = toolkit::test::grabWindow();
    const int height = static_cast<int>(form.ScaleHeight() / pixel);
    EXPECT_EQ(at(shown, 5, 0), toolkit::rgb(208, 224, 255));
    EXPECT_EQ(at(shown, 5, height / 2), toolkit::rgb(176, 189, 255));
    EXPECT_EQ(at(shown, 5, height - 1), toolkit::rgb(144, 154, 255));
    EXPECT_EQ(at(shown, shown.width() - 1, height / 2), at(shown, 5, height / 2));
}

TEST_F(Panels, TheGradientGoesOnThroughThePanelWithoutASeam) {
    showPanel();
    GradientFill(form, IncludePanel::Yes);
    EXPECT_TRUE(traced("GradientFill True"));
    const auto shown = toolkit::test::grabWindow();
    for (int y = 70; y < 210; ++y) EXPECT_EQ(at(shown, 150, y), at(shown, 50, y)) << y;
}

TEST_F(Panels, WithoutItThePanelKeepsItsOwnColor) {
    showPanel();
    form.P3.BackColor = toolkit::rgb(255, 255, 200);
    GradientFill(form, IncludePanel::No);
    EXPECT_EQ(at(toolkit::test::grabWindow(), 150, 100), toolkit::rgb(255, 255, 200));
}

TEST_F(Panels, RoundedCornersShowTheFormBehind) {
    showPanel();
    form.P3.BackColor = toolkit::rgb(255, 0, 0);
    GradientFill(form, IncludePanel::No);
    EXPECT_EQ(at(toolkit::test::grabWindow(), 100, 80), toolkit::rgb(255, 0, 0));
    MakeObjRounded(form, form.P3, 4);
    EXPECT_TRUE(traced("MakeObjRounded"));
    const auto shown = toolkit::test::grabWindow();
    EXPECT_EQ(at(shown, 100, 80), at(shown, 50, 80));
    EXPECT_EQ(at(shown, 299, 199), at(shown, 50, 199));
    EXPECT_EQ(at(shown, 104, 80), toolkit::rgb(255, 0, 0));
    EXPECT_EQ(at(shown, 100, 84), toolkit::rgb(255, 0, 0));
}

TEST_F(Panels, AnEnlargedWindowGetsTheGradientOfItsNewHeight) {
    showPanel();
    GradientFill(form, IncludePanel::Yes);
    toolkit::test::resizeWindow(0, 300);
    const auto shown = toolkit::test::grabWindow();
    const int height = static_cast<int>(form.ScaleHeight() / pixel);
    EXPECT_EQ(at(shown, 5, height - 1), toolkit::rgb(144, 154, 255));
    EXPECT_EQ(at(shown, 150, 100), at(shown, 5, 100));
}

} // namespace
} // namespace zev::test

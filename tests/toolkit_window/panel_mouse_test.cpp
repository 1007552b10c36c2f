// What the mouse does on a panel, and how it comes and goes.
#include "panel_fixture.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

using PanelMouse = PanelTest;

TEST_F(PanelMouse, ComesAndGoesWithItsControls) {
    EXPECT_TRUE(test::isShown(panel));
    EXPECT_TRUE(test::isShown(name));
    panel.Visible = false;
    EXPECT_FALSE(test::isShown(panel));
    EXPECT_FALSE(test::isShown(name));
}

TEST_F(PanelMouse, HidingItGivesTheFocusToTheCard) {
    EXPECT_TRUE(hasFocus(name));
    panel.Visible = false;
    window->update();
    EXPECT_TRUE(hasFocus(card));
    EXPECT_EQ(form.ActiveControl, &card);
}

TEST_F(PanelMouse, APressOnALabelTellsThePlaceInIt) {
    clickAt(13, 9);
    EXPECT_EQ(times("line.MouseDown B=1 S=0 X=3 Y=4"), 1);
    EXPECT_EQ(times("line.Click"), 1);
}

TEST_F(PanelMouse, TheRightButtonPressesAndDoesNotClick) {
    clickAt(13, 9, button::right);
    EXPECT_EQ(times("line.MouseDown B=2 S=0 X=3 Y=4"), 1);
    EXPECT_EQ(times("line.Click"), 0);
}

TEST_F(PanelMouse, AReleaseElsewhereDoesNotClick) {
    const auto from = test::pointIn(panel, px(13), px(9));
    const auto to = test::pointIn(panel, px(13), px(140));
    test::moveMouse(from.x, from.y);
    test::pressMouse(from.x, from.y);
    test::releaseMouse(to.x, to.y);
    EXPECT_EQ(times("line.Click"), 0);
    EXPECT_EQ(times("sample0.Click"), 0);
}

TEST_F(PanelMouse, LabelsOfAnArrayClickByTheirIndexFromZero) {
    clickAt(15, 135);
    clickAt(45, 135);
    EXPECT_EQ(times("sample0.Click"), 1);
    EXPECT_EQ(times("sample1.Click"), 1);
    samples[1].Visible = false;
    clickAt(45, 135);
    EXPECT_EQ(times("sample1.Click"), 1);
}

TEST_F(PanelMouse, NothingBehindItGetsAPress) {
    clickAt(250, 180);
    EXPECT_EQ(times("card.MouseDown B=1 S=0 X=340 Y=270"), 0);
    EXPECT_TRUE(log.empty()) << log.front();
    EXPECT_TRUE(hasFocus(name));
}

TEST_F(PanelMouse, ALabelHasItsToolTip) {
    EXPECT_EQ(test::toolTipAt(panel, test::pointOn(panel, line)), "tip of the line");
    EXPECT_EQ(test::toolTipAt(panel, test::pointOn(panel, plain)), "");
}

TEST_F(PanelMouse, TheToolTipOfAShortenedLabelBeginsWithAllOfIt) {
    line.Shortens = true;
    line.Caption = "short && sweet";
    EXPECT_EQ(test::toolTipAt(panel, test::pointOn(panel, line)), "tip of the line");
    line.Caption = "much too long to be read && understood on a label like this";
    EXPECT_EQ(test::toolTipAt(panel, test::pointOn(panel, line)),
              "much too long to be read & understood on a label like this\ntip of the line");
    line.ToolTip.clear();
    EXPECT_EQ(test::toolTipAt(panel, test::pointOn(panel, line)),
              "much too long to be read & understood on a label like this");
}

TEST_F(PanelMouse, ShowsItsColourWithRoundedCorners) {
    panel.BackColor = rgb(200, 210, 220);
    panel.CornerRadius = 8;
    card.BackColor = rgb(10, 20, 30);
    window->update();
    EXPECT_EQ(shownAt(250, 180), rgb(200, 210, 220));
    EXPECT_EQ(shownAt(0, 0), rgb(10, 20, 30));
    EXPECT_NE(shownAt(12, 0), rgb(10, 20, 30));
}

TEST_F(PanelMouse, ContinuesTheFormsGradient) {
    form.Background = {
        .backdrop = Backdrop::Gradient, .top = rgb(0, 0, 0), .bottom = rgb(250, 125, 0)};
    card.Visible = false;
    panel.Fill = PanelFill::FormGradient;
    window->update();
    EXPECT_EQ(shownAt(250, 180), shownAt(310, 180));
    EXPECT_EQ(shownAt(250, 10), shownAt(310, 10));
    EXPECT_NE(shownAt(250, 10), shownAt(250, 180));
}

TEST_F(PanelMouse, AnOpaqueLabelShowsItsColour) {
    samples[1].BackStyle = BackStyle::Opaque;
    samples[1].BackColor = rgb(128, 64, 0);
    EXPECT_EQ(shownAt(50, 140), rgb(128, 64, 0));
    samples[1].BackColor = rgb(0, 64, 128);
    EXPECT_EQ(shownAt(50, 140), rgb(0, 64, 128));
}

TEST_F(PanelMouse, TurningTheWheelOnItMovesNothing) {
    form.MouseWheel = [this](int, int, int, int) { note("wheel"); };
    test::turnWheelOver(panel, 120);
    EXPECT_EQ(times("wheel"), 0);
}

} // namespace
} // namespace window_test

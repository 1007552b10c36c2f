// The measures that panels are laid out by.
#include "form/panel_look.h"

#include <cmath>

#include "support/form_test.h"

namespace zev::test {
namespace {

class PanelLook : public FormTest {
  protected:
    PanelMeasures measured() {
        form.TextFontName = "Arial";
        form.TwipsPerPixel = 15;
        return measurePanel(form);
    }
};

TEST_F(PanelLook, LinesAreWholePixels) {
    const PanelMeasures measures = measured();
    EXPECT_GT(measures.line, 10 * 15);
    EXPECT_LE(measures.line, toolkit::textHeight(measures.font));
    for (const float lines : {0.5F, 1.0F, 1.7F}) {
        EXPECT_EQ(std::fmod(measures.lines(lines), 15.0F), 0);
        EXPECT_NEAR(measures.lines(lines), lines * measures.line, 7.5F);
    }
}

TEST_F(PanelLook, ButtonsStandSideBySideAtTheRight) {
    const PanelMeasures measures = measured();
    toolkit::Control ok;
    toolkit::Control cancel;
    const float bottom = placeButtons(measures, ok, cancel, 6000, 300, 6000);
    EXPECT_EQ(cancel.Left + cancel.Width, 6000);
    EXPECT_EQ(ok.Left + ok.Width + measures.gap(), cancel.Left);
    EXPECT_EQ(ok.Width, cancel.Width);
    EXPECT_EQ(bottom, 300 + ok.Height);
}

TEST_F(PanelLook, ButtonsBecomeNarrowerWhereThereIsNoRoom) {
    const PanelMeasures measures = measured();
    toolkit::Control ok;
    toolkit::Control cancel;
    placeButtons(measures, ok, cancel, 1200, 0, 1200);
    EXPECT_GE(ok.Left, -15);
    EXPECT_LT(ok.Left + ok.Width, cancel.Left);
}

TEST_F(PanelLook, APanelStandsInTheMiddleOfTheForm) {
    form.Width = 9000;
    form.Height = 6000;
    form.FrameWidth = 100;
    form.FrameHeight = 500;
    toolkit::Panel panel;
    centrePanel(form, panel, 3000, 1000);
    EXPECT_EQ(panel.Left, (8900 - 3000) / 2.0F);
    EXPECT_EQ(panel.Top, (5500 - 1000) / 2.0F);
    EXPECT_EQ(panel.Width, 3000);
}

TEST_F(PanelLook, APanelIsLaidOutAsRoomyAsTheFormShowsItWhole) {
    const PanelMeasures usual = measured();
    const auto heightIn = [&](float room) {
        form.Height = form.FrameHeight + room;
        PanelMeasures taken;
        layOutWhole(form, [&](const PanelMeasures& measures) {
            taken = measures;
            return measures.lines(10) + 2 * measures.margin();
        });
        return taken;
    };
    const float roomy = usual.lines(10) + 2 * usual.margin();
    EXPECT_EQ(heightIn(roomy).air, 1);
    EXPECT_EQ(heightIn(roomy).font, usual.font);
    const PanelMeasures tight = heightIn(roomy - 15);
    EXPECT_LT(tight.air, 1);
    EXPECT_EQ(tight.font, usual.font);
    const PanelMeasures small = heightIn(usual.lines(10) - 15);
    EXPECT_LT(small.font.Size, usual.font.Size);
    EXPECT_LE(small.lines(10) + 2 * small.margin(), usual.lines(10) - 15);
    // What no scale makes fit is laid out by the last.
    EXPECT_EQ(heightIn(0).font.Size, 6);
}

} // namespace
} // namespace zev::test

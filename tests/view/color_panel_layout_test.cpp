// Where everything stands on the colour panel.
#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/testing/test_window.h"
#include "view/color_panel_layout.h"

namespace zev::test {
namespace {

class ColorPanelLayout : public FormTest {
  protected:
    ColorPanelLayout() { writeLayout(fewFields()); }
    void open() {
        start();
        EXPECT_TRUE(toolkit::test::chooseMenu("Options>Color Management>Custom..."));
    }
    [[nodiscard]] float right() const {
        return form.ColorScroll[0].Left + form.ColorScroll[0].Width;
    }
};

TEST_F(ColorPanelLayout, EverythingEndsAtTheSameMargins) {
    open();
    const toolkit::Label& last = form.ColorSample[5];
    EXPECT_EQ(last.Left + last.Width, right());
    EXPECT_EQ(form.ColorText.Left + form.ColorText.Width, right());
    EXPECT_EQ(form.ColorBut[1].Left + form.ColorBut[1].Width, right());
    EXPECT_EQ(form.ColorSample[0].Left, form.ColorID[0].Left);
    EXPECT_EQ(form.ColorLabel.Left, form.ColorID[0].Left);
    EXPECT_NEAR(form.ColorPic.Width - right(), form.ColorSample[0].Left, 15);
}

TEST_F(ColorPanelLayout, SlidersRunFrom0To255BesideTheirNumbers) {
    open();
    for (std::size_t i = 0; i < form.ColorScroll.size(); ++i) {
        EXPECT_EQ(form.ColorScroll[i].Min, 0);
        EXPECT_EQ(form.ColorScroll[i].Max, 255);
        EXPECT_EQ(form.ColorScroll[i].Top, form.ColorID[i].Top);
        EXPECT_LT(form.ColorID[i].Left + form.ColorID[i].Width, form.ColorScroll[i].Left);
    }
    EXPECT_EQ(form.ColorID[0].BackColor, toolkit::rgb(255, 0, 0));
    EXPECT_EQ(form.ColorID[1].BackColor, toolkit::rgb(0, 255, 0));
    EXPECT_EQ(form.ColorID[2].BackColor, toolkit::rgb(0, 0, 255));
}

TEST_F(ColorPanelLayout, ASmallFormHasRoomForIt) {
    writeOptions("Zoom=1\r\n");
    open();
    EXPECT_GE(form.ColorPic.Left, 0);
    EXPECT_LE(form.ColorPic.Left + form.ColorPic.Width, form.ScaleWidth());
}

} // namespace
} // namespace zev::test

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

TEST_F(ColorPanelLayout, StaysInTheMiddleOfAWindowThatChanges) {
    open();
    const float width = form.ColorPic.Width;
    for (const int wider : {-60, 200}) {
        toolkit::test::resizeWindow(wider, wider);
        EXPECT_EQ(form.ColorPic.Left, (form.ScaleWidth() - form.ColorPic.Width) / 2) << wider;
        EXPECT_EQ(form.ColorPic.Top, (form.ScaleHeight() - form.ColorPic.Height) / 2) << wider;
        EXPECT_EQ(form.ColorText.Font.Size, form.TextFontSize[1]) << wider;
    }
    EXPECT_EQ(form.ColorPic.Width, width);
    EXPECT_EQ(form.ActiveControl, &form.ColorScroll.front());
}

TEST_F(ColorPanelLayout, IsWholeInASmallWindow) {
    open();
    toolkit::test::resizeWindow(300 - static_cast<int>(form.Width / pixel),
                                200 - static_cast<int>(form.Height / pixel));
    EXPECT_GE(form.ColorPic.Left, 0);
    EXPECT_GE(form.ColorPic.Top, 0);
    EXPECT_LE(form.ColorPic.Left + form.ColorPic.Width, form.ScaleWidth());
    EXPECT_LE(form.ColorPic.Top + form.ColorPic.Height, form.ScaleHeight());
    EXPECT_LE(form.ColorBut[1].Top + form.ColorBut[1].Height, form.ColorPic.Height);
    EXPECT_LE(form.ColorBut[1].Left + form.ColorBut[1].Width, form.ColorPic.Width);
    EXPECT_GE(form.ColorBut[0].Font.Size, 7);
    // All of the explanation has room in its two lines.
    const auto lines = toolkit::wrappedLines(form.Lpresetcolors.Font, form.Lpresetcolors.Caption,
                                             form.Lpresetcolors.Width);
    EXPECT_LE(lines.size(), 2U);
}

} // namespace
} // namespace zev::test

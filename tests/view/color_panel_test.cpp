// Choosing one colour for all marks and texts.
#include <string>

#include "app/layouts.h"
#include "card/save.h"
#include "form/field_values.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "view/color_panel.h"

namespace zev::test {
namespace {

using toolkit::test::typeKey;

constexpr const char* custom = "Options>Color Management>Custom...";
constexpr const char* acbl = "Options>Color Management>ACBL Compliant";
constexpr auto brown = toolkit::rgb(128, 64, 0);

class ColorPanel : public FormTest {
  protected:
    ColorPanel() { writeLayout(fewFields()); }

    void startWith(const std::string& options = {}) {
        writeOptions("Zoom=5\r\n" + options);
        start();
    }
    void open() { EXPECT_TRUE(toolkit::test::chooseMenu(custom)); }
    void clickOn(const toolkit::Label& label) {
        const auto point = toolkit::test::pointOn(form.ColorPic, label);
        toolkit::test::click(point.x, point.y);
    }
    static void clickOn(const toolkit::Control& control) {
        const auto point = toolkit::test::pointOn(control);
        toolkit::test::click(point.x, point.y);
    }
    void takeSample(int index) {
        open();
        clickOn(form.ColorSample[index]);
        clickOn(form.ColorBut[0]);
    }
    void cancel() { clickOn(form.ColorBut[1]); }

    [[nodiscard]] std::string marked() const {
        std::string marks;
        for (const auto& sample : form.ColorSample)
            marks += sample.Caption.empty() ? "." : sample.Caption;
        return marks;
    }
    [[nodiscard]] std::string numbers() const {
        return form.ColorID[0].Caption + "," + form.ColorID[1].Caption + "," +
               form.ColorID[2].Caption;
    }
    [[nodiscard]] std::string storedScheme() const {
        const std::string file = dataFileContent("ZEV.Ini");
        const auto at = file.find("ColorScheme=");
        return at == std::string::npos ? "" : file.substr(at + 12, file.find(' ', at) - at - 12);
    }
    void expectColor(toolkit::Color color) const {
        EXPECT_EQ(form.ColorLabel.BackColor, color);
        EXPECT_EQ(form.ColorText.ForeColor, color);
        EXPECT_EQ(form.ColorScroll[0].Value, toolkit::redOf(color));
        EXPECT_EQ(form.ColorScroll[1].Value, toolkit::greenOf(color));
        EXPECT_EQ(form.ColorScroll[2].Value, toolkit::blueOf(color));
    }
    void expectFields(toolkit::Color color) const {
        for (int i = 1; i <= form.AMark.UBound(); ++i)
            EXPECT_EQ(form.AMark[i].ForeColor, color) << i;
        for (int i = 1; i <= form.AText.UBound(); ++i)
            EXPECT_EQ(form.AText[i].ForeColor, color) << i;
        for (int i = 1; i <= form.SText.UBound(); ++i)
            EXPECT_EQ(form.SText[i].ForeColor, color) << i;
    }
    void expectLayoutColors() const {
        EXPECT_EQ(form.AMark[1].ForeColor, toolkit::black);
        EXPECT_EQ(form.AMark[2].ForeColor, toolkit::rgb(195, 17, 25));
        EXPECT_EQ(form.AMark[3].ForeColor, toolkit::rgb(62, 153, 206));
        EXPECT_EQ(form.AText[2].ForeColor, toolkit::rgb(195, 17, 25));
    }
};

TEST_F(ColorPanel, StandsInPlaceOfTheCardInTheMiddleOfTheForm) {
    startWith();
    open();
    EXPECT_TRUE(toolkit::test::isShown(form.ColorPic));
    EXPECT_FALSE(toolkit::test::isShown(form.P1));
    EXPECT_EQ(form.ColorPic.Left, (form.ScaleWidth() - form.ColorPic.Width) / 2);
    EXPECT_EQ(form.ColorPic.Top, (form.ScaleHeight() - form.ColorPic.Height) / 2);
    EXPECT_EQ(form.ColorPic.CornerRadius, 4);
    EXPECT_EQ(
        form.Lpresetcolors.Caption,
        "Click a pre-defined text color or use sliders below to select the pen color for your "
        "marks and text");
    EXPECT_EQ(form.ColorText.Caption, "Sample Text");
    EXPECT_EQ(form.ColorText.Font.Size, form.TextFontSize[1]);
    EXPECT_TRUE(form.mcolorscheme[1].Checked);
    EXPECT_FALSE(form.mcolorscheme[0].Checked);
    cancel();
    EXPECT_TRUE(toolkit::test::isShown(form.P1));
    EXPECT_FALSE(toolkit::test::isShown(form.ColorPic));
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.P1));
}

TEST_F(ColorPanel, SixPresetsStandInARow) {
    startWith();
    EXPECT_EQ(form.ColorSample.UBound(), 0);
    open();
    ASSERT_EQ(form.ColorSample.UBound(), 5);
    const toolkit::Color presets[] = {toolkit::rgb(0, 0, 0),   toolkit::rgb(0, 0, 128),
                                      toolkit::rgb(0, 128, 0), toolkit::rgb(128, 64, 255),
                                      toolkit::rgb(160, 0, 0), toolkit::rgb(128, 64, 0)};
    for (int i = 0; i <= 5; ++i) {
        EXPECT_EQ(form.ColorSample[i].BackColor, presets[i]) << i;
        EXPECT_TRUE(form.ColorSample[i].Visible) << i;
        if (i == 0) continue;
        EXPECT_EQ(form.ColorSample[i].Left,
                  form.ColorSample[i - 1].Left + form.ColorSample[i - 1].Width + 60);
    }
}

TEST_F(ColorPanel, OpeningItAgainLoadsNoFurtherPresets) {
    startWith();
    open();
    const float left = form.ColorSample[5].Left;
    form.ColorSample[4].Tag = "the same one";
    cancel();
    form.Trace.clear();
    open();
    EXPECT_EQ(form.ColorSample.UBound(), 5);
    EXPECT_EQ(form.ColorSample[5].Left, left);
    EXPECT_EQ(form.ColorSample[4].Tag, "the same one");
    EXPECT_FALSE(traced("MakeObjRounded"));
}

TEST_F(ColorPanel, ShowsThePresetsAsTheyAre) {
    startWith();
    open();
    const toolkit::Bitmap shown = toolkit::test::grabWindow();
    const auto& sample = form.ColorSample[5];
    const auto pixels = [this](float twips) {
        return static_cast<int>(twips) / form.TwipsPerPixel;
    };
    EXPECT_EQ(shown.pixel(pixels(form.ColorPic.Left + sample.Left) + 4,
                          pixels(form.FrameHeight + form.ColorPic.Top + sample.Top) + 4),
              brown);
}

TEST_F(ColorPanel, OpensWithTheColourOfTheFirstTextField) {
    writeLayout(replaced(fewFields(), "1,100,300,200,20,1,", "1,100,300,200,20,2,"));
    startWith();
    open();
    expectColor(toolkit::rgb(195, 17, 25));
    EXPECT_EQ(numbers(), "195,17,25");
    EXPECT_EQ(marked(), "......");
}

TEST_F(ColorPanel, AClickedPresetIsChosenAndMarked) {
    startWith();
    open();
    EXPECT_EQ(marked(), "X.....");
    clickOn(form.ColorSample[3]);
    expectColor(toolkit::rgb(128, 64, 255));
    EXPECT_EQ(numbers(), "128,64,255");
    EXPECT_EQ(marked(), "...X..");
    EXPECT_TRUE(traced("ColorSample_Click"));
    EXPECT_TRUE(traced("ColorSampleMark"));
}

TEST_F(ColorPanel, AClickedNumberChoosesItsPrimary) {
    startWith();
    open();
    clickOn(form.ColorID[0]);
    expectColor(toolkit::rgb(255, 0, 0));
    EXPECT_EQ(numbers(), "255,0,0");
    clickOn(form.ColorID[2]);
    expectColor(toolkit::rgb(0, 0, 255));
    EXPECT_TRUE(traced("ColorID_Click"));
}

TEST_F(ColorPanel, ArrowPageAndHomeKeysMoveASlider) {
    startWith();
    open();
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.ColorScroll[0]));
    typeKey(toolkit::key::right);
    typeKey(toolkit::key::right);
    expectColor(toolkit::rgb(2, 0, 0));
    EXPECT_EQ(numbers(), "2,0,0");
    EXPECT_EQ(marked(), "......");
    typeKey(toolkit::key::tab);
    typeKey(toolkit::key::end);
    expectColor(toolkit::rgb(2, 255, 0));
    typeKey(toolkit::key::home);
    expectColor(toolkit::rgb(2, 0, 0));
    EXPECT_EQ(form.P1.Left, 0);
}

TEST_F(ColorPanel, SlidersStayInTheirRange) {
    startWith();
    open();
    typeKey(toolkit::key::left);
    EXPECT_EQ(form.ColorScroll[0].Value, 0);
    typeKey(toolkit::key::end);
    typeKey(toolkit::key::right);
    EXPECT_EQ(form.ColorScroll[0].Value, 255);
}

TEST_F(ColorPanel, ADraggedSliderTakesTheColourAlong) {
    startWith();
    open();
    const toolkit::ScrollBar& bar = form.ColorScroll[1];
    const auto from = toolkit::test::pointIn(bar, 75, bar.Height / 2);
    const auto to = toolkit::test::pointIn(bar, bar.Width - 15, bar.Height / 2);
    toolkit::test::moveMouse(from.x, from.y);
    toolkit::test::pressMouse(from.x, from.y);
    toolkit::test::moveMouse((from.x + to.x) / 2, to.y, toolkit::button::left);
    EXPECT_GT(form.ColorScroll[1].Value, 60);
    EXPECT_LT(form.ColorScroll[1].Value, 200);
    toolkit::test::moveMouse(to.x, to.y, toolkit::button::left);
    expectColor(toolkit::rgb(0, 255, 0));
    toolkit::test::releaseMouse(to.x, to.y);
}

TEST_F(ColorPanel, OkDressesEveryFieldAndRemembersTheColour) {
    startWith();
    form.AText[1].Caption = "2^h";
    takeSample(5);
    EXPECT_EQ(form.ColorScheme, static_cast<int>(brown));
    expectFields(brown);
    EXPECT_EQ(storedScheme(), std::to_string(brown));
    EXPECT_TRUE(form.mcolorscheme[1].Checked);
    EXPECT_TRUE(traced("ColorBut_Click"));
    EXPECT_FALSE(form.ColorPic.Visible);
    EXPECT_FALSE(form.CardModified);
}

TEST_F(ColorPanel, TheColourIsThereAgainAtTheNextStart) {
    startWith("ColorScheme=" + std::to_string(brown) + "\r\n");
    EXPECT_FALSE(form.ColorPic.Visible);
    expectFields(brown);
    clickMark(1);
    const toolkit::Bitmap card = toolkit::test::grabCard();
    bool found = false;
    for (int y = 0; y < card.height() && !found; ++y)
        for (int x = 0; x < card.width() && !found; ++x) found = card.pixel(x, y) == brown;
    EXPECT_TRUE(found);
}

TEST_F(ColorPanel, AStoredZeroShowsTheLayoutsColours) {
    startWith("ColorScheme=0\r\n");
    expectLayoutColors();
    EXPECT_EQ(ColorSchemeIndex(form), 0);
}

TEST_F(ColorPanel, AStoredValueHasRedInItsLowByte) {
    startWith("ColorScheme=255\r\n");
    expectFields(toolkit::rgb(255, 0, 0));
}

TEST_F(ColorPanel, PureBlackIsKeptAsOneAndMarkedAgain) {
    startWith();
    takeSample(0);
    EXPECT_EQ(form.ColorScheme, 1);
    EXPECT_EQ(storedScheme(), "1");
    expectFields(1);
    open();
    EXPECT_EQ(marked(), "X.....");
    EXPECT_EQ(numbers(), "1,0,0");
}

TEST_F(ColorPanel, CancelGoesBackToTheAcblColours) {
    startWith();
    open();
    clickOn(form.ColorSample[2]);
    // What stands in other colours meanwhile gets the scheme's again.
    form.AMark[1].ForeColor = form.AText[1].ForeColor = toolkit::rgb(1, 2, 3);
    cancel();
    EXPECT_EQ(form.ColorScheme, 0);
    EXPECT_TRUE(form.mcolorscheme[0].Checked);
    EXPECT_FALSE(form.mcolorscheme[1].Checked);
    expectLayoutColors();
    EXPECT_EQ(storedScheme(), "0");
    EXPECT_TRUE(traced("0 mColorScheme_Click "));
}

TEST_F(ColorPanel, CancelGoesBackToTheCustomColour) {
    startWith();
    takeSample(5);
    open();
    clickOn(form.ColorSample[2]);
    typeKey(toolkit::key::escape);
    EXPECT_FALSE(form.ColorPic.Visible);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_TRUE(form.mcolorscheme[1].Checked);
    EXPECT_EQ(form.ColorScheme, static_cast<int>(brown));
    expectFields(brown);
    EXPECT_TRUE(toolkit::test::chooseMenu("File>New"));
}

TEST_F(ColorPanel, AcblGivesEachFieldItsOwnColourBack) {
    startWith();
    takeSample(5);
    EXPECT_TRUE(toolkit::test::chooseMenu(acbl));
    EXPECT_EQ(form.AText[1].ForeColor, toolkit::black);
    expectLayoutColors();
    EXPECT_EQ(storedScheme(), "0");
}

TEST_F(ColorPanel, AcblGivesAFieldBackTheBlueThatThePlayerGaveIt) {
    startWith();
    typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    ASSERT_TRUE(form.MShowShapes.Checked);
    const auto makeBlue = [](std::span<const toolkit::PopupRow> rows) { rows[2].Click(); };
    for (const toolkit::Label* label : {&form.AText[1], &form.AMark[2]}) {
        answerPopup(makeBlue);
        const CardPoint at = middleOf(*label);
        toolkit::test::click(at.x, at.y, toolkit::button::right);
    }
    ASSERT_EQ(popups, 2);
    typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    ASSERT_FALSE(form.MShowShapes.Checked);
    EXPECT_EQ(form.AText[1].ForeColor, form.ColorBlue);
    takeSample(5);
    expectFields(brown);
    EXPECT_TRUE(toolkit::test::chooseMenu(acbl));
    EXPECT_EQ(form.AText[1].ForeColor, form.ColorBlue);
    EXPECT_EQ(form.AMark[2].ForeColor, form.ColorBlue);
    EXPECT_EQ(form.AMark[1].ForeColor, toolkit::black);
    EXPECT_EQ(form.AText[2].ForeColor, toolkit::rgb(195, 17, 25));
}

TEST_F(ColorPanel, NothingElseCanBeReached) {
    startWith();
    open();
    for (const char* path : {"File>New", "File>Save", custom, acbl})
        EXPECT_FALSE(toolkit::test::chooseMenu(path)) << path;
    typeKey('S', toolkit::shift::ctrl);
    typeKey(toolkit::key::f1);
    EXPECT_FALSE(traced("MSave_Click"));
    EXPECT_FALSE(form.THelp.Visible);
}

TEST_F(ColorPanel, EnterTakesTheColourFromASlider) {
    startWith();
    open();
    typeKey(toolkit::key::right);
    typeKey(toolkit::key::right);
    typeKey(toolkit::key::enter);
    EXPECT_FALSE(form.ColorPic.Visible);
    EXPECT_EQ(form.ColorScheme, 2);
}

TEST_F(ColorPanel, KeepsTheCustomColourThroughARebuild) {
    startWith();
    takeSample(5);
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Font size>Larger"));
    expectFields(brown);
    EXPECT_FALSE(form.ColorPic.Visible);
}

TEST_F(ColorPanel, AColourChangeIsOneRepaintOfTheCard) {
    startWith();
    clickMark(1);
    clickMark(2);
    open();
    clickOn(form.ColorSample[5]);
    toolkit::test::settle();
    const auto before = toolkit::test::cardPaints();
    clickOn(form.ColorBut[0]);
    toolkit::test::settle();
    EXPECT_EQ(toolkit::test::cardPaints().paints - before.paints, 1);
}

TEST_F(ColorPanel, FailuresAreTraced) {
    startWith();
    open();
    for (const char* name : {"ColorSample_Click", "ColorID_Click"})
        announceError("Error in " + std::string(name) + ": #");
    ColorSample_Click(form, 9);
    EXPECT_TRUE(
        traced("Error in ColorSample_Click: #340, Control array element '9' doesn't exist"));
    ColorID_Click(form, 9);
    EXPECT_TRUE(form.ColorPic.Visible);
}

} // namespace
} // namespace zev::test

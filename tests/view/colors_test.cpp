#include "app/layouts.h"
#include "form/field_values.h"
#include "layout/write_layout.h"
#include "view/color_panel.h"
#include "view/colors.h"

namespace zev::test {
namespace {

constexpr auto violet = toolkit::rgb(120, 0, 120);

class Colors : public FormTest {
  protected:
    void startWithFields() {
        writeLayout(fewFields());
        start();
    }
    /// Chooses the colour as the options do.
    void useViolet() {
        form.ColorScheme = static_cast<std::int32_t>(violet);
        form.Initializing = true;
        mColorScheme_Click(form, 1);
        form.Initializing = false;
    }
};

TEST_F(Colors, OneSchemeColourPaintsMarksTextsAndSymbols) {
    startWithFields();
    form.SText.Load(1);
    form.SuitColors = {0, toolkit::rgb(255, 0, 0)};
    useViolet();
    for (int i = 1; i <= 4; ++i) EXPECT_EQ(form.AMark[i].ForeColor, violet) << i;
    for (int i = 1; i <= 2; ++i) EXPECT_EQ(form.AText[i].ForeColor, violet) << i;
    EXPECT_EQ(form.SText[1].ForeColor, violet);
    EXPECT_EQ(ColorSchemeIndex(form), 1);
}

TEST_F(Colors, TheFirstSchemeGivesEachFieldItsOwnColourBack) {
    startWithFields();
    useViolet();
    mColorScheme_Click(form, 0);
    EXPECT_EQ(form.AMark[1].ForeColor, toolkit::black);
    EXPECT_EQ(form.AMark[2].ForeColor, form.ColorRed);
    EXPECT_EQ(form.AMark[3].ForeColor, form.ColorBlue);
    EXPECT_EQ(form.AText[2].ForeColor, form.ColorRed);
    EXPECT_EQ(form.ColorScheme, 0);
    EXPECT_TRUE(form.mcolorscheme[0].Checked);
    EXPECT_FALSE(form.mcolorscheme[1].Checked);
}

TEST_F(Colors, AChosenSchemeIsWrittenToTheOptions) {
    startWithFields();
    useViolet();
    mColorScheme_Click(form, 0);
    EXPECT_NE(dataFileContent("ZEV.Ini").find("ColorScheme=0 "), std::string::npos);
    EXPECT_TRUE(traced("0 mColorScheme_Click "));
    EXPECT_TRUE(traced("SetGlobalColors"));
}

TEST_F(Colors, WhileTheProgramInitializesNothingIsWritten) {
    startWithFields();
    form.Initializing = true;
    mColorScheme_Click(form, 0);
    EXPECT_EQ(dataFileContent("ZEV.Ini"), "Zoom=5\r\n");
}

TEST_F(Colors, TheFieldsOwnColoursStayRememberedUnderAScheme) {
    startWithFields();
    useViolet();
    EXPECT_EQ(form.MarkColors[2], form.ColorRed);
    EXPECT_EQ(form.TextColors[2], form.ColorRed);
}

TEST_F(Colors, AnIndexOutsideTheMenuIsTraced) {
    startWithFields();
    announceError("Error in mColorScheme_Click: #");
    mColorScheme_Click(form, 5);
    EXPECT_EQ(form.AMark[2].ForeColor, form.ColorRed);
}

} // namespace
} // namespace zev::test

#include <cmath>
#include <set>

#include "form/write_options.h"
#include "text/edit_test.h"
#include "text/fit_text.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class FitTexts : public EditTest {
  protected:
    /// A text at the full size in the regular font, the field as wide as it takes plus `extra`.
    void makeFieldAsWideAs(std::string_view text, float extra) {
        toolkit::Label& label = form.AText[1];
        label.Caption = text;
        toolkit::FontSpec font = label.Font;
        font.Name = form.TextFontName;
        font.Size = form.TextFontSize[1];
        label.Width = toolkit::textWidth(font, std::string(text) + ' ') + extra;
    }
    void fit(int field) { FitText(form, form.CText, field); }
};

constexpr auto longText = "a text that is far too long for any field of the card at whatever size";

TEST_F(FitTexts, EmptyFieldHasTheRegularFontAtTheFullSize) {
    startSmall();
    form.AText[1].Font = {.Name = form.NarrowFontName, .Size = 5};
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Name, form.TextFontName);
    EXPECT_EQ(form.AText[1].Font.Size, form.TextFontSize[1]);
    EXPECT_NEAR(form.TextFontSize[1], 11, 0.01);
}

TEST_F(FitTexts, TextThatFitsExactlyWithABlankKeepsTheRegularFont) {
    startSmall();
    makeFieldAsWideAs("Notrump", 0);
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Name, form.TextFontName);
    makeFieldAsWideAs("Notrump", -1);
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Name, form.NarrowFontName);
    EXPECT_EQ(form.AText[1].Font.Size, form.TextFontSize[1]);
}

TEST_F(FitTexts, DoubledAmpersandsCountTwice) {
    startSmall();
    makeFieldAsWideAs("a&b", 0);
    form.AText[1].Caption = "a&&b";
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Name, form.NarrowFontName);
}

TEST_F(FitTexts, BoldCanPushATextOverTheLimit) {
    startSmall();
    makeFieldAsWideAs("Notrump", 1);
    fit(1);
    ASSERT_EQ(form.AText[1].Font.Name, form.TextFontName);
    form.AText[1].Font.Bold = true;
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Name, form.NarrowFontName);
    EXPECT_TRUE(form.AText[1].Font.Bold);
}

TEST_F(FitTexts, LargerFieldShrinksToTheSameFloor) {
    startSmall();
    form.AText[1].Width = 600;
    form.AText[1].Caption = longText;
    form.TextSizes[1] = 2;
    fit(1);
    const float floor = form.TextFontSize[1] / 2;
    EXPECT_LE(form.AText[1].Font.Size, floor);
    EXPECT_GT(form.AText[1].Font.Size, floor - 0.5F);
    form.AText[1].Caption = "x";
    form.AText[1].Width = 6000;
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Size, form.TextFontSize[2]);
    form.TextSizes[1] = 3;
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Size, form.TextFontSize[3]);
    form.TextSizes[1] = 7;
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Size, form.TextFontSize[1]);
}

TEST_F(FitTexts, WithoutANarrowFontTheSizesStillGoDown) {
    startSmall();
    form.NarrowFontName = form.TextFontName;
    makeFieldAsWideAs("Notrump", -1);
    fit(1);
    EXPECT_EQ(form.AText[1].Font.Name, form.TextFontName);
    EXPECT_EQ(form.AText[1].Font.Size, form.TextFontSize[1] - 0.5F);
}

TEST_F(FitTexts, StepsAreHalfPointsAtEveryZoom) {
    writeOptions("Zoom=4\r\n");
    startSmall();
    ASSERT_LT(form.TextFontSize[1], 10.9F);
    form.AText[1].Width = 900;
    form.AText[1].Caption = "Notrump overcall";
    fit(1);
    const float steps = (form.TextFontSize[1] - form.AText[1].Font.Size) / 0.5F;
    EXPECT_GT(steps, 1);
    EXPECT_NEAR(steps, std::round(steps), 0.001F);
}

TEST_F(FitTexts, AZoomChoosesTheStepsAnew) {
    startSmall();
    clickText(4);
    typeText("Notrump overcall");
    typeKey(toolkit::key::escape);
    std::set<float> stepsSeen;
    for (const char* zoom : {"", "View>Zoom In (Bigger)                   Ctrl +",
                             "View>Zoom Out (Smaller)               Ctrl  -",
                             "View>Zoom Out (Smaller)               Ctrl  -",
                             "View>Zoom Out (Smaller)               Ctrl  -"}) {
        if (*zoom != '\0') {
            ASSERT_TRUE(chooseMenu(zoom));
        }
        const toolkit::Label& label = form.AText[4];
        ASSERT_EQ(label.Tag, "Notrump overcall");
        const float full = form.TextFontSize[1];
        const float floor = full / 2;
        const float steps = (full - label.Font.Size) / 0.5F;
        EXPECT_NEAR(steps, std::round(steps), 0.001F) << zoom;
        const bool fits = widthIn(4, label.Tag + " ") <= label.Width;
        EXPECT_TRUE(fits || label.Font.Size <= floor) << zoom;
        toolkit::FontSpec larger = label.Font;
        larger.Size += 0.5F;
        EXPECT_GT(toolkit::textWidth(larger, label.Tag + " "), label.Width) << zoom;
        EXPECT_EQ(label.Font.Name, form.NarrowFontName);
        stepsSeen.insert(std::round(steps));
    }
    EXPECT_GT(stepsSeen.size(), 1U);
}

TEST_F(FitTexts, MeasuringFontStaysAndTheBoxIsUntouched) {
    startSmall();
    form.AText[1].Caption = longText;
    const toolkit::FontSpec box = form.CText.Font;
    fit(1);
    EXPECT_EQ(form.Testtext.Font, form.AText[1].Font);
    EXPECT_EQ(form.CText.Font, box);
}

TEST_F(FitTexts, ChosenFontReallyFits) {
    startSmall();
    form.AText[1].Caption = "Notrump overcall, systems on, then transfers and so on";
    form.AText[1].Width = 4000;
    fit(1);
    EXPECT_LE(widthIn(1, form.AText[1].Caption + " "), 4000);
    toolkit::FontSpec larger = form.AText[1].Font;
    larger.Size += 0.5F;
    EXPECT_GT(toolkit::textWidth(larger, form.AText[1].Caption + " "), 4000);
}

TEST_F(FitTexts, FieldThatDoesNotExistIsTraced) {
    startSmall();
    announceError("Error in FitText");
    fit(999);
    EXPECT_TRUE(
        traced("Error in FitText: 340, Control array element '999' doesn't exist, index=999"));
}

} // namespace
} // namespace zev::test

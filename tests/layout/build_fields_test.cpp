#include "app/layouts.h"
#include "app/second_run.h"
#include "form/write_options.h"
#include "layout/save_layout.h"
#include "layout/write_layout.h"
#include "toolkit/window/screen.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

constexpr std::string_view someOffsets = "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,0\r\n";

class BuildFields : public FormTest {
  protected:
    /// Starts on a screen of 12 twips per pixel with a layout written at 15, which the player
    /// keeps.
    void startOnOtherScreen(const std::string& layout) {
        toolkit::overrideScreen({.twipsPerPixel = 12, .width = 24000, .height = 24000});
        writeLayout(layout);
        answer(toolkit::Answer::No);
        start();
    }
};

TEST_F(BuildFields, ALayoutOfAnotherScreenIsCorrectedByWhatTheFontsDifferIn) {
    startOnOtherScreen(replaced(fewFields(), zeroOffsets, someOffsets));
    // Check, size 1: the file's offsets are its first two, 1 and 2 pixels.
    const auto& own = form.FontOffsets[1][1];
    EXPECT_FLOAT_EQ(form.AMark[1].Left, 100 * 12 + 1 * 12 * 12.0F / 15 - own[1]);
    EXPECT_FLOAT_EQ(form.AMark[1].Top, 100 * 12 + 2 * 12 * 12.0F / 15 - own[2]);
    // Circle, size 1: values 7 and 8. Text, size 3: values 17 and 18.
    EXPECT_FLOAT_EQ(form.AMark[4].Left, 400 * 12 + 7 * 12 * 12.0F / 15 - form.FontOffsets[2][1][1]);
    EXPECT_FLOAT_EQ(form.AText[2].Left,
                    100 * 12 + 17 * 12 * 12.0F / 15 - form.FontOffsets[3][3][1]);
    EXPECT_FLOAT_EQ(form.AText[2].Top, 400 * 12 + 18 * 12 * 12.0F / 15 - form.FontOffsets[3][3][2]);
}

TEST_F(BuildFields, ASmallCircleOnTheUsualScreenIsCorrectedAsTheMediumOneThatIsDrawn) {
    writeLayout(replaced(writtenAt(fewFields(), "12,19200"), zeroOffsets, someOffsets));
    answer(toolkit::Answer::No);
    start();
    ASSERT_EQ(form.MarkSizes[4], 1);
    EXPECT_EQ(form.AMark[4].Font.Size, form.MarkFontSize[2]);
    // Circle, size 2: values 9 and 10.
    const auto& own = form.FontOffsets[2][2];
    EXPECT_FLOAT_EQ(form.AMark[4].Left, 400 * 15 + 9 * 15 * 15.0F / 12 - own[1]);
    EXPECT_FLOAT_EQ(form.AMark[4].Top, 100 * 15 + 10 * 15 * 15.0F / 12 - own[2]);
}

TEST_F(BuildFields, TheLayoutOfAnotherScreenIsWrittenAnewForThisOne) {
    startOnOtherScreen(fewFields());
    EXPECT_EQ(form.OriginalTwips, 15);
    EXPECT_NE(dataFileContent("Definitions.Ini").find("12,24000"), std::string::npos);
    EXPECT_TRUE(traced("MSaveShapes_Click"));
}

TEST_F(BuildFields, AConvertedLayoutIsTakenWithoutAQuestionTheNextTime) {
    startOnOtherScreen(fewFields());
    const float left = form.AMark[1].Left;
    const SecondRun next(window);
    EXPECT_EQ(next.form.OriginalTwips, 12);
    EXPECT_NEAR(next.form.AMark[1].Left, left, 12);
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(BuildFields, AConversionAtAnotherZoomPutsTheZoomBack) {
    writeOptions("Zoom=3\r\n");
    startOnOtherScreen(fewFields());
    EXPECT_EQ(form.ZoomLevel, 3);
    EXPECT_EQ(form.P1.Width, 799 * 12);
    EXPECT_TRUE(traced("SetImageSize 0.5, False, False"));
}

TEST_F(BuildFields, TwipsThatCannotBeAreTracedAndTheProgramGoesOn) {
    announceError("Error in Initialize, step 1500");
    writeLayout(writtenAt(fewFields(), "3,19200"));
    answer(toolkit::Answer::No);
    start();
    EXPECT_TRUE(traced("Error in Initialize, step 1500 (check for zero divide or overflow): "
                       "twips=15; origtwips=3"));
    EXPECT_EQ(form.OriginalTwips, 15);
    EXPECT_EQ(form.AMark[1].Left, 1500);
}

TEST_F(BuildFields, AWideScreenInTheLayoutIsNoFailure) {
    writeLayout(writtenAt(fewFields(), "15,115200"));
    start();
    EXPECT_EQ(form.AMark.UBound(), 4);
}

TEST_F(BuildFields, ALayoutWithoutATabTableIsAccepted) {
    writeLayout(fewFields());
    start();
    EXPECT_EQ(form.TabTable.UBound(), 0);
}

TEST_F(BuildFields, TheTabTableIsTaken) {
    writeLayout(smallLayout({{}}, {{}}, "1,1001\r\n1001,1\r\n", 1001));
    start();
    EXPECT_EQ(form.TabTable[1], 1001);
    EXPECT_EQ(form.TabTable[1001], 1);
}

TEST_F(BuildFields, TheSymbolTemplateIsAsWideAsAHeartInTheSuitFontAndAsHighAsTheTextTemplate) {
    writeLayout(fewFields());
    start();
    EXPECT_EQ(form.SText.UBound(), 0);
    EXPECT_EQ(form.SText[0].Font.Name, "Symbol");
    EXPECT_EQ(form.SText[0].Font.Size, 11);
    EXPECT_EQ(form.SText[0].Width, toolkit::textWidth(form.SText[0].Font, "\xA9"));
    form.AText[0].Height = 345;
    RebuildScreenImage(form);
    EXPECT_EQ(form.SText[0].Height, 345);
}

TEST_F(BuildFields, TheMeasuringFontBeginsAsTheSuits) {
    writeLayout(fewFields());
    start();
    form.Testtext.Font = {.Name = "Arial Narrow", .Size = 30, .Bold = true};
    form.Slots.initialize();
    EXPECT_EQ(form.Testtext.Font, (toolkit::FontSpec{.Name = "Symbol", .Size = 11}));
}

TEST_F(BuildFields, TheTraceTellsThatTheLayoutIsOpened) {
    start();
    EXPECT_TRUE(
        traced("Initialize step 1480: about to open Definitions.Ini in " + dataFolder.string()));
}

TEST_F(BuildFields, AConversionUnderASchemeKeepsTheFieldsOwnColours) {
    writeOptions("Zoom=5\r\nColorScheme=255\r\n");
    startOnOtherScreen(fewFields());
    const SecondRun next(window);
    EXPECT_EQ(next.form.MarkColors[1], toolkit::black);
    EXPECT_EQ(next.form.MarkColors[2], next.form.ColorRed);
    EXPECT_EQ(next.form.MarkColors[3], next.form.ColorBlue);
    EXPECT_EQ(next.form.TextColors[2], next.form.ColorRed);
}

} // namespace
} // namespace zev::test

#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/window/screen.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

constexpr std::string_view checkText = "\xFC";
constexpr std::string_view squareText = "n";
constexpr std::string_view circleText = "\xA1";

class MarkFields : public FormTest {
  protected:
    void startWith(const std::string& layout) {
        writeLayout(layout);
        start();
    }
    static std::string oneMark(int symbol, int size = 1) {
        return smallLayout({{.left = 100, .top = 100, .size = size, .symbol = symbol}}, {});
    }
};

TEST_F(MarkFields, StandExactlyWhereTheLayoutSaysOnTheScreenItWasMadeFor) {
    // Its fonts and offsets are another machine's, which must not matter.
    startWith(replaced(fewFields(), zeroOffsets, "7,7,7,7,7,7,7,7,7,7,7,7,7,7,7,7,7,7,0\r\n"));
    EXPECT_EQ(form.AMark[1].Left, 100 * pixel);
    EXPECT_EQ(form.AMark[1].Top, 100 * pixel);
    EXPECT_EQ(form.AMark[4].Left, 400 * pixel);
}

TEST_F(MarkFields, AreAsLargeAsTheirCharacterWhateverTheLayoutSays) {
    startWith(fewFields());
    const auto& mark = form.AMark[1];
    EXPECT_EQ(mark.Width, toolkit::textWidth(mark.Font, checkText));
    EXPECT_EQ(mark.Height, toolkit::textHeight(mark.Font));
}

TEST_F(MarkFields, TakeTheMarkFontInTheSizeOfTheirRecord) {
    startWith(fewFields());
    EXPECT_EQ(form.AMark[1].Font, (toolkit::FontSpec{"Wingdings", 18, true, false}));
    EXPECT_EQ(form.AMark[2].Font, (toolkit::FontSpec{"Wingdings", 22, true, false}));
    EXPECT_EQ(form.AMark[3].Font, (toolkit::FontSpec{"Wingdings", 30, true, false}));
    EXPECT_EQ(form.MarkSizes, (std::vector<std::int16_t>{0, 1, 2, 3, 1}));
}

TEST_F(MarkFields, ASmallCircleIsDrawnAtTheMediumSizeOnTheUsualScreenAndStaysSmall) {
    startWith(fewFields());
    EXPECT_EQ(form.AMark[4].Font, (toolkit::FontSpec{"Wingdings", 22, false, false}));
    EXPECT_EQ(form.MarkSizes[4], 1);
}

TEST_F(MarkFields, ASmallCircleIsSmallOnOtherScreens) {
    toolkit::overrideScreen({.twipsPerPixel = 12, .width = 24000, .height = 24000});
    startWith(writtenAt(fewFields(), "12,19200"));
    EXPECT_EQ(form.AMark[4].Font.Size, 18);
}

TEST_F(MarkFields, ALargeCircleOfTheUsualScreenIsNotTheLargeMarkOfTheStamp) {
    startWith(oneMark(161, 3));
    EXPECT_EQ(form.AMark[1].Font.Size, 22);
    EXPECT_EQ(form.FirstLargeMark, 0);
    EXPECT_EQ(form.LargeMarkBottom, 0);
}

TEST_F(MarkFields, AnUnknownSizeIsTakenAsPoints) {
    startWith(oneMark(252, 40));
    EXPECT_EQ(form.AMark[1].Font.Size, 40);
    EXPECT_EQ(form.MarkSizes[1], 40);
}

TEST_F(MarkFields, ASizeOfNothingIsOnePoint) {
    startWith(oneMark(252, -3));
    EXPECT_EQ(form.AMark[1].Font.Size, 1);
}

TEST_F(MarkFields, TheFirstLargeMarkTellsWhereTheStampGoes) {
    startWith(fewFields());
    EXPECT_EQ(form.FirstLargeMark, 3);
    EXPECT_EQ(form.LargeMarkBottom, form.AMark[3].Top + form.AMark[3].Height - 8 * pixel);
}

TEST_F(MarkFields, TheLargeMarkIsFoundAnewWhenTheScreenIsRebuilt) {
    startWith(fewFields());
    writeLayout(oneMark(252));
    RebuildScreenImage(form);
    EXPECT_EQ(form.FirstLargeMark, 0);
    EXPECT_EQ(form.LargeMarkBottom, 0);
}

TEST_F(MarkFields, ThoseThatTheLayoutNoLongerHasAreGoneAfterARebuild) {
    startWith(fewFields());
    writeLayout(oneMark(252));
    RebuildScreenImage(form);
    EXPECT_EQ(form.AMark.UBound(), 1);
    EXPECT_EQ(form.MarkSizes.size(), 2U);
    EXPECT_EQ(form.MarkDefaultColors.size(), 2U);
    EXPECT_EQ(form.MarkColors.size(), 2U);
}

TEST_F(MarkFields, ARecordOutOfSequenceLeavesAHoleAndMovesNoNumber) {
    startWith(replaced(fewFields(), "2,200,", "1,200,"));
    ASSERT_EQ(form.AMark.UBound(), 4);
    EXPECT_EQ(form.AMark[2].Caption, "");
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_EQ(form.AMark[3].Left, 300 * pixel);
    EXPECT_EQ(form.AMark[3].Caption, checkText);
    // The field that the record names gets its size.
    EXPECT_EQ(form.MarkSizes[1], 2);
    EXPECT_EQ(form.AMark[1].Left, 100 * pixel);
}

TEST_F(MarkFields, AHoleIsWrittenAndReadAsAMarkWithoutACharacter) {
    startWith(oneMark(0));
    EXPECT_EQ(form.AMark[1].Caption, "");
    EXPECT_EQ(form.AMark[1].Left, 100 * pixel);
}

TEST_F(MarkFields, HaveTheColoursOfTheLayout) {
    startWith(replaced(fewFields(), ",1,1,252,0", ",9,1,252,0"));
    EXPECT_EQ(form.AMark[1].ForeColor, toolkit::black);
    EXPECT_EQ(form.AMark[2].ForeColor, toolkit::rgb(195, 17, 25));
    EXPECT_EQ(form.AMark[3].ForeColor, toolkit::rgb(62, 153, 206));
    EXPECT_EQ(form.MarkDefaultColors[3], toolkit::rgb(62, 153, 206));
    EXPECT_EQ(form.MarkColors, form.MarkDefaultColors);
}

TEST_F(MarkFields, SymbolsOfOldLayoutsAreRepaired) {
    startWith(smallLayout({{.symbol = 80}, {.symbol = 153}, {.symbol = 110}}, {}));
    EXPECT_EQ(form.AMark[1].Caption, checkText);
    EXPECT_EQ(form.AMark[2].Caption, circleText);
    EXPECT_EQ(form.AMark[3].Caption, checkText);
    EXPECT_TRUE(form.AMark[3].Font.Bold);
    EXPECT_FALSE(form.AMark[2].Font.Bold);
}

TEST_F(MarkFields, ChecksAreFilledSquaresWhereTheOptionSaysSo) {
    writeOptions("Zoom=5\r\nFillincheckmarks=1\r\n");
    startWith(oneMark(252));
    EXPECT_EQ(form.AMark[1].Caption, squareText);
    EXPECT_FALSE(form.AMark[1].Font.Bold);
}

TEST_F(MarkFields, RecordsOfOldLayoutsHaveEightValues) {
    std::string layout = replaced(oneMark(252), "2.0.0", "1.0.180");
    startWith(replaced(layout, "252,0\r\n", "252\r\n"));
    EXPECT_EQ(form.AMark.UBound(), 1);
    EXPECT_EQ(form.LayoutVersion, "1.0.180");
}

TEST_F(MarkFields, ALayoutWithoutAVersionHasEightValuesWhateverWasReadBeforeIt) {
    writeOptions("'Program version: 2.0.0\r\nZoom=5\r\n");
    std::string layout = replaced(oneMark(252), "' Program version: 2.0.0\r\n", "");
    startWith(replaced(layout, "252,0\r\n", "252\r\n"));
    EXPECT_EQ(form.AMark.UBound(), 1);
    EXPECT_EQ(form.LayoutVersion, "");
}

TEST_F(MarkFields, ASetMarkWinsOverATextAreaUnderIt) {
    startWith(smallLayout({{.left = 100, .top = 100}},
                          {{.left = 90, .top = 90, .width = 200, .height = 40}}));
    form.AMark[1].Visible = true;
    clickMark(1);
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_FALSE(form.CText.Visible);
}

TEST_F(MarkFields, AreUnsetOnABlankCard) {
    startWith(fewFields());
    for (int i = 1; i <= 4; ++i) EXPECT_FALSE(form.AMark[i].Visible) << i;
}

} // namespace
} // namespace zev::test

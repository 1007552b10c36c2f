#include <algorithm>

#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/bitmap_file.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

class TextFields : public FormTest {
  protected:
    void startWith(const std::string& layout) {
        writeLayout(layout);
        start();
    }
};

TEST_F(TextFields, StandWhereTheLayoutSaysInItsWidth) {
    startWith(fewFields());
    EXPECT_EQ(form.AText[1].Left, 100 * pixel);
    EXPECT_EQ(form.AText[1].Top, 300 * pixel);
    EXPECT_EQ(form.AText[1].Width, 200 * pixel);
    EXPECT_TRUE(form.AText[1].Visible);
}

TEST_F(TextFields, AreAsHighAsTheHigherOfBothFonts) {
    startWith(fewFields());
    const auto& font = form.AText[1].Font;
    toolkit::FontSpec narrow = font;
    narrow.Name = "Arial Narrow";
    EXPECT_EQ(form.AText[1].Height,
              std::max(toolkit::textHeight(font), toolkit::textHeight(narrow)));
}

TEST_F(TextFields, TakeTheTextFontInTheSizeOfTheirRecord) {
    startWith(smallLayout({}, {{.width = 300, .size = 1},
                               {.width = 300, .size = 2},
                               {.width = 300, .size = 3},
                               {.width = 300, .size = 7}}));
    EXPECT_EQ(form.AText[1].Font.Size, 11);
    EXPECT_EQ(form.AText[2].Font.Size, 14);
    EXPECT_EQ(form.AText[3].Font.Size, 18);
    EXPECT_EQ(form.AText[4].Font.Size, 11);
    EXPECT_EQ(form.AText[1].Font.Name, "Arial");
    EXPECT_EQ(form.TextSizes, (std::vector<std::int16_t>{0, 1, 2, 3, 7}));
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Center);
}

TEST_F(TextFields, HaveTheColoursOfTheLayout) {
    startWith(fewFields());
    EXPECT_EQ(form.AText[1].ForeColor, toolkit::black);
    EXPECT_EQ(form.AText[2].ForeColor, toolkit::rgb(195, 17, 25));
    EXPECT_EQ(form.TextDefaultColors, form.TextColors);
    EXPECT_EQ(form.TextColors[2], toolkit::rgb(195, 17, 25));
}

TEST_F(TextFields, TheFirstLargeOneIsTheNamesLine) {
    startWith(smallLayout({}, {{.size = 1}, {.width = 100, .size = 3}, {.width = 100, .size = 3}}));
    EXPECT_EQ(form.FirstBigText, 2);
    EXPECT_EQ(form.NamesField, 2);
}

/// On a picture twice as wide the texts are twice as large, but the names line has no more room.
TEST_F(TextFields, TheNamesLineStaysLow) {
    constexpr int width = 2 * 2396;
    toolkit::savePng(toolkit::Bitmap(width, 4000), dataFile("Convention card.gif"));
    writeOptions("Zoom=1\r\n");
    startWith(smallLayout({}, {{.width = 100, .size = 3}, {.width = 100, .size = 3}}));
    const float highest = form.P1.Width / (width * pixel) * 900;
    EXPECT_NEAR(highest, 180, 1);
    EXPECT_GT(form.AText[2].Height, highest + 100);
    EXPECT_FLOAT_EQ(form.AText[1].Height, highest);
    EXPECT_FLOAT_EQ(form.Highlight[1].Height, 0.67F * highest);
}

TEST_F(TextFields, ALowNamesLineKeepsItsHeight) {
    writeOptions("Zoom=5\r\n");
    startWith(smallLayout({}, {{.width = 100, .size = 3}, {.width = 100, .size = 3}}));
    EXPECT_LT(form.AText[1].Height, 450);
    EXPECT_EQ(form.AText[1].Height, form.AText[2].Height);
}

TEST_F(TextFields, ALargeHoleIsNoNamesLine) {
    startWith(
        replaced(smallLayout({}, {{.size = 1}, {.size = 3}}), "2,0,0,0,0,1,3,", "1,0,0,0,0,1,3,"));
    EXPECT_EQ(form.FirstBigText, 2);
    EXPECT_EQ(form.NamesField, 0);
    EXPECT_EQ(form.AText[0].Caption, "");
    EXPECT_FALSE(form.AText[2].Visible);
}

TEST_F(TextFields, TheNamesLineIsFoundAnewWhenTheScreenIsRebuilt) {
    startWith(fewFields());
    writeLayout(smallLayout({}, {{.size = 1}}));
    RebuildScreenImage(form);
    EXPECT_EQ(form.FirstBigText, 0);
    EXPECT_EQ(form.NamesField, 0);
    EXPECT_EQ(form.AText.UBound(), 1);
    EXPECT_EQ(form.Highlight.UBound(), 1);
    EXPECT_EQ(form.TextSizes.size(), 2U);
}

TEST_F(TextFields, ARecordOutOfSequenceLeavesAHole) {
    startWith(replaced(fewFields(), "1,100,300,", "2,100,300,"));
    EXPECT_FALSE(form.AText[1].Visible);
    EXPECT_TRUE(form.AText[2].Visible);
    EXPECT_EQ(form.AText[2].Top, 400 * pixel);
}

TEST_F(TextFields, HighlightsLieInsideTheirFieldsUnshown) {
    startWith(fewFields());
    const auto& text = form.AText[1];
    const auto& highlight = form.Highlight[1];
    EXPECT_EQ(highlight.Caption, "    ");
    EXPECT_EQ(highlight.Font.Size, text.Font.Size / 2);
    EXPECT_EQ(highlight.Left, text.Left + 2 * pixel);
    EXPECT_EQ(highlight.Top, text.Top + pixel);
    EXPECT_EQ(highlight.Width, text.Width - 4 * pixel);
    EXPECT_EQ(highlight.Height, 0.67F * text.Height);
    EXPECT_FALSE(highlight.Visible);
}

TEST_F(TextFields, HighlightsLieBehindTextsAndTextsBehindMarks) {
    startWith(fewFields());
    for (int i = 1; i <= 2; ++i) {
        for (int text = 1; text <= 2; ++text) {
            EXPECT_LT(form.Highlight[i].Stack, form.AText[text].Stack);
        }
        EXPECT_LT(form.AText[i].Stack, form.AMark[1].Stack);
    }
}

TEST_F(TextFields, TheirHeightAllowsForBoldWhereTheSizeIsLarge) {
    startWith(fewFields());
    toolkit::FontSpec bold{"Arial", 18, true, false};
    toolkit::FontSpec narrow{"Arial Narrow", 18, true, false};
    EXPECT_EQ(form.AText[2].Height,
              std::max(toolkit::textHeight(bold), toolkit::textHeight(narrow)));
}

TEST_F(TextFields, TheFirstIsDescribedOnceInTheTrace) {
    writeOptions("Zoom=5\r\nTrace=1\r\n");
    startWith(fewFields());
    RebuildScreenImage(form);
    const std::string file = traceFile();
    for (const char* label : {"    Init specs - p1 dims, mode:           0 0 17970 18660, 1",
                              "    Init specs - AText dims:              0 0 ",
                              "    Init specs - AText font,size,bold:    Arial, 11, False",
                              "    Init specs - font height norm,nar:    ",
                              "    Init specs - testtext font,sz,bld,ht: Arial Narrow, 11, False, ",
                              "    Init specs - symfont font,sz,bld,ht:  Wingdings, 18, True, ",
                              "    Init specs - small,med,lg font sizes: 11, 14, 18"}) {
        const auto at = file.find(label);
        ASSERT_NE(at, std::string::npos) << label;
        EXPECT_EQ(file.find(label, at + 1), std::string::npos) << label;
    }
}

} // namespace
} // namespace zev::test

#include "layout/layout_text.h"

#include "layout/save_layout.h"
#include "support/form_test.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

class LayoutText : public FormTest {
  protected:
    void useSmallLayout() {
        writeLayout(smallLayout({{.left = 100, .top = 100, .width = 20, .height = 20},
                                 {.left = 200, .top = 100, .color = 2, .symbol = 161},
                                 {.left = 300, .top = 100, .color = 3, .size = 3}},
                                {{.left = 100, .top = 300, .width = 300, .color = 2, .size = 2}},
                                "1,1001\r\n1001,1003\r\n", 1003));
    }

    /// Places and measures that don't go by the fonts of this machine.
    void setMeasures() {
        form.TextFontSize = {0, 11, 14, 18};
        form.MarkFontSize = {0, 18, 22.5F, 30.25F};
        form.AMark[1].Move(1500, 1507.5F, 300, 307);
        form.AMark[2].Move(-22.5F, -23, 150, 157.5F);
        form.AMark[3].Move(3000, 1500, 450, 465);
        form.AText[1].Move(1500, 4500, 4500, 330);
        float offset = 0;
        for (auto& kind : form.FontOffsets) {
            for (auto& size : kind) {
                for (float& side : size) side = 15 * offset++;
            }
        }
    }
};

constexpr std::string_view wholeLayout =
    R"(' ***********************************************************************
' ***********************************************************************
' **                                                                   **
' **                 DO NOT MODIFY OR DELETE THIS FILE                 **
' **                                                                   **
' ***********************************************************************
' ***********************************************************************

' It defines the locations and default styles of the checkmark, circle, and text areas on the Convention card.
' Individual card files (xxx.zev) only indicate which marks and what text should be shown; not where.  Those
' files reference the field numbers in this file, so changing this file will affect the appearance of all cards.

' The next few lines describe the environment in which this file was created
' Program version: 2.1.0

' Screen TwipsPerPixel (usually 15, 13, or 12) and Screen Width in twips
15,24000

' Text font name; small, medium, and large text font sizes - all in points
"Arial","11.00","14.00","18.00"

' Symbol font name (for checkmarks and circles); small, medium, and large Symbol font sizes - all in points
"Wingdings","18.00","22.50","30.25"
' Symbol font name for Suit Symbols: Symbol

' # of pixels by which characters are offset from the left and from the bottom within their positions
' These values are used by the Auto-Adjust feature to fine-tune positions, especially in tight spaces

16,17,19,20,22,23,28,29,31,32,34,35,40,41,43,44,46,47,0

' # of mark-fields (checkmarks and circles) defined in this layout
3

' The field numbers are not in horizontal or vertical order.  They're in the sequence in which they were added during design.
' For each one, 9 values: field#, position in pixels (left, top, width, height); color (1=black, 2=red, 3=blue); symbol font size (1=small, 2=medium, 3=large); symbol: 252=checkmark, 161=circle; bit-switches (unused)

1,100,101,20,20,1,1,252,0
2,-1,-2,10,11,2,1,161,0
3,200,100,30,31,3,3,252,0

' # of text-fields defined in this layout
1

' The field numbers are not in horizontal or vertical order.  They're in the sequence in which they were added during design.
' For each one, 8 values: field#, position in pixels (left, top, width, height); color (1=black, 2=red, 3=blue); text font size (1=small, 2=medium, 3=large); bit-switches (unused)

1,100,300,300,22,2,2,0

' Largest tab sequence value; undefined values are omitted, so the list is far smaller than this number
1003

' The tab sequences flow across/down each boxed area of the card.  They apply to Text and Checkmarks, not Circles.
' For each one: Field # (they're in sequence); Field # to which the TAB key moves the cursor.
' If the number is larger than  1000, it refers to a Checkmark; otherwise, to Text.

1,1001
1001,1003
)";

std::string withCarriageReturns(std::string_view text) {
    std::string lines;
    for (const char character : text) {
        if (character == '\n') lines += '\r';
        lines += character;
    }
    return lines;
}

TEST_F(LayoutText, WritesTheFormsFieldsByteForByte) {
    useSmallLayout();
    start();
    setMeasures();
    MSaveShapes_Click(form);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), withCarriageReturns(wholeLayout));
    EXPECT_TRUE(traced("MSaveShapes_Click"));
}

TEST_F(LayoutText, WritesSizesAndPlacesOfTheDesignSizeAtEveryZoom) {
    writeOptions("Zoom=4\r\n");
    useSmallLayout();
    start();
    ASSERT_LT(form.CardScale, 1);
    MSaveShapes_Click(form);
    const std::string saved = dataFileContent("Definitions.Ini");
    EXPECT_NE(saved.find("\"Arial\",\"11.00\",\"14.00\",\"18.00\""), std::string::npos);
    EXPECT_NE(saved.find("\r\n1,100,100,"), std::string::npos);
    EXPECT_NE(saved.find("\r\n3,300,100,"), std::string::npos);
    EXPECT_NE(saved.find("\r\n1,100,300,300,"), std::string::npos);
}

TEST_F(LayoutText, KeepsTheFieldsOwnColoursUnderAColourScheme) {
    useSmallLayout();
    writeOptions("Zoom=5\r\nColorScheme=65280\r\n");
    start();
    ASSERT_EQ(form.AMark[2].ForeColor, 0x00FF00U);
    MSaveShapes_Click(form);
    const std::string saved = dataFileContent("Definitions.Ini");
    EXPECT_NE(saved.find(",1,1,252,0\r\n2,"), std::string::npos);
    EXPECT_NE(saved.find(",2,1,161,0\r\n3,"), std::string::npos);
    EXPECT_NE(saved.find(",3,3,252,0\r\n"), std::string::npos);
    EXPECT_NE(saved.find(",2,2,0\r\n"), std::string::npos);
}

TEST_F(LayoutText, WritesSymbolZeroForAHole) {
    useSmallLayout();
    start();
    form.AMark[2].Caption.clear();
    MSaveShapes_Click(form);
    EXPECT_NE(dataFileContent("Definitions.Ini").find(",2,1,0,0\r\n3,"), std::string::npos);
    RebuildScreenImage(form);
    EXPECT_EQ(form.AMark[2].Caption, "");
}

TEST_F(LayoutText, WritesNoTabPartForADiscardedTable) {
    useSmallLayout();
    start();
    form.TabTable.discard();
    MSaveShapes_Click(form);
    const std::string saved = dataFileContent("Definitions.Ini");
    EXPECT_TRUE(saved.ends_with(",2,2,0\r\n"));
    EXPECT_EQ(saved.find("' Largest tab"), std::string::npos);
}

} // namespace
} // namespace zev::test

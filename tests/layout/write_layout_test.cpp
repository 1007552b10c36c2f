#include <gtest/gtest.h>

#include "layout/layout_file.h"
#include "layout/skip_comment.h"
#include "layout/write_layout.h"

namespace zev {
namespace {

constexpr std::string_view wholeFile =
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
' Program version: 2.0.0

' Screen TwipsPerPixel (usually 15, 13, or 12) and Screen Width in twips
15,19200

' Text font name; small, medium, and large text font sizes - all in points
"Arial","11.00","14.00","18.00"

' Symbol font name (for checkmarks and circles); small, medium, and large Symbol font sizes - all in points
"Wingdings","0.50","12.35","1234.57"
' Symbol font name for Suit Symbols: Symbol

' # of pixels by which characters are offset from the left and from the bottom within their positions
' These values are used by the Auto-Adjust feature to fine-tune positions, especially in tight spaces

1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,-17,0,0

' # of mark-fields (checkmarks and circles) defined in this layout
2

' The field numbers are not in horizontal or vertical order.  They're in the sequence in which they were added during design.
' For each one, 9 values: field#, position in pixels (left, top, width, height); color (1=black, 2=red, 3=blue); symbol font size (1=small, 2=medium, 3=large); symbol: 252=checkmark, 161=circle; bit-switches (unused)

1,120,230,17,18,1,1,252,0
2,-3,1199,20,21,2,3,161,0

' # of text-fields defined in this layout
1

' The field numbers are not in horizontal or vertical order.  They're in the sequence in which they were added during design.
' For each one, 8 values: field#, position in pixels (left, top, width, height); color (1=black, 2=red, 3=blue); text font size (1=small, 2=medium, 3=large); bit-switches (unused)

1,40,50,300,22,3,2,0

' Largest tab sequence value; undefined values are omitted, so the list is far smaller than this number
1002

' The tab sequences flow across/down each boxed area of the card.  They apply to Text and Checkmarks, not Circles.
' For each one: Field # (they're in sequence); Field # to which the TAB key moves the cursor.
' If the number is larger than  1000, it refers to a Checkmark; otherwise, to Text.

1,1001
1001,1002
)";

std::string withCarriageReturns(std::string_view text) {
    std::string lines;
    for (const char character : text) {
        if (character == '\n') lines += '\r';
        lines += character;
    }
    return lines;
}

LayoutDocument smallDocument() {
    LayoutDocument document;
    document.programVersion = "2.0.0";
    document.screenWidth = 19200;
    document.textFont = {"Arial", {11, 14, 18}};
    document.markFont = {"Wingdings", {0.5F, 12.345F, 1234.567F}};
    document.suitFontName = "Symbol";
    document.offsets = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, -17, 0};
    document.marks = {{.number = 1,
                       .left = 120,
                       .top = 230,
                       .width = 17,
                       .height = 18,
                       .color = 1,
                       .size = 1,
                       .symbol = 252},
                      {.number = 99,
                       .left = -3,
                       .top = 1199,
                       .width = 20,
                       .height = 21,
                       .color = 2,
                       .size = 3,
                       .symbol = 161}};
    document.texts = {{.number = 1,
                       .left = 40,
                       .top = 50,
                       .width = 300,
                       .height = 22,
                       .color = 3,
                       .size = 2,
                       .symbol = 0}};
    return document;
}

TabTable smallTable() {
    TabTable table;
    table.growTo(1002);
    table.set(1, 1001);
    table.set(1001, 1002);
    return table;
}

TEST(WriteLayout, WritesTheFileByteForByte) {
    const TabTable table = smallTable();
    LayoutDocument document = smallDocument();
    document.tabTable = &table;
    EXPECT_EQ(writeLayout(document), withCarriageReturns(wholeFile));
}

TEST(WriteLayout, LeavesOutTheTabPartOfAnEmptyTable) {
    const TabTable empty;
    LayoutDocument document = smallDocument();
    const std::string fileWithoutTable = writeLayout(document);
    document.tabTable = &empty;
    EXPECT_EQ(writeLayout(document), fileWithoutTable);
    const auto tabPart = wholeFile.find("\n' Largest tab");
    EXPECT_EQ(fileWithoutTable, withCarriageReturns(wholeFile.substr(0, tabPart)));
}

TEST(WriteLayout, NumbersRecordsByTheirPlace) {
    LayoutDocument document = smallDocument();
    document.texts.assign(3, {.number = 7});
    const std::string file = writeLayout(document);
    EXPECT_NE(file.find("\r\n1,0,0,0,0,1,1,0\r\n2,0,0,0,0,1,1,0\r\n3,0,0,0,0,1,1,0\r\n"),
              std::string::npos);
}

TEST(WriteLayout, WritesAWideScreenBare) {
    LayoutDocument document = smallDocument();
    document.twips = 12;
    document.screenWidth = 115200;
    EXPECT_NE(writeLayout(document).find("\r\n12,115200\r\n"), std::string::npos);
}

void expectSamePlaces(const FieldRecord& read, const FieldRecord& written) {
    EXPECT_EQ(read.left, written.left);
    EXPECT_EQ(read.top, written.top);
    EXPECT_EQ(read.width, written.width);
    EXPECT_EQ(read.height, written.height);
    EXPECT_EQ(read.color, written.color);
    EXPECT_EQ(read.size, written.size);
    EXPECT_EQ(read.symbol, written.symbol);
}

TEST(WriteLayout, IsReadBackTheSame) {
    const TabTable table = smallTable();
    LayoutDocument document = smallDocument();
    document.tabTable = &table;
    std::string version;
    LayoutReader reader(writeLayout(document), [&version](toolkit::TextInput& input) {
        return skipComments(input, version);
    });
    EXPECT_EQ(reader.readEnvironment().screenWidth, document.screenWidth);
    EXPECT_EQ(version, "2.0.0");
    reader.skipFontLine();
    reader.skipFontLine();
    EXPECT_EQ(reader.readOffsets(), document.offsets);
    ASSERT_EQ(reader.readCount(), 2);
    for (const FieldRecord& mark : document.marks) expectSamePlaces(reader.readMark(true), mark);
    ASSERT_EQ(reader.readCount(), 1);
    expectSamePlaces(reader.readText(), document.texts.front());
    TabTable read;
    reader.readTabTable(read);
    for (int item = 1; item <= table.UBound(); ++item) EXPECT_EQ(read[item], table[item]);
}

} // namespace
} // namespace zev

#include "layout/layout_file.h"

#include <gtest/gtest.h>

#include "layout/skip_comment.h"
#include "layout/version.h"
#include "layout/write_layout.h"
#include "toolkit/base/error.h"

namespace zev {
namespace {

LayoutReader readerOf(std::string content) {
    return {std::move(content), [version = std::string()](toolkit::TextInput& input) mutable {
                return skipComments(input, version);
            }};
}

template <typename Action>
int failureOf(Action action) {
    try {
        action();
    } catch (const toolkit::RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(RepairedSymbol, TurnsTheOldCheckIntoTodaysOne) {
    EXPECT_EQ(repairedSymbol(80, false), 252);
    EXPECT_EQ(repairedSymbol(80, true), 110);
}

TEST(RepairedSymbol, ShowsChecksAndSquaresAsTheOptionWants) {
    EXPECT_EQ(repairedSymbol(252, false), 252);
    EXPECT_EQ(repairedSymbol(110, false), 252);
    EXPECT_EQ(repairedSymbol(252, true), 110);
    EXPECT_EQ(repairedSymbol(110, true), 110);
}

TEST(RepairedSymbol, TurnsTheOldCircleIntoTodaysOne) {
    EXPECT_EQ(repairedSymbol(153, true), 161);
    EXPECT_EQ(repairedSymbol(161, false), 161);
}

TEST(RepairedSymbol, LeavesOtherCharacters) { EXPECT_EQ(repairedSymbol(65, true), 65); }

TEST(InstalledLayout, IsTheNearestOfThree) {
    EXPECT_EQ(installedLayout(13), 13);
    EXPECT_EQ(installedLayout(12), 12);
    EXPECT_EQ(installedLayout(7), 12);
    EXPECT_EQ(installedLayout(14), 15);
    EXPECT_EQ(installedLayout(15), 15);
    EXPECT_EQ(installedLayout(20), 15);
}

TEST(LayoutReader, ReadsTheEnvironmentBehindComments) {
    const auto environment = readerOf("' comment\r\n\r\n15,19200\r\n").readEnvironment();
    EXPECT_EQ(environment.twips, 15);
    EXPECT_EQ(environment.screenWidth, 19200);
}

TEST(LayoutReader, TakesScreensBeyondSixteenBits) {
    EXPECT_EQ(readerOf("12,57600\r\n").readEnvironment().screenWidth, 57600);
}

TEST(LayoutReader, DropsFontLinesUnread) {
    LayoutReader reader = readerOf("\"Arial\",\"11,00\",\"14,00\",\"18.00\"\r\n"
                                   "\"Wingdings\",12.5,,x\r\n7\r\n");
    reader.skipFontLine();
    reader.skipFontLine();
    EXPECT_EQ(reader.readCount(), 7);
}

TEST(LayoutReader, ReadsEighteenOffsetsAndDropsTheNineteenthValue) {
    LayoutReader reader = readerOf("1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,-17,18.5,99\r\n345\r\n");
    const FileOffsets offsets = reader.readOffsets();
    EXPECT_EQ(offsets.front(), 1);
    EXPECT_EQ(offsets[16], -17);
    EXPECT_EQ(offsets[17], 18.5F);
    EXPECT_EQ(reader.readCount(), 345);
}

TEST(LayoutReader, ReadsNineValuesOfAMark) {
    LayoutReader reader = readerOf("3,10,-20,30,40,2,1,252,9\r\n4,1,1,1,1,1,1,161,0\r\n");
    const FieldRecord mark = reader.readMark(true);
    EXPECT_EQ(mark.number, 3);
    EXPECT_EQ(mark.left, 10);
    EXPECT_EQ(mark.top, -20);
    EXPECT_EQ(mark.width, 30);
    EXPECT_EQ(mark.height, 40);
    EXPECT_EQ(mark.color, 2);
    EXPECT_EQ(mark.size, 1);
    EXPECT_EQ(mark.symbol, 252);
    EXPECT_EQ(reader.readMark(true).number, 4);
}

TEST(LayoutReader, ReadsEightValuesOfAMarkWithoutSwitches) {
    LayoutReader reader = readerOf("3,10,20,30,40,2,1,252\r\n4,1,1,1,1,1,1,161\r\n");
    EXPECT_EQ(reader.readMark(false).symbol, 252);
    EXPECT_EQ(reader.readMark(false).number, 4);
}

TEST(LayoutReader, TakesTheNextRecordForSwitchesWhereAFileLacksThem) {
    LayoutReader reader = readerOf("3,10,20,30,40,2,1,252\r\n4,1,1,1,1,1,1,161\r\n");
    static_cast<void>(reader.readMark(true));
    EXPECT_EQ(reader.readCount(), 1);
}

TEST(LayoutReader, ReadsEightValuesOfAText) {
    LayoutReader reader = readerOf("5,10.5,20,30,40,3,2,0\r\n6,1,1,1,1,1,1,0\r\n");
    const FieldRecord text = reader.readText();
    EXPECT_EQ(text.number, 5);
    EXPECT_EQ(text.left, 10.5F);
    EXPECT_EQ(text.height, 40);
    EXPECT_EQ(text.color, 3);
    EXPECT_EQ(text.size, 2);
    EXPECT_EQ(reader.readText().number, 6);
}

TEST(LayoutReader, ReadsValuesWhateverTheLines) {
    LayoutReader reader = readerOf("3,10\r\n\"20\", 30\r\n40,2,1,252,0,77\r\n");
    const FieldRecord mark = reader.readMark(true);
    EXPECT_EQ(mark.top, 20);
    EXPECT_EQ(mark.symbol, 252);
    EXPECT_EQ(reader.readCount(), 77);
}

TEST(LayoutReader, FailsPastTheEnd) {
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("15").readEnvironment()); }), 62);
    EXPECT_EQ(failureOf([] { readerOf("\"Arial\",\"11.00\"").skipFontLine(); }), 62);
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("1,2,3").readOffsets()); }), 62);
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("' none").readCount()); }), 62);
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("1,2,3,4,5,6,7,8").readMark(true)); }), 62);
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("1,2,3,4,5,6,7").readText()); }), 62);
}

TEST(LayoutReader, FailsOnTextsAndOnLargeNumbers) {
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("x,19200").readEnvironment()); }), 13);
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("40000\r\n").readCount()); }), 6);
    EXPECT_EQ(failureOf([] { static_cast<void>(readerOf("1,2,3,4,5,6,7,8,x").readMark(true)); }),
              13);
}

TabTable tableWith(int bound, int item, std::int16_t successor) {
    TabTable table;
    table.growTo(bound);
    table.set(item, successor);
    return table;
}

TEST(LayoutReaderTabs, FillsTheTableAnew) {
    TabTable table = tableWith(1010, 9, 10);
    readerOf("' largest\r\n1005\r\n\r\n' pairs\r\n1,2\r\n2,1005\r\n1005,1\r\n").readTabTable(table);
    EXPECT_EQ(table.UBound(), 1010);
    EXPECT_EQ(table[1], 2);
    EXPECT_EQ(table[2], 1005);
    EXPECT_EQ(table[1005], 1);
    EXPECT_EQ(table[9], 0);
}

TEST(LayoutReaderTabs, GrowsASmallTable) {
    TabTable table;
    readerOf("3\r\n3,1\r\n").readTabTable(table);
    EXPECT_EQ(table.UBound(), 3);
    EXPECT_EQ(table[3], 1);
}

TEST(LayoutReaderTabs, LeavesTheTableWhereTheFileEnds) {
    TabTable table = tableWith(12, 9, 10);
    readerOf("\r\n' nothing more\r\n\r\n").readTabTable(table);
    EXPECT_EQ(table[9], 10);
}

TEST(LayoutReaderTabs, EndsCleanlyAtTrailingBlankLinesAndComments) {
    TabTable table;
    readerOf("5\r\n1,2\r\n\r\n   \r\n' end\r\n\r\n").readTabTable(table);
    EXPECT_EQ(table[1], 2);
}

TEST(LayoutReaderTabs, ReadsNoMorePairsThanTheLargestValue) {
    TabTable table;
    readerOf("2\r\n1,2\r\n2,1\r\n1,77\r\n").readTabTable(table);
    EXPECT_EQ(table[1], 2);
}

TEST(LayoutReaderTabs, FailsOnAFirstValueOutsideTheTable) {
    for (const char* content : {"5\r\n0,1\r\n", "5\r\n6,1\r\n", "5\r\n-1,1\r\n"}) {
        TabTable table;
        EXPECT_EQ(failureOf([&] { readerOf(content).readTabTable(table); }), 9) << content;
    }
}

TEST(LayoutReaderTabs, KeepsThePairsBeforeAFailure) {
    TabTable table;
    EXPECT_EQ(failureOf([&] { readerOf("5\r\n1,2\r\n3").readTabTable(table); }), 62);
    EXPECT_EQ(table[1], 2);
}

/// Reads a whole layout as the program does; the number of the failure, 0 for none.
int readWhole(std::string content) {
    std::string version;
    TabTable table;
    LayoutReader reader(std::move(content), [&version](toolkit::TextInput& input) {
        return skipComments(input, version);
    });
    return failureOf([&] {
        static_cast<void>(reader.readEnvironment());
        reader.skipFontLine();
        reader.skipFontLine();
        static_cast<void>(reader.readOffsets());
        for (int i = reader.readCount(); i > 0; --i)
            static_cast<void>(reader.readMark(!isBelow(version, switchesVersion)));
        for (int i = reader.readCount(); i > 0; --i) static_cast<void>(reader.readText());
        reader.readTabTable(table);
    });
}

std::string wholeLayout() {
    TabTable table = tableWith(1002, 1, 1002);
    LayoutDocument document;
    document.programVersion = "2.0.0";
    document.screenWidth = 19200;
    document.textFont = {"Arial", {11, 14, 18}};
    document.markFont = {"Wingdings", {12, 14, 20}};
    document.suitFontName = "Symbol";
    document.marks.resize(2);
    document.texts.resize(2);
    document.tabTable = &table;
    return writeLayout(document);
}

TEST(LayoutReader, NeverReadsATruncatedFileWrongly) {
    const std::string whole = wholeLayout();
    ASSERT_EQ(readWhole(whole), 0);
    // A layout that lacks a record fails; one with a shortened tab part may still be valid.
    const std::size_t lastRecord = whole.rfind(",0\r\n") + 2;
    for (std::size_t length = 0; length < lastRecord - 1; ++length)
        ASSERT_NE(readWhole(whole.substr(0, length)), 0) << length;
    for (std::size_t length = lastRecord; length < whole.size(); ++length)
        static_cast<void>(readWhole(whole.substr(0, length)));
}

TEST(LayoutReader, SurvivesAnyByteInAnyPlace) {
    const std::string whole = wholeLayout();
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (const char byte : {'\0', '"', ',', '\r', '-', '9', '\xFF'}) {
            std::string damaged = whole;
            damaged[place] = byte;
            const int failure = readWhole(damaged);
            ASSERT_TRUE(failure == 0 || failure == 6 || failure == 9 || failure == 13 ||
                        failure == 62)
                << failure;
        }
    }
}

TEST(LayoutReader, ReadsAVeryLongLineInOneGo) {
    std::string content = "15,19200,a,1,1,1,a,1,1,1,";
    for (int i = 0; i < 19; ++i) content += "1,";
    content += "32767,";
    for (int i = 1; i <= 32767; ++i) content += "1,2,3,4,5,1,1,252,";
    content.append(10'000'000, '1');
    EXPECT_EQ(readWhole(content), 6);
}

} // namespace
} // namespace zev

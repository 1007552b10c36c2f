#include "toolkit/base/path_text.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(PathText, ATextOfTheCodePageComesBackFromItsPath) {
    const std::string text = "Caf\xE9 \x80 \x96.zev";
    EXPECT_EQ(textFromPath(pathFromText(text)), text);
}

TEST(PathText, AFileNameBeyondTheCodePageHasNoText) {
    EXPECT_EQ(textFromPath(std::filesystem::path(u8"\u0141ukasz.zev")), std::nullopt);
}

TEST(PathText, ADecomposedFileNameHasTheTextOfItsLetters) {
    EXPECT_EQ(textFromPath(std::filesystem::path(u8"Mu\u0308ller S\u030C e\u0301.zev")),
              "M\xFCller \x8A \xE9.zev");
    EXPECT_EQ(textFromPath(std::filesystem::path(u8"x\u0308.zev")), std::nullopt);
    EXPECT_EQ(textFromPath(std::filesystem::path(u8"\u0308.zev")), std::nullopt);
}

TEST(PathText, EveryLetterOfTheCodePageHasOneTextInBothForms) {
    const std::u8string decomposed =
        u8"A\u0300A\u0301A\u0302A\u0303A\u0308A\u030AC\u0327E\u0300E\u0301E\u0302E\u0308I\u0300"
        u8"I\u0301I\u0302I\u0308N\u0303O\u0300O\u0301O\u0302O\u0303O\u0308U\u0300U\u0301U\u0302"
        u8"U\u0308Y\u0301Y\u0308Z\u030C";
    EXPECT_EQ(textFromPath(std::filesystem::path(decomposed)),
              "\xC0\xC1\xC2\xC3\xC4\xC5\xC7\xC8\xC9\xCA\xCB\xCC\xCD\xCE\xCF\xD1\xD2\xD3\xD4"
              "\xD5\xD6\xD9\xDA\xDB\xDC\xDD\x9F\x8E");
}

TEST(PathText, AFileNameOfStrayBytesHasNoText) {
    EXPECT_EQ(textFromPath(std::filesystem::path("bad\xFFname")), std::nullopt);
}

TEST(PathText, OnlyTheFileNameBecomesText) {
    EXPECT_EQ(textFromPath(std::filesystem::path(u8"/home/\u0141/a.zev")), "a.zev");
}

TEST(PathText, MessagesShowWhatTheCodePageLacksAsQuestionMark) {
    EXPECT_EQ(displayText(std::filesystem::path(u8"/home/\u0141\u00E9")), "/home/?\xE9");
}

} // namespace
} // namespace toolkit

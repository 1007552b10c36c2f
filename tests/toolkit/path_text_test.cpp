#include "toolkit/ansi.h"

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

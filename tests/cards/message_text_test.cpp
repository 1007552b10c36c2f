#include "cards/message_text.h"

#include <gtest/gtest.h>

#include "toolkit/base/error.h"

namespace zev {
namespace {

TEST(MessageText, ControlCharactersStandAsEscapes) {
    EXPECT_EQ(onOneLine("a\nb\rc\td\x1B[e\x7F"), "a\\nb\\rc\\td\\x1B[e\\x7F");
    EXPECT_EQ(onOneLine("C:\\Cards \u00C9"), "C:\\Cards \u00C9");
}

TEST(MessageText, APathComesBackFromItsText) {
    EXPECT_EQ(utf8Of(pathOf("\u00C9 \u2660/a")), "\u00C9 \u2660/a");
#ifndef _WIN32
    EXPECT_EQ(utf8Of(pathOf("\xFF\n")), "\xFF\n");
#endif
}

TEST(MessageText, APathHoldsNoNull) {
    EXPECT_THROW(static_cast<void>(pathOf(std::string_view("a\0b", 3))), toolkit::RunTimeError);
}

TEST(MessageText, JsonEscapesWhatItMust) {
    EXPECT_EQ(jsonText("a\"b\\c\n\x01 \u2660"), "\"a\\\"b\\\\c\\n\\u0001 \u2660\"");
    EXPECT_EQ(jsonText("\x7F"), "\"\\u007F\"");
}

TEST(MessageText, JsonIsUtf8WhateverTheBytes) {
    EXPECT_EQ(jsonText("a\xFF"
                       "b"),
              "\"a\uFFFD"
              "b\"");
}

} // namespace
} // namespace zev

#include "card/rescue_file.h"

#include <gtest/gtest.h>

#include "card/write_card.h"
#include "toolkit/base/error.h"

namespace zev {
namespace {

RescuedCard someCard() {
    RescuedCard card;
    card.name = "Jones & Smith";
    card.file = {.exists = true, .size = 12, .time = -34, .content = 18446744073709551615U};
    card.document.programVersion = "2.0.0";
    card.document.partner = {"Pat \"P\"", "77"};
    card.document.marks = {true, false, true};
    card.document.texts = {{"a && b", 1}, {"5^h, \"x\"", 14}, {"", 0}};
    return card;
}

TEST(RescueFile, ComesBackAsItWasWritten) {
    const RescuedCard card = readRescue(writeRescue(someCard()));
    EXPECT_EQ(card.name, someCard().name);
    EXPECT_EQ(card.file, someCard().file);
    EXPECT_EQ(card.document, someCard().document);
}

TEST(RescueFile, IsACardFileBehindItsHead) {
    const std::string file = writeRescue(someCard());
    EXPECT_TRUE(file.ends_with(writeCard(someCard().document)));
    EXPECT_EQ(file.front(), '\'');
}

TEST(RescueFile, OfACardWithoutNameAndFileHasNeither) {
    RescuedCard card = someCard();
    card.name.clear();
    card.file = {};
    const RescuedCard read = readRescue(writeRescue(card));
    EXPECT_EQ(read.name, "");
    EXPECT_FALSE(read.file.exists);
}

TEST(RescueFile, MayBeAPlainCard) {
    const RescuedCard card = readRescue(writeCard(someCard().document));
    EXPECT_EQ(card.name, "");
    EXPECT_EQ(card.document, someCard().document);
}

TEST(RescueFile, ItsTextsMayNameAVersion) {
    RescuedCard card = someCard();
    card.document.texts[0].text = "Program version: 1.0";
    EXPECT_EQ(readRescue(writeRescue(card)).document, card.document);
}

TEST(RescueFile, CutAnywhereItFailsOrLacksNothing) {
    const std::string file = writeRescue(someCard());
    for (std::size_t length = 0; length + 4 < file.size(); ++length)
        EXPECT_THROW(static_cast<void>(readRescue(file.substr(0, length))), toolkit::RunTimeError)
            << length;
}

TEST(RescueFile, FieldsBeyondTheirCountFail) {
    std::string file = writeRescue(someCard());
    const auto place = file.find("\r\n3,1,0\r\n");
    ASSERT_NE(place, std::string::npos);
    file[place + 2] = '4';
    EXPECT_THROW(static_cast<void>(readRescue(file)), toolkit::RunTimeError);
}

} // namespace
} // namespace zev

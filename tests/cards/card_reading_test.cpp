#include "cards/card_reading.h"

#include <gtest/gtest.h>

#include "card/write_card.h"

namespace zev {
namespace {

constexpr const char* head = "' Program version: 2.1.0\r\n\"Ann\",\"123\"\r\n";

std::string faultsOf(const CardReading& reading) {
    std::string faults;
    for (const CardFault& fault : reading.faults)
        faults += std::to_string(fault.line) + ": " + fault.what + "\n";
    return faults;
}

CardReading readBehindHead(const std::string& records) { return readForgivingly(head + records); }

TEST(CardReading, ReadsBackWhatTheProgramWrites) {
    CardDocument card;
    card.programVersion = "2.1.0";
    card.partner = {"Ann", "123"};
    card.marks = {true, false};
    card.texts = {{"a && b", 8}, {}};
    const CardReading reading = readForgivingly(writeCard(card));
    EXPECT_EQ(faultsOf(reading), "");
    EXPECT_TRUE(reading.isWhole);
    EXPECT_EQ(reading.card, card);
}

TEST(CardReading, TellsWhatIsMissingFromACutFile) {
    EXPECT_EQ(faultsOf(readForgivingly("")), "1: the file ends before the partner's name\n");
    EXPECT_EQ(faultsOf(readForgivingly("' nothing\r\n")),
              "2: the file ends before the partner's name\n");
    EXPECT_EQ(faultsOf(readForgivingly("\"Ann\"")),
              "1: the file ends before the partner's number\n");
    EXPECT_EQ(faultsOf(readBehindHead("")), "3: the file ends before the count of check boxes\n");
    const CardReading reading = readBehindHead("2\r\n1,1,0\r\n2");
    EXPECT_EQ(faultsOf(reading), "5: the file ends before check box 2 of 2\n");
    EXPECT_FALSE(reading.isWhole);
    EXPECT_EQ(faultsOf(readBehindHead("1\r\n1,1,0\r\n2\r\n1,\"a\",0\r\n")),
              "7: the file ends before text area 2 of 2\n");
}

TEST(CardReading, CountsLinesByEachKindOfEnd) {
    EXPECT_EQ(faultsOf(readForgivingly("'\r'\n'\r\n\"\",\"\"\rx\r")),
              "5: no number where one should stand for the count of check boxes\n");
}

TEST(CardReading, TellsWhereANumberIsNone) {
    EXPECT_EQ(faultsOf(readBehindHead("2\n1,1,0\nx,1,0\n")),
              "5: no number where one should stand for check box 2 of 2\n");
    EXPECT_EQ(faultsOf(readBehindHead("99999\n")),
              "3: a number too large for the count of check boxes\n");
}

TEST(CardReading, ACardWithoutFieldsIsDamaged) {
    EXPECT_EQ(faultsOf(readBehindHead("0\n")), "3: a card without check boxes\n");
    EXPECT_EQ(faultsOf(readBehindHead("1\n1,0,0\n-1\n")), "5: a card without text areas\n");
}

TEST(CardReading, AFieldToldTwiceIsWhatWasToldLast) {
    const CardReading reading = readBehindHead("2\n1,1,0\n1,0,0\n1\n1,\"a\",0\n");
    EXPECT_EQ(faultsOf(reading), "5: check box 1 comes again\n");
    EXPECT_TRUE(reading.isWhole);
    EXPECT_EQ(reading.card.marks, std::vector<bool>{false});
}

TEST(CardReading, PassesOverNumbersThatNoFieldHas) {
    const CardReading reading = readBehindHead("1\n0,1,0\n1\n7,\"a\",0\n");
    EXPECT_EQ(faultsOf(reading), "4: no check box of 1 has the number 0\n"
                                 "6: no text area of 1 has the number 7\n");
    EXPECT_TRUE(reading.isWhole);
    EXPECT_TRUE(reading.card.marks.empty());
    ASSERT_EQ(reading.card.texts.size(), 7U);
    EXPECT_EQ(reading.card.texts[6].text, "a");
}

TEST(CardReading, ANegativeNumberEndsTheReading) {
    const CardReading reading = readBehindHead("1\n1,1,0\n2\n-3,\"a\",0\n1,\"b\",0\n");
    EXPECT_EQ(faultsOf(reading), "6: no text area has the number -3\n");
    EXPECT_FALSE(reading.isWhole);
}

TEST(CardReading, TellsWhatFollowsTheLastText) {
    const CardReading reading = readBehindHead("1\n1,1,0\n1\n1,\"a\",0\n' end\n2,\"b\",0\n");
    EXPECT_EQ(faultsOf(reading), "8: more than the text areas that were announced\n");
    EXPECT_TRUE(reading.isWhole);
}

TEST(CardReading, ReadsACardOfTheOldFormat) {
    const CardReading reading =
        readForgivingly("\"\",\"\"\n1\n1,True\n1\n1,\"5 cards\\\\BI\\\\\"\n");
    EXPECT_EQ(faultsOf(reading), "");
    EXPECT_EQ(reading.card.marks, std::vector<bool>{true});
    ASSERT_EQ(reading.card.texts.size(), 1U);
    EXPECT_EQ(reading.card.texts[0].text, "5 cards");
}

} // namespace
} // namespace zev

#include <gtest/gtest.h>

#include "card/card_file.h"
#include "card/write_card.h"
#include "layout/skip_comment.h"

namespace zev {
namespace {

constexpr std::string_view wholeFile =
    "' ************************************************************************\r\n"
    "' **           DO NOT MODIFY THIS FILE (it's OK to delete it)           **\r\n"
    "' ************************************************************************\r\n"
    "\r\n"
    "' This contains the settings for the card called: Joe & Jane\r\n"
    "' You may delete it from your computer if you no longer need it\r\n"
    "' Program version: 2.0.0\r\n"
    "\r\n"
    "' Partner's name and ACBL ID number (both are optional)\r\n"
    "\"Jane \xB2JJ\xB2 Doe\",\"12345\"\r\n"
    "\r\n"
    "' # of mark-fields to follow\r\n"
    "3\r\n"
    "\r\n"
    "' For each, 3 values: its field-number; whether or not it was selected (1=yes, 0=no); "
    "bit-switches (unused)\r\n"
    "'           The field numbers correspond to the ones in the 'Definitions.Ini' file\r\n"
    "1,0,0\r\n"
    "2,1,0\r\n"
    "3,0,0\r\n"
    "\r\n"
    "' # of text-fields to follow\r\n"
    "2\r\n"
    "\r\n"
    "' For each, 3 values: its field-number; the text it contains; bit-switches (1=Bold, 2=Italic, "
    "4=Left-justify)\r\n"
    "1,\"5^H, 3-4 & \xB2weak\xB2\",11\r\n"
    "2,\"\",0\r\n";

CardDocument smallCard() {
    CardDocument document;
    document.cardName = "Joe & Jane";
    document.programVersion = "2.0.0";
    document.partner = {"Jane \"JJ\" Doe", "12345"};
    document.marks = {false, true, false};
    document.texts = {
        {"5^H, 3-4 & \"weak\"", text_switch::bold | text_switch::italic | text_switch::highlight},
        {"", 0}};
    return document;
}

TEST(WriteCard, WritesTheFileByteForByte) { EXPECT_EQ(writeCard(smallCard()), wholeFile); }

TEST(WriteCard, WritesARecordForEveryFieldOfAnEmptyCard) {
    CardDocument document;
    document.marks.resize(2);
    document.texts.resize(2);
    const std::string file = writeCard(document);
    EXPECT_NE(file.find("\r\n\"\",\"\"\r\n"), std::string::npos);
    EXPECT_NE(file.find("\r\n1,0,0\r\n2,0,0\r\n\r\n"), std::string::npos);
    EXPECT_TRUE(file.ends_with("\r\n1,\"\",0\r\n2,\"\",0\r\n"));
}

TEST(WriteCard, PutsASuperscriptTwoForQuotesOfThePartnerToo) {
    CardDocument document;
    document.partner = {"\"", "\"7\""};
    EXPECT_NE(writeCard(document).find("\r\n\"\xB2\",\"\xB2"
                                       "7\xB2\"\r\n"),
              std::string::npos);
}

/// What the texts of a card are after saving and loading.
std::vector<std::string> savedAndLoaded(const std::vector<std::string>& texts) {
    CardDocument document;
    document.programVersion = "2.0.0";
    document.marks.resize(1);
    for (const std::string& text : texts) document.texts.push_back({text, 0});
    std::string version;
    CardReader reader(writeCard(document), version, [&version](toolkit::TextInput& input) {
        return skipComments(input, version);
    });
    static_cast<void>(reader.readPartnerName());
    static_cast<void>(reader.readPartnerNumber());
    static_cast<void>(reader.readCount());
    static_cast<void>(reader.readMark());
    std::vector<std::string> loaded;
    for (int i = reader.readCount(); i > 0; --i) loaded.push_back(reader.readText().text);
    return loaded;
}

TEST(WriteCard, IsReadBackTheSame) {
    const std::vector<std::string> texts = {"a, b", "this & that", "\"quoted\"",
                                            "",     " blanks ",    "^c^d^H^s",
                                            "'",    "\xE9\xA0",    "\\\\B\\\\"};
    EXPECT_EQ(savedAndLoaded(texts), texts);
}

TEST(WriteCard, TurnsASuperscriptTwoIntoAQuote) {
    EXPECT_EQ(savedAndLoaded({"m\xB2"}), std::vector<std::string>{"m\""});
}

TEST(WriteCard, KeepsMarksPartnerAndSwitches) {
    std::string version;
    CardReader reader(writeCard(smallCard()), version, [&version](toolkit::TextInput& input) {
        return skipComments(input, version);
    });
    EXPECT_EQ(reader.readPartnerName(), "Jane \"JJ\" Doe");
    EXPECT_EQ(reader.readPartnerNumber(), "12345");
    ASSERT_EQ(reader.readCount(), 3);
    EXPECT_FALSE(reader.readMark().set);
    EXPECT_TRUE(reader.readMark().set);
    EXPECT_FALSE(reader.readMark().set);
    ASSERT_EQ(reader.readCount(), 2);
    EXPECT_EQ(reader.readText().switches, 11);
    EXPECT_EQ(reader.readText().switches, 0);
}

} // namespace
} // namespace zev

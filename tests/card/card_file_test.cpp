#include "card/card_file.h"

#include <gtest/gtest.h>

#include "card/write_card.h"
#include "layout/skip_comment.h"
#include "toolkit/base/error.h"

namespace zev {
namespace {

/// A reader of a card, with the version that the card's comments tell.
struct Card {
    explicit Card(std::string content, std::string version = "")
        : versionSeen(std::move(version)),
          reader(std::move(content), versionSeen,
                 [this](toolkit::TextInput& input) { return skipComments(input, versionSeen); }) {}

    std::string versionSeen;
    CardReader reader;
};

template <typename Action>
int failureOf(Action action) {
    try {
        action();
    } catch (const toolkit::RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(TruthValue, IsZeroOrOne) {
    EXPECT_TRUE(truthValue("1"));
    EXPECT_FALSE(truthValue("0"));
}

TEST(TruthValue, IsTrueForEveryOtherNumber) {
    EXPECT_TRUE(truthValue("-1"));
    EXPECT_TRUE(truthValue("0.5"));
    EXPECT_FALSE(truthValue("0.0"));
}

TEST(TruthValue, TakesTheWordsInAnyCase) {
    EXPECT_TRUE(truthValue("True"));
    EXPECT_TRUE(truthValue("tRUE"));
    EXPECT_FALSE(truthValue("FALSE"));
}

TEST(TruthValue, FailsOnAnythingElse) {
    for (const char* state : {"", "yes", "1x", "Truee", "nan"})
        EXPECT_EQ(failureOf([&] { static_cast<void>(truthValue(state)); }), 13) << state;
}

TEST(CardReader, ReadsThePartner) {
    Card card("' Program version: 2.0.0\r\n\r\n\"Jane, Doe\",\"12345\"\r\n");
    EXPECT_EQ(card.reader.readPartnerName(), "Jane, Doe");
    EXPECT_EQ(card.reader.readPartnerNumber(), "12345");
    EXPECT_EQ(card.versionSeen, "2.0.0");
}

TEST(CardReader, PutsBackTheQuotesOfThePartner) {
    Card card("\"J \xB2Jo\xB2\",\"\xB2\"\r\n");
    EXPECT_EQ(card.reader.readPartnerName(), "J \"Jo\"");
    EXPECT_EQ(card.reader.readPartnerNumber(), "\"");
}

TEST(CardReader, ReadsCounts) {
    EXPECT_EQ(Card("\r\n' # of\r\n231\r\n").reader.readCount(), 231);
    EXPECT_EQ(Card("0\r\n").reader.readCount(), 0);
    EXPECT_EQ(Card("-4\r\n").reader.readCount(), -4);
}

TEST(CardReader, ReadsThreeValuesOfAMark) {
    Card card("3,1,0\r\n4,0,0\r\n", "1.0.181");
    const MarkRecord third = card.reader.readMark();
    EXPECT_EQ(third.number, 3);
    EXPECT_TRUE(third.set);
    const MarkRecord fourth = card.reader.readMark();
    EXPECT_EQ(fourth.number, 4);
    EXPECT_FALSE(fourth.set);
}

TEST(CardReader, ReadsTwoValuesOfAMarkWithoutAVersion) {
    Card card("3,True\r\n4,\"False\"\r\n");
    EXPECT_TRUE(card.reader.readMark().set);
    const MarkRecord fourth = card.reader.readMark();
    EXPECT_EQ(fourth.number, 4);
    EXPECT_FALSE(fourth.set);
}

TEST(CardReader, ComparesVersionsAsTexts) {
    Card above("3,1,0\r\n4,1,0\r\n", "1.0.99");
    static_cast<void>(above.reader.readMark());
    EXPECT_EQ(above.reader.readMark().number, 4);
    Card below("3,1\r\n4,1\r\n", "1.0.180");
    static_cast<void>(below.reader.readMark());
    EXPECT_EQ(below.reader.readMark().number, 4);
}

TEST(CardReader, TakesNumbersInAnyOrderAndBelowOne) {
    Card card("9,1,0\r\n0,1,0\r\n-5,0,0\r\n", "2.0.0");
    EXPECT_EQ(card.reader.readMark().number, 9);
    EXPECT_EQ(card.reader.readMark().number, 0);
    EXPECT_EQ(card.reader.readMark().number, -5);
}

TEST(CardReader, ReadsThreeValuesOfAText) {
    Card card("7,\"5, ^h & ^S\",13\r\n8,\"\",0\r\n", "2.0.0");
    const TextRecord text = card.reader.readText();
    EXPECT_EQ(text.number, 7);
    EXPECT_EQ(text.text, "5, ^h & ^S");
    EXPECT_EQ(text.switches, text_switch::bold | text_switch::left | text_switch::highlight);
    EXPECT_EQ(text.style, TextRecord::Style::Switches);
    EXPECT_EQ(card.reader.readText().number, 8);
}

TEST(CardReader, KeepsFlagsOfTheOldFormatInATextOfTheNew) {
    EXPECT_EQ(Card("7,\"a\\\\B\\\\\",0\r\n", "2.0.0").reader.readText().text, "a\\\\B\\\\");
}

TEST(CardReader, PutsBackTheQuotesOfATextInEveryFormat) {
    EXPECT_EQ(Card("7,\"\xB2x\xB2\",0\r\n", "2.0.0").reader.readText().text, "\"x\"");
    EXPECT_EQ(Card("7,\"\xB2x\\\\I\\\\\"\r\n").reader.readText().text, "\"x");
    EXPECT_EQ(Card("7,\"\xB2x\"\r\n").reader.readText().text, "\"x");
}

TEST(CardReader, ReadsTheFlagsOfAnOldTextInAnyOrder) {
    Card card("7,\"abc\\\\LB\\\\\"\r\n8,\"\\\\I\\\\\"\r\n9,\"x\\\\\"\r\n");
    const TextRecord seventh = card.reader.readText();
    EXPECT_EQ(seventh.text, "abc");
    EXPECT_EQ(seventh.switches, text_switch::bold | text_switch::left);
    EXPECT_EQ(seventh.style, TextRecord::Style::Suffix);
    const TextRecord eighth = card.reader.readText();
    EXPECT_EQ(eighth.text, "");
    EXPECT_EQ(eighth.switches, text_switch::italic);
    const TextRecord ninth = card.reader.readText();
    EXPECT_EQ(ninth.text, "x");
    EXPECT_EQ(ninth.switches, 0);
    EXPECT_EQ(ninth.style, TextRecord::Style::Suffix);
}

TEST(CardReader, SplitsAnOldTextAtItsFirstDoubleBackslash) {
    const TextRecord text = Card("7,\"a\\\\b\\\\BI\\\\\"\r\n").reader.readText();
    EXPECT_EQ(text.text, "a");
    EXPECT_EQ(text.switches, text_switch::bold | text_switch::italic);
}

TEST(CardReader, LeavesTheStyleOfAnOldTextWithoutFlags) {
    const TextRecord text = Card("7,\"a\\\\B\"\r\n").reader.readText();
    EXPECT_EQ(text.text, "a\\\\B");
    EXPECT_EQ(text.style, TextRecord::Style::None);
}

TEST(CardReader, TakesSwitchesOfMinusOneForTheOldFormat) {
    Card card("7,\"a\\\\L\\\\\",-1\r\n8,\"b\",-1\r\n", "2.0.0");
    const TextRecord seventh = card.reader.readText();
    EXPECT_EQ(seventh.text, "a");
    EXPECT_EQ(seventh.switches, text_switch::left);
    EXPECT_EQ(seventh.style, TextRecord::Style::Suffix);
    EXPECT_EQ(card.reader.readText().style, TextRecord::Style::None);
}

TEST(CardReader, FollowsTheVersionThatATextSpeaksOf) {
    Card card("7,\"Program version: 1.0\"\r\n8,\"x\"\r\n9,\"y\"\r\n", "2.0.0");
    EXPECT_EQ(card.reader.readText().number, 7);
    EXPECT_EQ(card.versionSeen, "1.0\"");
    EXPECT_EQ(card.reader.readText().text, "x");
    EXPECT_EQ(card.reader.readText().text, "y");
}

TEST(CardReader, PassesOverCommentsBetweenRecords) {
    Card card("1,1,0\r\n\r\n' note\r\n2,0,0\r\n", "2.0.0");
    static_cast<void>(card.reader.readMark());
    EXPECT_EQ(card.reader.readMark().number, 2);
}

TEST(CardReader, AcceptsLineFeedsAloneAndAByteOrderMark) {
    Card card("\xEF\xBB\xBF' Program version: 2.0.0\n\"a\",\"b\"\n\n3\n1,1,0\n", "");
    EXPECT_EQ(card.reader.readPartnerName(), "a");
    EXPECT_EQ(card.reader.readPartnerNumber(), "b");
    EXPECT_EQ(card.reader.readCount(), 3);
    EXPECT_TRUE(card.reader.readMark().set);
}

TEST(CardReader, ReadsATextOverSeveralLines) {
    EXPECT_EQ(Card("7,\"a\r\nb\",0\r\n", "2.0.0").reader.readText().text, "a\r\nb");
}

TEST(CardReader, FailsPastTheEnd) {
    Card nameless("\"a\"");
    EXPECT_EQ(nameless.reader.readPartnerName(), "a");
    EXPECT_EQ(failureOf([&] { static_cast<void>(nameless.reader.readPartnerNumber()); }), 62);
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("' x").reader.readCount()); }), 62);
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("1,1", "2.0.0").reader.readMark()); }), 62);
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("1,\"a\"", "2.0.0").reader.readText()); }), 62);
}

TEST(CardReader, FailsOnValuesOfTheWrongKind) {
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("x,1").reader.readMark()); }), 13);
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("1,maybe").reader.readMark()); }), 13);
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("1,1,x", "2").reader.readMark()); }), 13);
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("1,\"a\",x", "2").reader.readText()); }), 13);
    EXPECT_EQ(failureOf([] { static_cast<void>(Card("70000").reader.readCount()); }), 6);
}

/// Reads a whole card as the program does; the number of the failure, 0 for none.
int readWhole(std::string content) {
    Card card(std::move(content));
    return failureOf([&] {
        static_cast<void>(card.reader.readPartnerName());
        static_cast<void>(card.reader.readPartnerNumber());
        for (int i = card.reader.readCount(); i > 0; --i) static_cast<void>(card.reader.readMark());
        for (int i = card.reader.readCount(); i > 0; --i) static_cast<void>(card.reader.readText());
    });
}

std::string wholeCard() {
    CardDocument document;
    document.programVersion = "2.0.0";
    document.partner = {"Jane", "12345"};
    document.marks = {true, false};
    document.texts = {{"5^h & more", 3}, {"", 0}};
    return writeCard(document);
}

TEST(CardReader, FailsOnATruncatedCard) {
    const std::string whole = wholeCard();
    ASSERT_EQ(readWhole(whole), 0);
    const std::size_t lastValue = whole.size() - 3;
    for (std::size_t length = 0; length <= lastValue; ++length)
        ASSERT_NE(readWhole(whole.substr(0, length)), 0) << length;
}

TEST(CardReader, SurvivesAnyByteInAnyPlace) {
    const std::string whole = wholeCard();
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (const char byte : {'\0', '"', ',', '\n', '\\', '-', '9', '\xFF'}) {
            std::string damaged = whole;
            damaged[place] = byte;
            const int failure = readWhole(damaged);
            ASSERT_TRUE(failure == 0 || failure == 6 || failure == 13 || failure == 62) << failure;
        }
    }
}

TEST(IsCard, TakesWhatAPlayerCanOpen) {
    EXPECT_TRUE(isCard(wholeCard()));
    CardDocument card;
    card.programVersion = "2.1.0";
    card.marks = {true, false};
    card.texts = {{"a, \"b\" && ^h", 15}, {"", 0}};
    EXPECT_TRUE(isCard(writeCard(card)));
    // Of an older program, and of one with other fields.
    EXPECT_TRUE(isCard("\"Jane\",\"\"\n1\n1,1\n2\n1,\"2C\\\\B\\\\\"\n2,\"\"\n"));
    EXPECT_TRUE(isCard("' Program version: 2.0.0\n\"\",\"\"\n1\n900,1,0\n1\n700,\"x\",0"));
}

TEST(IsCard, RefusesAllElse) {
    for (const char* content :
         {"", "Dear Joe,\r\n", "'Comment\r\n", "a,b", "a,b\r\n0\r\n1\r\n1,x\r\n",
          "a,b\r\n1\r\n1,1\r\n0\r\n", "a,b\r\n1\r\n-1,1\r\n1\r\n1,x\r\n",
          "a,b\r\n1\r\n1,1\r\n1\r\n-1,x\r\n", "a,b\r\n2\r\n1,1\r\n1\r\n1,x\r\n"})
        EXPECT_FALSE(isCard(content)) << content;
}

TEST(IsCard, RefusesATruncatedCard) {
    const std::string whole = wholeCard();
    for (std::size_t length = 0; length <= whole.size() - 3; ++length)
        ASSERT_FALSE(isCard(whole.substr(0, length))) << length;
}

TEST(CardReader, ReadsVeryLongLinesInOneGo) {
    std::string marks = "' Program version: 2.0.0\r\na,b,32767,";
    for (int i = 0; i < 32767; ++i) marks += "1,1,0,";
    EXPECT_EQ(readWhole(marks + "1,1,\"" + std::string(10'000'000, 'x') + "\",0\r\n"), 0);
    EXPECT_EQ(readWhole("'" + std::string(10'000'000, ' ') + "\r\n"), 62);
    EXPECT_EQ(readWhole(std::string(10'000'000, ' ') + "1,2,1,1,1,1,3,0"), 0);
}

} // namespace
} // namespace zev

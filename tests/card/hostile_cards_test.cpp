#include <ctime>
#include <random>

#include "card/load.h"
#include "card/write_card.h"
#include "card_form_test.h"
#include "form/write_options.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

/// Processor time of this process, which doesn't depend on how busy the machine is.
double secondsSpent() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

class HostileCard : public CardFormTest {
  protected:
    HostileCard() {
        announceError("Error in GetCardFile ");
        writeOptions("Zoom=5\r\nName=Joe\r\n");
    }

    enum class Outcome { Loaded, Told, Traced };

    /// Loads the content into the fields as they are; every load ends in one of three ways.
    Outcome load(std::string_view content) {
        writeCard("Hostile", content);
        fs::remove(dataFile("Trace.txt"));
        boxes.clear();
        form.CardName = "Hostile";
        form.CardVersion = "none";
        GetCardFile(form);
        EXPECT_EQ(form.CardName, "Hostile");
        EXPECT_FALSE(form.CardModified);
        EXPECT_EQ(form.AMark.UBound(), 3);
        EXPECT_EQ(form.AText.UBound(), 3);
        if (form.CardVersion != "none") return Outcome::Loaded;
        if (!boxes.empty()) return Outcome::Told;
        EXPECT_TRUE(fs::exists(dataFile("Trace.txt")));
        return Outcome::Traced;
    }
};

TEST_F(HostileCard, TruncatedAtAnyByteIsNeverTakenForAWholeOne) {
    start();
    const std::string whole = cardFile({.partner = "\"Jane\",\"1\"",
                                        .marks = {"1,1,0", "2,1,0", "3,0,0"},
                                        .texts = {"1,\"5^h & x\",0", "2,\"b\",3", "3,\"us\",1"}});
    ASSERT_EQ(load(whole), Outcome::Loaded);
    const std::size_t lastValue = whole.size() - 3;
    for (std::size_t length = 0; length <= lastValue; ++length)
        ASSERT_NE(load(whole.substr(0, length)), Outcome::Loaded) << length;
    EXPECT_EQ(load(whole.substr(0, lastValue + 1)), Outcome::Loaded);
}

TEST_F(HostileCard, OfRandomBytesChangesNothingButTheCard) {
    start();
    std::mt19937 random(20261121);
    std::uniform_int_distribution<int> byte(0, 255);
    const std::string layout = dataFileContent("Definitions.Ini");
    for (int round = 0; round < 200; ++round) {
        std::string content(static_cast<std::size_t>(round) * 7, '\0');
        for (char& character : content) character = static_cast<char>(byte(random));
        ASSERT_NE(load(content), Outcome::Loaded);
    }
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
}

TEST_F(HostileCard, WithAnyByteInAnyPlaceIsSurvived) {
    start();
    const std::string whole = cardFile({.texts = {"1,\"5^h\",0", "2,\"b\\\\B\\\\\",-1"}});
    int loaded = 0;
    for (std::size_t place = 0; place < whole.size(); ++place) {
        for (const char byte : {'\0', '"', ',', '-', '9', '\xFF'}) {
            std::string damaged = whole;
            damaged[place] = byte;
            if (load(damaged) == Outcome::Loaded) ++loaded;
        }
    }
    EXPECT_GT(loaded, 0);
    window->update();
    toolkit::test::settle();
}

TEST_F(HostileCard, WithNumbersOutOfRangeIsTraced) {
    start();
    for (const char* number : {"32768", "-32769", "99999999999999999999", "1e300", "nan", "1x"})
        EXPECT_EQ(load(cardFile({.marks = {std::string(number) + ",1,0"}})), Outcome::Traced)
            << number;
    EXPECT_EQ(load("\"\",\"\"\r\n40000\r\n"), Outcome::Traced);
    EXPECT_EQ(load("\"\",\"\"\r\n-40\r\n"), Outcome::Told);
}

TEST_F(HostileCard, WithNulBytesInATextIsLoadedAndSavedAgain) {
    start();
    const std::string text("a\0b", 3);
    ASSERT_EQ(load(cardFile({.texts = {"1,\"" + text + "\",0"}})), Outcome::Loaded);
    EXPECT_EQ(form.AText[1].Tag, text);
    window->update();
    toolkit::test::settle();
    choose("File>Save");
    EXPECT_NE(dataFileContent("Hostile.zev").find("1,\"" + text + "\",0\r\n"), std::string::npos);
}

TEST_F(HostileCard, WithALineOfTenMillionCharactersIsLoadedInTime) {
    start();
    const double began = secondsSpent();
    std::string text;
    text.resize(10'000'000, 'x');
    ASSERT_EQ(load(cardFile({.texts = {"1,\"" + text + "\",0", "2,\"b\",0"}})), Outcome::Loaded);
    EXPECT_EQ(form.AText[1].Tag.size(), text.size());
    EXPECT_EQ(form.AText[2].Tag, "b");
    window->update();
    toolkit::test::settle();
    EXPECT_EQ(load("'" + text + "\r\n"), Outcome::Traced);
    EXPECT_EQ(load(text), Outcome::Traced);
    EXPECT_LT(secondsSpent() - began, 60);
}

TEST_F(HostileCard, OfCountlessSymbolsIsLoadedInTime) {
    start();
    const double began = secondsSpent();
    std::string text;
    for (int i = 0; i < 5'000'000; ++i) text += "^h";
    ASSERT_EQ(load(cardFile({.texts = {"1,\"" + text + "\",0"}})), Outcome::Loaded);
    EXPECT_GT(form.SText.UBound(), 50);
    EXPECT_LT(form.SText.UBound(), 5'000);
    window->update();
    toolkit::test::settle();
    EXPECT_LT(secondsSpent() - began, 60);
}

TEST_F(HostileCard, OnDiskAtTheStartLeavesABlankCard) {
    writeCard("Hostile", std::string("\0\xFF\"", 3));
    start("Hostile");
    EXPECT_TRUE(traced("Error in GetCardFile 62, Input past end of file"));
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_FALSE(form.AMark[1].Visible);
}

} // namespace
} // namespace zev::test

#include "card/load.h"
#include "card/write_card.h"
#include "card_form_test.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class LoadFailure : public CardFormTest {
  protected:
    void expectBadCardBox() const {
        ASSERT_EQ(boxes.size(), 1U);
        EXPECT_EQ(boxes[0].text, "This card file contains errors and cannot be used");
        EXPECT_EQ(boxes[0].title, "");
        EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
        EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    }

    /// Opens a card that fails half-way with this failure, silently.
    void expectTraced(const CardLines& card, const std::string& failure) {
        announceError("Error in GetCardFile " + failure);
        openCard("Jones", card);
        EXPECT_TRUE(traced("Error in GetCardFile " + failure));
        EXPECT_TRUE(boxes.empty());
        EXPECT_EQ(form.CardName, "Jones");
        EXPECT_FALSE(form.CardModified);
        EXPECT_EQ(form.CardVersion, "");
    }
};

TEST_F(LoadFailure, ACardWithoutMarkRecordsIsToldToBeBad) {
    start();
    openCard("Bad", {.partner = "\"Jane\",\"1\"", .marks = {}, .texts = {"1,\"a\",0"}});
    expectBadCardBox();
    EXPECT_EQ(form.PartnerName, "Jane");
    EXPECT_EQ(form.PartnerNumber, "1");
    EXPECT_EQ(form.AText[1].Tag, "");
    EXPECT_EQ(form.CardName, "Bad");
    EXPECT_EQ(form.Caption, "Zevlin  ( Bad )");
    EXPECT_EQ(form.CardVersion, "");
}

TEST_F(LoadFailure, ACardWithoutTextRecordsKeepsTheMarksAlreadyRead) {
    start();
    announceError("Error in GetCardFile - bad card: ");
    openCard("Bad", {.marks = {"2,1,0"}, .texts = {}});
    expectBadCardBox();
    EXPECT_TRUE(
        traced("Error in GetCardFile - bad card: " + dataFile("Bad.zev").string() + ", 0, "));
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_EQ(form.AText[3].Caption, "");
    EXPECT_EQ(form.CardVersion, "");
}

TEST_F(LoadFailure, ABadCardKeepsItsNameAndIsOverwrittenBySave) {
    start();
    openCard("Bad", {.marks = {}});
    choose("File>Save");
    EXPECT_NE(dataFileContent("Bad.zev").find("called: Bad\r\n"), std::string::npos);
    EXPECT_TRUE(dataFileContent("Bad.zev").ends_with("3,\"\",1\r\n"));
}

TEST_F(LoadFailure, AMissingFileTakesTheNameAndLeavesTheCard) {
    start();
    clickMark(1);
    form.CardName = "Gone";
    GetCardFile(form);
    EXPECT_EQ(form.CardName, "");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(LoadFailure, ANumberBeyondSixteenBitsEndsTheLoading) {
    start();
    expectTraced({.marks = {"1,1,0"}, .texts = {"1,\"a\",0", "70000,\"b\",0"}}, "6, Overflow");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a");
}

TEST_F(LoadFailure, ANumberThatIsNoneEndsTheLoading) {
    start();
    expectTraced({.marks = {"1,1,0", "two,1,0", "3,1,0"}}, "13, Type mismatch");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[3].Visible);
}

TEST_F(LoadFailure, AStateThatIsNoTruthValueEndsTheLoading) {
    start();
    expectTraced({.marks = {"1,1,0", "2,maybe,0"}}, "13, Type mismatch");
}

TEST_F(LoadFailure, ANegativeMarkNamesNoControl) {
    start();
    expectTraced({.marks = {"-1,1,0"}}, "340, Control array element '-1' doesn't exist");
}

TEST_F(LoadFailure, ANegativeTextNamesNoControl) {
    start();
    expectTraced({.texts = {"1,\"a\",0", "-7,\"b\",0"}},
                 "340, Control array element '-7' doesn't exist");
    EXPECT_EQ(form.AText[1].Tag, "a");
}

TEST_F(LoadFailure, AnEndTooEarlyEndsTheLoading) {
    start();
    expectTraced({.texts = {"1,\"a\",0", "2"}}, "62, Input past end of file");
    EXPECT_EQ(form.AText[1].Tag, "a");
    EXPECT_EQ(form.AText[3].Caption, "");
}

TEST_F(LoadFailure, APartnerWithoutANumberStaysByName) {
    start();
    writeCard("Jones", "' Program version: 2.0.0\r\n\"Jane\"\r\n");
    announceError("Error in GetCardFile 62, Input past end of file");
    openNamed("Jones");
    EXPECT_EQ(form.PartnerName, "Jane");
}

TEST_F(LoadFailure, AnEmptyFileEndsTheLoading) {
    start();
    writeCard("Jones", "");
    announceError("Error in GetCardFile 62, Input past end of file");
    openNamed("Jones");
    EXPECT_TRUE(traced("Error in GetCardFile 62, Input past end of file"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(LoadFailure, AFolderInThePlaceOfTheFileIsTraced) {
    start();
    fs::create_directory(dataFile("Jones.zev"));
    announceError("Error in GetCardFile 75, Path/File access error");
    openNamed("Jones");
    EXPECT_TRUE(traced("Error in GetCardFile 75, Path/File access error"));
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(form.AText.UBound(), 3);
}

TEST_F(LoadFailure, AFileThatCannotBeReadIsTraced) {
    start();
    fs::create_symlink("/proc/self/mem", dataFile("Jones.zev"));
    announceError("Error in GetCardFile 57, Device I/O error");
    openNamed("Jones");
    EXPECT_TRUE(traced("Error in GetCardFile 57, Device I/O error"));
    EXPECT_TRUE(boxes.empty());
}

TEST_F(LoadFailure, AFileWhosePathLeadsNowhereIsTraced) {
    start();
    fs::create_symlink(dataFile("Jones.zev"), dataFile("Jones.zev"));
    announceError("Error in GetCardFile 57, Device I/O error");
    openNamed("Jones");
    EXPECT_TRUE(traced("Error in GetCardFile 57, Device I/O error"));
}

TEST_F(LoadFailure, ACardNamedAtTheStartIsToldToBeBadToo) {
    writeCard("Bad", cardFile({.marks = {}}));
    start("Bad");
    expectBadCardBox();
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_EQ(form.Caption, "Zevlin  ( Bad )");
}

} // namespace
} // namespace zev::test

#include "card/save.h"
#include "card/write_card.h"
#include "card_form_test.h"

namespace zev::test {
namespace {

class SaveAs : public CardFormTest {
  protected:
    void saveAs(const std::string& name) {
        answerName(name);
        choose("File>Save As...");
    }
};

TEST_F(SaveAs, NamesAndSavesTheCard) {
    start();
    clickMark(1);
    saveAs("  Jones ");
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
    EXPECT_NE(dataFileContent("Jones.zev").find("\r\n1,1,0\r\n"), std::string::npos);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(SaveAs, SaysSoInTheTitleAndPutsItBack) {
    start();
    clickMark(1);
    saveAs("");
    ASSERT_EQ(choosers.size(), 1U);
    EXPECT_EQ(choosers[0], "Zevlin  (unnamed) * - Save this card");
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
}

TEST_F(SaveAs, LeavesTheTitleAloneWhileZooming) {
    start();
    form.Zooming = true;
    saveAs("");
    EXPECT_EQ(choosers.at(0), "Zevlin  (unnamed)");
}

TEST_F(SaveAs, CancelKeepsTheOldName) {
    start();
    openCard("Jones", {});
    saveAs("");
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_FALSE(traced("MSave_Click"));
}

TEST_F(SaveAs, AsksWhetherThePartnerStays) {
    start();
    openCard("Jones", {.partner = "\"\",\"12345\""});
    answer(toolkit::Answer::Cancel);
    choose("File>Save As...");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Do you want to keep the same Partner's information in the new card?");
    EXPECT_EQ(boxes[0].title, "");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNoCancel);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Question);
    EXPECT_EQ(boxes[0].preset, toolkit::Answer::No);
    EXPECT_EQ(choosers.size(), 1U); // the one that opened the card
    EXPECT_EQ(form.PartnerNumber, "12345");
}

TEST_F(SaveAs, YesKeepsThePartner) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"1\""});
    answer(toolkit::Answer::Yes);
    saveAs("Smith");
    EXPECT_NE(dataFileContent("Smith.zev").find("\r\n\"Jane\",\"1\"\r\n"), std::string::npos);
}

TEST_F(SaveAs, NoForgetsThePartnerButNotTheNamesLine) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"1\"", .texts = {"3,\"Joe & Jane #1\",1"}});
    answer(toolkit::Answer::No);
    saveAs("Smith");
    EXPECT_EQ(form.PartnerName, "");
    EXPECT_EQ(form.PartnerNumber, "");
    EXPECT_EQ(form.AText[3].Caption, "Joe && Jane #1");
    const std::string saved = dataFileContent("Smith.zev");
    EXPECT_NE(saved.find("\r\n\"\",\"\"\r\n"), std::string::npos);
    EXPECT_NE(saved.find("3,\"Joe & Jane #1\",1\r\n"), std::string::npos);
}

TEST_F(SaveAs, NoKeepsThePartnerOnScreenWhenTheNamingIsCancelled) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"1\""});
    answer(toolkit::Answer::No);
    saveAs("");
    EXPECT_EQ(form.PartnerName, "Jane");
}

TEST_F(SaveAs, AsksBeforeItReplacesACard) {
    start();
    writeCard("Jones", "old");
    answer(toolkit::Answer::No);
    saveAs("Jones");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "File already exists. Do you want to replace it?");
    EXPECT_EQ(boxes[0].title, "Overwrite existing file?");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNo);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Question);
    EXPECT_EQ(dataFileContent("Jones.zev"), "old");
    EXPECT_EQ(form.CardName, "");
}

TEST_F(SaveAs, YesReplacesTheCard) {
    start();
    writeCard("Jones", "old");
    answer(toolkit::Answer::Yes);
    saveAs("Jones");
    EXPECT_NE(dataFileContent("Jones.zev"), "old");
    EXPECT_EQ(form.CardName, "Jones");
}

TEST_F(SaveAs, AsksAlsoForANameInAnotherCaseOrWithBlanks) {
    start();
    writeCard("Jones", "old");
    answer(toolkit::Answer::No);
    saveAs("jones");
    answer(toolkit::Answer::No);
    saveAs("Jones ");
    EXPECT_EQ(boxes.size(), 2U);
    EXPECT_EQ(dataFileContent("Jones.zev"), "old");
}

TEST_F(SaveAs, TakesATypedExtensionForPartOfTheName) {
    start();
    saveAs("Jones.zev");
    EXPECT_EQ(form.CardName, "Jones.zev");
    EXPECT_TRUE(std::filesystem::exists(dataFile("Jones.zev.zev")));
}

TEST_F(SaveAs, TellsItsStepsInTheTrace) {
    start();
    saveAs("Jones");
    EXPECT_TRUE(tracedInOrder({"MSaveAs_Click", "GetFileNames", "PopulateFileList"}));
    EXPECT_TRUE(tracedInOrder({"BOK_Click", "MSave_Click", "ResetMod 0"}));
    EXPECT_TRUE(tracedInOrder({"SetCaption", "MakeTimeStamp", "PositionTimeStamp", "SetCaption",
                               "MakeTimeStamp", "PositionTimeStamp"}));
}

} // namespace
} // namespace zev::test

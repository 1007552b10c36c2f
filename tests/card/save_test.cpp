#include "card/save.h"

#include "card/write_card.h"
#include "card_form_test.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/folder.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

class SaveCard : public CardFormTest {
  protected:
    /// The records of the text fields in the saved card, behind the last comment.
    [[nodiscard]] std::string savedTexts(std::string_view name) const {
        const std::string file = dataFileContent(name);
        return file.substr(file.find("4=Left-justify)\r\n") + 17);
    }
};

constexpr std::string_view wholeCard =
    "' ************************************************************************\r\n"
    "' **           DO NOT MODIFY THIS FILE (it's OK to delete it)           **\r\n"
    "' ************************************************************************\r\n"
    "\r\n"
    "' This contains the settings for the card called: Jones\r\n"
    "' You may delete it from your computer if you no longer need it\r\n"
    "' Program version: 2.1.0\r\n"
    "\r\n"
    "' Partner's name and ACBL ID number (both are optional)\r\n"
    "\"Jane Doe\",\"12345\"\r\n"
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
    "3\r\n"
    "\r\n"
    "' For each, 3 values: its field-number; the text it contains; bit-switches (1=Bold, 2=Italic, "
    "4=Left-justify)\r\n"
    "1,\"5^H, 3-4 & \xB2weak\xB2\",0\r\n"
    "2,\"\",0\r\n"
    "3,\"Jane Doe #12345\",1\r\n";

TEST_F(SaveCard, WritesTheCardByteForByte) {
    start();
    clickMark(2);
    typeInto(1, "5^H, 3-4 & \"weak\"");
    answerInput("Jane Doe 12345");
    choose("Options>Partner's Name");
    answerName("Jones");
    answer(toolkit::Answer::Yes);
    choose("File>Save");
    EXPECT_EQ(dataFileContent("Jones.zev"), wholeCard);
}

TEST_F(SaveCard, WritesARecordForEveryFieldOfAnEmptyCard) {
    start();
    form.CardName = "Empty";
    choose("File>Save");
    EXPECT_NE(dataFileContent("Empty.zev").find("1,0,0\r\n2,0,0\r\n3,0,0\r\n"), std::string::npos);
    EXPECT_EQ(savedTexts("Empty.zev"), "1,\"\",0\r\n2,\"\",0\r\n3,\"\",1\r\n");
}

TEST_F(SaveCard, WritesEveryStyleAsASwitch) {
    start();
    form.CardName = "Styles";
    form.AText[1].Font.Bold = true;
    form.AText[1].Font.Italic = true;
    form.AText[2].Alignment = toolkit::Alignment::Left;
    form.Highlight[2].Visible = true;
    choose("File>Save");
    EXPECT_EQ(savedTexts("Styles.zev"), "1,\"\",3\r\n2,\"\",12\r\n3,\"\",1\r\n");
}

TEST_F(SaveCard, WritesEveryFieldBoldWhileTheWholeCardIs) {
    start();
    form.CardName = "Bold";
    form.mBold.Checked = true;
    choose("File>Save");
    EXPECT_EQ(savedTexts("Bold.zev"), "1,\"\",1\r\n2,\"\",1\r\n3,\"\",1\r\n");
}

TEST_F(SaveCard, WritesTheTextOfAFieldThatIsStillOpen) {
    start();
    form.CardName = "Open";
    typeInto(1, "old");
    typeInOpenField(1, "new");
    ASSERT_TRUE(form.CText.Visible);
    choose("File>Save");
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_TRUE(savedTexts("Open.zev").starts_with("1,\"new\",0\r\n"));
}

TEST_F(SaveCard, WritesTheTextOfAnOpenLeftJustifiedField) {
    start();
    form.CardName = "Open";
    form.AText[1].Alignment = toolkit::Alignment::Left;
    typeInOpenField(1, "new");
    ASSERT_TRUE(form.LText.Visible);
    choose("File>Save");
    EXPECT_FALSE(form.LText.Visible);
    EXPECT_TRUE(savedTexts("Open.zev").starts_with("1,\"new\",4\r\n"));
}

TEST_F(SaveCard, TrimsTheName) {
    start();
    form.CardName = "  Jones ";
    choose("File>Save");
    EXPECT_TRUE(std::filesystem::exists(dataFile("Jones.zev")));
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
}

TEST_F(SaveCard, NamesTheFileInThePlatformsOwnCharacters) {
    start();
    form.CardName = "Ren\xE9";
    choose("File>Save");
    EXPECT_TRUE(std::filesystem::exists(dataFile("Ren\xC3\xA9.zev")));
    EXPECT_NE(dataFileContent("Ren\xC3\xA9.zev").find("card called: Ren\xE9\r\n"),
              std::string::npos);
}

TEST_F(SaveCard, ReplacesTheFileOfTheSameNameInAnotherCase) {
    start();
    writeCard("JONES", "old");
    form.CardName = "jones";
    choose("File>Save");
    EXPECT_FALSE(std::filesystem::exists(dataFile("jones.zev")));
    EXPECT_TRUE(dataFileContent("JONES.zev").ends_with("3,\"\",1\r\n"));
}

TEST_F(SaveCard, LeavesTheCardUnchangedAndWithoutUndo) {
    start();
    form.CardName = "Jones";
    clickText(1);
    toolkit::test::typeText("x");
    ASSERT_EQ(form.Caption, "Zevlin  ( Jones ) *");
    choose("File>Save");
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.OrigIndex, 0);
    EXPECT_EQ(form.OrigText, "");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
}

TEST_F(SaveCard, TellsItsStepsInTheTrace) {
    start();
    form.CardName = "Jones";
    choose("File>Save");
    EXPECT_TRUE(tracedInOrder({"MSave_Click", "ResetMod 0", "SetCaption", "MakeTimeStamp",
                               "PositionTimeStamp", "MakeTimeStamp", "PositionTimeStamp",
                               "SetCaption", "MakeTimeStamp", "PositionTimeStamp"}));
}

TEST_F(SaveCard, LeavesTheTitleAloneWhileZooming) {
    start();
    form.CardName = "Jones";
    form.Zooming = true;
    choose("File>Save");
    EXPECT_TRUE(tracedInOrder(
        {"MSave_Click", "ResetMod 0", "SetCaption", "MakeTimeStamp", "MakeTimeStamp"}));
    EXPECT_EQ(traceLines().back(), "MakeTimeStamp");
    EXPECT_FALSE(tracedInOrder({"MakeTimeStamp", "MakeTimeStamp", "SetCaption"}));
}

TEST_F(SaveCard, WithoutANameWritesNothingWhenTheNamingIsCancelled) {
    start();
    clickMark(1);
    answerName("");
    choose("File>Save");
    EXPECT_EQ(form.CardName, "");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(toolkit::listFiles(dataFolder, ".zev").empty());
}

TEST_F(SaveCard, StampsTheCardWithItsName) {
    toolkit::overrideClock(0);
    start();
    form.CardName = "R&D";
    choose("File>Save");
    EXPECT_TRUE(form.Timestamp.Caption.starts_with("[ R&&D ]  ")) << form.Timestamp.Caption;
}

} // namespace
} // namespace zev::test

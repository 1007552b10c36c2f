#include "card/document.h"
#include "card/save.h"
#include "card_form_test.h"
#include "toolkit/base/folder.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

class RebuildKeepsCard : public CardFormTest {};

TEST_F(RebuildKeepsCard, ContentAndStyles) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"8\"",
                       .marks = {"1,1,0", "2,0,0", "3,1,0"},
                       .texts = {"1,\"5^h, \xB2x\xB2 & y\",14", "2,\"b\",3", "3,\"we\",1"}});
    RebuildScreenImage(form);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_TRUE(form.AMark[3].Visible);
    EXPECT_EQ(form.AText[1].Tag, "5^h, \"x\" && y");
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Left);
    EXPECT_TRUE(form.Highlight[1].Visible);
    EXPECT_TRUE(form.AText[2].Font.Bold);
    EXPECT_EQ(form.AText[3].Tag, "we");
    EXPECT_EQ(form.SText.UBound(), 1);
    EXPECT_EQ(form.PartnerName, "Jane");
    EXPECT_EQ(form.PartnerNumber, "8");
}

TEST_F(RebuildKeepsCard, NameAndUnchangedState) {
    start();
    openCard("Jones", {.marks = {"1,1,0"}});
    RebuildScreenImage(form);
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
}

TEST_F(RebuildKeepsCard, ChangedState) {
    start();
    clickMark(1);
    RebuildScreenImage(form);
    EXPECT_EQ(form.CardName, "");
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(RebuildKeepsCard, TextOfAFieldThatIsStillOpen) {
    start();
    typeInOpenField(1, "new");
    RebuildScreenImage(form);
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(form.AText[1].Tag, "new");
    EXPECT_TRUE(form.CardModified);
}

TEST_F(RebuildKeepsCard, FilesOfTheFolder) {
    start();
    openCard("Jones", {});
    clickMark(1);
    const std::string saved = dataFileContent("Jones.zev");
    RebuildScreenImage(form);
    EXPECT_EQ(dataFileContent("Jones.zev"), saved);
    EXPECT_EQ(toolkit::listFiles(dataFolder, ".zev"), std::vector<std::string>{"Jones.zev"});
}

TEST_F(RebuildKeepsCard, NamesLineWithoutTheTemporaryName) {
    start();
    RebuildScreenImage(form);
    EXPECT_EQ(form.AText[3].Caption, "");
}

TEST_F(RebuildKeepsCard, AllOfItWhereTheTemporaryFileCantBeWritten) {
    start();
    openCard("Jones", {});
    clickMark(1);
    std::filesystem::create_directory(dataFile("$$Tempcard.zev"));
    announceError("Error in MSave_Click 75, Path/File access error");
    RebuildScreenImage(form);
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.AMark[1].Visible);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_NE(
        boxes[0].text.find("A temporary copy of the card ($$Tempcard.zev): Path/File access error"),
        std::string::npos)
        << boxes[0].text;
}

/// The card keeps even what a card file can't hold, or changes.
TEST_F(RebuildKeepsCard, ToTheLetter) {
    start();
    typeInto(1, "Program version: 1.0");
    typeInto(2, "x² \"q\" &&&& ^H^h");
    const std::string raw = form.AText[2].Tag;
    const std::string shown = form.AText[2].Caption;
    RebuildScreenImage(form);
    EXPECT_EQ(form.AText[1].Tag, "Program version: 1.0");
    EXPECT_EQ(form.AText[2].Tag, raw);
    EXPECT_EQ(form.AText[2].Caption, shown);
    EXPECT_EQ(raw, "x\xB2 \"q\" &&&& ^H^h");
}

TEST_F(RebuildKeepsCard, AnEmptyNamesLine) {
    start();
    form.MyName = "Pat";
    RebuildScreenImage(form);
    EXPECT_EQ(form.AText[3].Tag, "");
    EXPECT_EQ(form.AText[3].Caption, "");
}

/// The player keeps a name that the options file can't hold.
TEST_F(RebuildKeepsCard, ThePlayersOwnName) {
    start();
    for (const std::string name : {"'Bob", "Bob  'the Cat' Smith"}) {
        answerInput(name + " 7");
        choose("Options>My Name");
        RebuildScreenImage(form);
        EXPECT_EQ(form.MyName, name);
        EXPECT_EQ(form.MyNumber, "7");
    }
}

TEST_F(RebuildKeepsCard, InTheMiddleOfAnotherRebuild) {
    start();
    openCard("Jones", {});
    clickMark(1);
    typeInto(1, "5^h");
    form.Carried = CarriedCard{.document = documentOf(form), .name = "Jones", .modified = true};
    form.CardName = "$$Tempcard";
    RebuildScreenImage(form);
    ASSERT_TRUE(form.Carried.has_value());
    EXPECT_EQ(form.Carried->document.texts[0].text, "5^h");
    EXPECT_TRUE(form.Carried->document.marks[0]);
    EXPECT_EQ(form.CardName, "$$Tempcard");
    EXPECT_FALSE(traced("Error in GetCardFile"));
    form.Carried.reset();
}

TEST_F(RebuildKeepsCard, WholeCardAtEveryZoom) {
    start();
    typeInto(1, "5^h");
    clickMark(2);
    for (std::int16_t level = 1; level <= 11; ++level) {
        form.ZoomLevel = level;
        RebuildScreenImage(form);
        EXPECT_EQ(form.AText[1].Tag, "5^h") << level;
        EXPECT_TRUE(form.AMark[2].Visible) << level;
        EXPECT_EQ(form.SText.UBound(), 1) << level;
    }
}

} // namespace
} // namespace zev::test

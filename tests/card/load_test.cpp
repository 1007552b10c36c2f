#include "card/load.h"

#include "card/write_card.h"
#include "card_form_test.h"
#include "form/write_options.h"

namespace zev::test {
namespace {

class LoadCard : public CardFormTest {};

/// Two values a record, as cards without a version line have them.
CardLines oldCard(const std::vector<std::string>& texts) {
    return {.version = "", .marks = {"1,1", "2,0", "3,True"}, .texts = texts};
}

TEST_F(LoadCard, FillsTheFieldsThePartnerAndTheTitle) {
    start();
    openCard("Jones", {.partner = "\"Jane Doe\",\"12345\"",
                       .marks = {"1,1,0", "2,0,0", "3,1,0"},
                       .texts = {"1,\"5^h & more\",14", "2,\"plain\",0", "3,\"us\",1"}});
    EXPECT_EQ(form.PartnerName, "Jane Doe");
    EXPECT_EQ(form.PartnerNumber, "12345");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_TRUE(form.AMark[3].Visible);
    EXPECT_EQ(form.AText[1].Tag, "5^h && more");
    EXPECT_EQ(form.AText[1].Caption, "5\xA0\xA0\xA0 && more");
    EXPECT_EQ(form.SText.UBound(), 1);
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
    EXPECT_EQ(form.CardVersion, "2.0.0");
}

TEST_F(LoadCard, TakesEveryStyleFromTheSwitches) {
    start();
    openCard("Jones", {.texts = {"1,\"a\",14", "2,\"b\",1"}});
    EXPECT_FALSE(form.AText[1].Font.Bold);
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Left);
    EXPECT_TRUE(form.Highlight[1].Visible);
    EXPECT_TRUE(form.AText[2].Font.Bold);
    EXPECT_FALSE(form.AText[2].Font.Italic);
    EXPECT_EQ(form.AText[2].Alignment, toolkit::Alignment::Center);
    EXPECT_FALSE(form.Highlight[2].Visible);
}

TEST_F(LoadCard, MakesEveryFieldBoldWhileTheWholeCardIs) {
    start();
    form.mBold.Checked = true;
    openCard("Jones", {.texts = {"1,\"a\",0", "2,\"b\",2"}});
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_TRUE(form.AText[2].Font.Bold);
    EXPECT_TRUE(form.AText[2].Font.Italic);
}

TEST_F(LoadCard, DropsRecordsBeyondASmallerLayoutForGood) {
    start();
    openCard("Large",
             {.marks = {"1,0,0", "4,1,0", "2,1,0"}, .texts = {"4,\"lost\",0", "1,\"kept\",0"}});
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_EQ(form.AText[1].Tag, "kept");
    choose("File>Save");
    const std::string saved = dataFileContent("Large.zev");
    EXPECT_EQ(saved.find("lost"), std::string::npos);
    EXPECT_EQ(saved.find("\r\n4,"), std::string::npos);
}

TEST_F(LoadCard, LeavesFieldsThatASmallerCardDoesNotNameCleared) {
    start();
    clickMark(3);
    typeInto(2, "before");
    answer(toolkit::Answer::No);
    openCard("Small", {.marks = {"1,1,0"}, .texts = {"1,\"a\",0"}});
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[3].Visible);
    EXPECT_EQ(form.AText[2].Tag, "");
    EXPECT_EQ(form.AText[2].Caption, "");
}

TEST_F(LoadCard, TakesRecordsInAnyOrderAndTheLastOfANumber) {
    start();
    openCard("Jones", {.marks = {"3,1,0", "1,1,0", "1,0,0"},
                       .texts = {"2,\"first\",1", "1,\"a\",0", "2,\"last\",2"}});
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_TRUE(form.AMark[3].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a");
    EXPECT_EQ(form.AText[2].Tag, "last");
    EXPECT_FALSE(form.AText[2].Font.Bold);
    EXPECT_TRUE(form.AText[2].Font.Italic);
}

TEST_F(LoadCard, IgnoresRecordsOfNumberZero) {
    start();
    openCard("Jones", {.marks = {"0,1,0", "1,1,0"}, .texts = {"0,\"x\",15", "1,\"a\",0"}});
    EXPECT_FALSE(form.AMark[0].Visible);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[0].Caption, "");
    EXPECT_EQ(form.AText[1].Tag, "a");
}

TEST_F(LoadCard, BringsBackCommasAmpersandsAndQuotes) {
    start();
    typeInto(1, "a, b & \"c\"");
    form.CardName = "Jones";
    choose("File>Save");
    openNamed("Jones");
    EXPECT_EQ(form.AText[1].Tag, "a, b && \"c\"");
    EXPECT_EQ(form.AText[1].Caption, "a, b && \"c\"");
}

TEST_F(LoadCard, TurnsATypedSuperscriptTwoIntoAQuote) {
    start();
    typeInto(1, "x\xC2\xB2");
    ASSERT_EQ(form.AText[1].Tag, "x\xB2");
    form.CardName = "Jones";
    choose("File>Save");
    openNamed("Jones");
    EXPECT_EQ(form.AText[1].Tag, "x\"");
}

TEST_F(LoadCard, MakesTwoTypedAmpersandsOne) {
    start();
    typeInto(1, "a&&b");
    form.CardName = "Jones";
    choose("File>Save");
    EXPECT_NE(dataFileContent("Jones.zev").find("1,\"a&b\",0"), std::string::npos);
    openNamed("Jones");
    EXPECT_EQ(form.AText[1].Tag, "a&&b");
}

TEST_F(LoadCard, ReadsTwoValuesOfACardWithoutAVersion) {
    start();
    openCard("Old", oldCard({"1,\"a\"", "2,\"b\"", "3,\"c\""}));
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_TRUE(form.AMark[3].Visible);
    EXPECT_EQ(form.AText[2].Tag, "b");
    EXPECT_EQ(form.AText[3].Tag, "c");
    EXPECT_EQ(form.CardVersion, "");
}

TEST_F(LoadCard, ForgetsTheVersionOfTheFileReadBefore) {
    start();
    ASSERT_EQ(form.VersionSeen, "2.0.0");
    openCard("Old", oldCard({"1,\"a\"", "2,\"b\""}));
    EXPECT_EQ(form.VersionSeen, "");
    EXPECT_EQ(form.AText[2].Tag, "b");
}

TEST_F(LoadCard, ReadsEveryVersionByItsText) {
    start();
    for (const std::string version : {"1.0.181", "1.0.99", "1.1", "2.0.0", "z"}) {
        openCard("New", {.version = version,
                         .marks = {"1,1,0", "2,1,0"},
                         .texts = {"1,\"a\",2", "2,\"" + version + "\",0"}});
        EXPECT_EQ(form.AText[2].Tag, version);
        EXPECT_TRUE(form.AText[1].Font.Italic);
    }
    for (const std::string version : {"1.0.180", "1.0.1000", "1.0", "0"}) {
        openCard("Old", {.version = version,
                         .marks = {"1,1", "2,1"},
                         .texts = {"1,\"a\\\\I\\\\\"", "2,\"" + version + "\""}});
        EXPECT_EQ(form.AText[2].Tag, version);
        EXPECT_TRUE(form.AText[1].Font.Italic);
        EXPECT_EQ(form.AText[1].Tag, "a");
    }
}

TEST_F(LoadCard, TakesOldStylesInAnyOrder) {
    start();
    openCard("Old", oldCard({"1,\"a\\\\LIB\\\\\"", "2,\"b\\\\B\\\\\""}));
    EXPECT_EQ(form.AText[1].Tag, "a");
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_EQ(form.AText[1].Alignment, toolkit::Alignment::Left);
    EXPECT_TRUE(form.AText[2].Font.Bold);
    EXPECT_FALSE(form.AText[2].Font.Italic);
    EXPECT_EQ(form.AText[2].Alignment, toolkit::Alignment::Center);
    EXPECT_FALSE(form.Highlight[1].Visible);
}

TEST_F(LoadCard, LeavesBoldToTheWholeCardInOldRecords) {
    start();
    form.mBold.Checked = true;
    openCard("Old", oldCard({"1,\"a\\\\I\\\\\"", "2,\"b\""}));
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_TRUE(form.AText[1].Font.Italic);
    EXPECT_TRUE(form.AText[2].Font.Bold);
}

TEST_F(LoadCard, TakesSwitchesOfMinusOneForAnOldRecord) {
    start();
    openCard("Jones", {.texts = {"1,\"a\\\\B\\\\\",-1", "2,\"b\\\\B\",-1"}});
    EXPECT_EQ(form.AText[1].Tag, "a");
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_EQ(form.AText[2].Tag, "b\\\\B");
    EXPECT_FALSE(form.AText[2].Font.Bold);
}

TEST_F(LoadCard, FollowsTheVersionThatATextSpeaksOf) {
    start();
    openCard("Jones", {.texts = {"1,\"Program version: 1.0\"", "2,\"old\"", "3,\"names\""}});
    EXPECT_EQ(form.AText[1].Tag, "Program version: 1.0");
    EXPECT_EQ(form.AText[2].Tag, "old");
    EXPECT_EQ(form.AText[3].Tag, "names");
}

TEST_F(LoadCard, NeverLeavesTheCardModified) {
    writeOptions("Zoom=5\r\nName=Joe\r\n");
    start();
    openCard("Jones", {.texts = {"1,\"a\",0"}});
    EXPECT_EQ(form.AText[3].Caption, "Joe");
    EXPECT_TRUE(traced("SetMod 0"));
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
}

TEST_F(LoadCard, FindsItsFileInAnyCase) {
    start();
    writeCard("JONES", cardFile({.texts = {"1,\"a\",0"}}));
    openNamed("jones");
    EXPECT_EQ(form.AText[1].Tag, "a");
    EXPECT_EQ(form.CardName, "jones");
}

TEST_F(LoadCard, LooksForTheNameAsItCameAndCleansItThen) {
    start();
    writeCard("Jones.zev", cardFile({.texts = {"1,\"a\",0"}}));
    form.CardName = "Jones.zev";
    GetCardFile(form);
    EXPECT_EQ(form.AText[1].Tag, "a");
    EXPECT_EQ(form.CardName, "Jones");
}

TEST_F(LoadCard, FindsNoFileForANameThatCameWithItsExtension) {
    start();
    writeCard("Jones", cardFile({.texts = {"1,\"a\",0"}}));
    form.CardName = "Jones.zev";
    GetCardFile(form);
    EXPECT_EQ(form.AText[1].Tag, "");
    EXPECT_EQ(form.CardName, "");
}

} // namespace
} // namespace zev::test

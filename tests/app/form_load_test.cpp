#include "app/form_load.h"

#include <algorithm>

#include "app/layouts.h"
#include "card/lifecycle.h"
#include "card/write_card.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/key.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

/// A card file that sets mark 1 of a layout with a single mark.
constexpr const char* cardWithMark =
    "'Card\r\n'Program version: 2.0.0\r\n\"Pat\",\"77\"\r\n1\r\n1,1,0\r\n1\r\n1,\"\",0\r\n";

class FormLoad : public FormTest {
  protected:
    FormLoad() { writeLayout(smallLayout({{.left = 100, .top = 100}}, {})); }
    void expectBlankCard() const {
        EXPECT_EQ(form.CardName, "");
        EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
        EXPECT_FALSE(form.AMark[1].Visible);
    }
};

TEST_F(FormLoad, TheStateOfAFreshStart) {
    start();
    EXPECT_EQ(form.ZoomLevels, 11);
    EXPECT_EQ(form.DesignZoomLevel, 5);
    EXPECT_EQ(form.ZoomTable, (std::array<float, 12>{0, 0.2F, 0.25F, 1.0F / 3, 0.425F, 0.5F, 0.6F,
                                                     2.0F / 3, 0.75F, 0.8F, 0.9F, 1}));
    EXPECT_EQ(form.MarkFontName, "Wingdings");
    EXPECT_EQ(form.MarkFontName2, "Wingdings 2");
    EXPECT_EQ(form.TextFontName, "Arial");
    EXPECT_EQ(form.NarrowFontName, "Arial Narrow");
    EXPECT_EQ(form.FallbackFontName, "Tahoma");
    EXPECT_EQ(form.SuitFontName, "Symbol");
    EXPECT_EQ(form.SuitChars, "\xA7\xA8\xA9\xAA");
    EXPECT_EQ(form.PrintMethod, 3);
    EXPECT_EQ(form.LastSchemeIndex, 1);
    EXPECT_EQ(form.Top, 0);
    EXPECT_FALSE(form.Initializing);
    EXPECT_FALSE(form.TraceOn);
    EXPECT_EQ(form.BackColor, form.FormBackColor);
    EXPECT_EQ(form.LSaveAs.BackColor, form.FormBackColor);
}

TEST_F(FormLoad, WithoutAZoomInTheOptionsTheCardStandsAtStepFour) {
    writeOptions("Fit=0\r\n");
    start();
    EXPECT_EQ(form.ZoomLevel, 4);
    EXPECT_EQ(form.P1.Width, 1018 * 15);
    EXPECT_FLOAT_EQ(form.CardScale, 1018.0F / 1198);
}

TEST_F(FormLoad, ADeliveredBuildHidesTheDesignMenuAndListensToTheWheel) {
    start();
    EXPECT_TRUE(form.ProductionBuild);
    EXPECT_FALSE(form.MShapes.Visible);
    EXPECT_FALSE(form.MShowDesignMenu.Checked);
    EXPECT_TRUE(form.WheelHooked);
    EXPECT_FALSE(toolkit::test::chooseMenu("Design>Red"));
}

TEST_F(FormLoad, TheTraceOfARunBeforeIsKept) {
    toolkit::writeFile(dataFile("Trace.txt"), "before");
    start();
    EXPECT_EQ(traceFile(), "before");
}

TEST_F(FormLoad, ThePenIsSmallBlackAndACheck) {
    start();
    EXPECT_TRUE(form.MSmall.Checked);
    EXPECT_TRUE(form.MBlack.Checked);
    EXPECT_TRUE(form.MCheck.Checked);
    EXPECT_FALSE(form.MMedium.Checked);
}

TEST_F(FormLoad, ThePrintColourItemsNeverShow) {
    start();
    EXPECT_FALSE(form.MMono.Visible);
    EXPECT_FALSE(form.MColor.Visible);
    EXPECT_FALSE(form.z21.Visible);
}

TEST_F(FormLoad, WhatARunThatWasKilledLeftHalfWrittenIsDeleted) {
    for (const char* name : {"$$ZEV.Ini.part", "$$A card.zev.part"})
        toolkit::writeTemporaryFile(dataFile(name), "half");
    start();
    EXPECT_FALSE(fs::exists(dataFile("$$ZEV.Ini.part")));
    EXPECT_FALSE(fs::exists(dataFile("$$A card.zev.part")));
}

TEST_F(FormLoad, ALayoutThatACrashLeftSetAsideComesBack) {
    toolkit::writeFile(dataFile("$$TempDef.Ini"), fewFields());
    start();
    EXPECT_EQ(dataFileContent("Definitions.Ini"), fewFields());
    EXPECT_FALSE(fs::exists(dataFile("$$TempDef.Ini")));
    EXPECT_EQ(form.AMark.UBound(), 4);
}

TEST_F(FormLoad, TheTraceBeginsWithDocumentsVersionHelpAndThePath) {
    toolkit::overrideClock(0);
    start();
    const auto lines = traceLines();
    ASSERT_GT(lines.size(), 4U);
    EXPECT_EQ(lines[0], "GetSpecialFolder");
    EXPECT_EQ(lines[1], "AppVersion");
    EXPECT_EQ(lines[2], "HelpCreate");
    EXPECT_TRUE(lines[3].starts_with("Form_Load 1970-01-01 "));
    EXPECT_TRUE(lines[3].ends_with(", path: " + dataFolder.string()));
}

TEST_F(FormLoad, APictureInTheDataFolderReplacesTheCardsButNotTheLayout) {
    toolkit::savePng(toolkit::Bitmap(2000, 2000, toolkit::rgb(1, 2, 3)),
                     dataFile("Convention card.gif"));
    const std::string layout = dataFileContent("Definitions.Ini");
    start();
    EXPECT_EQ(form.PBase.width(), 2000);
    EXPECT_EQ(form.P1.Width, 1000 * 15);
    EXPECT_EQ(form.AMark.UBound(), 1);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
    EXPECT_EQ(toolkit::test::grabCard().pixel(500, 500), toolkit::rgb(1, 2, 3));
}

TEST_F(FormLoad, ACommandLineInAnyFolderOpensTheCardOfThatNameInTheDataFolder) {
    writeCard("Jones", cardWithMark);
    start("/somewhere/else/Jones.zev");
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.PartnerName, "Pat");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones )");
    EXPECT_EQ(form.TSaveAs.Text, "Jones");
    EXPECT_TRUE(form.ChooserTaken);
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.P1.Left, 0);
    EXPECT_EQ(form.P1.Top, 0);
}

TEST_F(FormLoad, ACommandLineWithBackslashesIsCutAtTheLast) {
    writeCard("Jones", cardWithMark);
    start("C:\\cards\\Jones.zev");
    EXPECT_EQ(form.CardName, "Jones");
}

TEST_F(FormLoad, ACardFromElsewhereOnTheCommandLineIsCopiedAfterAQuestion) {
    writeCard("Jones", "another");
    const fs::path file = home / "mail" / "Jones.zev";
    fs::create_directory(file.parent_path());
    toolkit::writeFile(file, cardWithMark);
    answer(toolkit::Answer::Yes);
    start(file.string());
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Copy 'Jones' into your cards as 'Jones 2' and open it?");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones 2 )");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(dataFileContent("Jones 2.zev"), cardWithMark);
    EXPECT_EQ(dataFileContent("Jones.zev"), "another");
}

TEST_F(FormLoad, ACardFromElsewhereThatIsRefusedLeavesTheBlankCard) {
    writeCard("Jones", cardWithMark);
    const fs::path file = home / "Jones.zev";
    toolkit::writeFile(file, cardWithMark);
    answer(toolkit::Answer::No);
    start(file.string());
    expectBlankCard();
    EXPECT_FALSE(fs::exists(dataFile("Jones 2.zev")));
}

TEST_F(FormLoad, APathToACardOfTheDataFolderOpensItAtOnce) {
    writeCard("Jones", cardWithMark);
    writeCard("Jones 1.5", "\"\",\"\"\r\n1\r\n1,0,0\r\n1\r\n1,\"\",0\r\n");
    start((dataFolder / ".." / "ZEV" / "Jones.zev").string());
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(FormLoad, ANameOnTheCommandLineMayHoldBlanks) {
    writeCard("My Card", cardWithMark);
    start("My Card.zev");
    EXPECT_EQ(form.CardName, "My Card");
}

TEST_F(FormLoad, ANameOnTheCommandLineLosesAllFromItsFirstDotOn) {
    writeCard("a", cardWithMark);
    writeCard("a.b", "");
    start("a.b.zev");
    EXPECT_EQ(form.CardName, "a");
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(FormLoad, ANameOnTheCommandLineMayHoldLettersBeyondAscii) {
    writeCard("M\u00FCller", cardWithMark);
    start("/a/\u0141/M\u00FCller.zev");
    EXPECT_EQ(form.CardName, "M\xFCller");
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(FormLoad, ANameOnTheCommandLineFindsACardWhoseFileIsNamedDecomposed) {
    writeCard("Mu\u0308ller", cardWithMark);
    start("M\u00FCller");
    EXPECT_EQ(form.CardName, "M\xFCller");
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(FormLoad, ANameBeyondTheCodePageOpensNothing) {
    for (const char* name : {"?", "L", ""}) writeCard(name, cardWithMark);
    start("\u0141.zev");
    expectBlankCard();
}

#ifndef _WIN32
/// The journal has the card's name on one line.
TEST_F(FormLoad, ANameOfTwoLinesOpensNothing) {
    writeCard("a\nb", "\"\",\"\"\r\n1\r\n1,1,0\r\n1\r\n1,\"x\",0\r\n");
    start("a\nb.zev");
    EXPECT_EQ(form.CardName, "");
    EXPECT_FALSE(form.AMark[1].Visible);
}
#endif

TEST_F(FormLoad, ACardThatIsNotThereLeavesTheBlankCardUnnamed) {
    start("Nobody.zev");
    expectBlankCard();
}

TEST_F(FormLoad, QuotesOnTheCommandLineArePartOfTheName) {
    writeCard("Jones", cardWithMark);
    start("\"Jones.zev\"");
    expectBlankCard();
}

TEST_F(FormLoad, WithCardsAndNoCommandLineTheChooserOpens) {
    writeCard("Jones", cardWithMark);
    answerName("Jones");
    start();
    EXPECT_EQ(choosers.size(), 1U);
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(traced("MOpen_Click"));
}

TEST_F(FormLoad, WithoutCardsTheBlankCardStandsAtOnce) {
    start();
    EXPECT_TRUE(choosers.empty());
    expectBlankCard();
}

#ifndef _WIN32
/// Of two temporary cards whose names differ in case, the start removes only one.
TEST_F(FormLoad, ATemporaryCardIsNoCardThatOpensOrShowsTheChooser) {
    for (const char* commandLine : {"", "$$TEMPCARD", "/somewhere/$$TEMPCARD.ZEV"}) {
        writeCard("$$Tempcard", "");
        writeCard("$$TEMPCARD", "");
        start(commandLine);
        ASSERT_TRUE(std::filesystem::exists(dataFile("$$TEMPCARD.zev")));
        EXPECT_TRUE(choosers.empty());
        expectBlankCard();
    }
}
#endif

TEST_F(FormLoad, TheMenuHelpTakesAQuarterOfTheForm) {
    wireOnly();
    form.PopHelp.Height = 300;
    Form_Load(form, {});
    EXPECT_EQ(form.PopHelp.Left, form.ScaleWidth() * 3 / 8);
    EXPECT_EQ(form.PopHelp.Width, form.ScaleWidth() / 4);
    EXPECT_EQ(form.PopHelp.Height, 1200);
}

TEST_F(FormLoad, TheMenusAreExplainedBeforeTheLayoutIsLookedAt) {
    start();
    const auto lines = traceLines();
    const auto at = [&](std::string_view line) { return std::ranges::find(lines, line); };
    ASSERT_NE(at("InitMenuDescriptions"), lines.end());
    EXPECT_LT(at("IsProductionEnvironment"), at("InitMenuDescriptions"));
    EXPECT_LT(at("InitMenuDescriptions"), at("CheckIniUpdate"));
    EXPECT_EQ(form.Lmenus.List.size(), 11U);
    EXPECT_TRUE(form.MenuSelect);
}

TEST_F(FormLoad, TheCardHasTheFocusSoThatKeysReachIt) {
    start();
    EXPECT_EQ(form.ActiveControl, &form.P1);
    toolkit::test::typeKey(toolkit::key::f1);
    EXPECT_TRUE(form.THelp.Visible);
}

} // namespace
} // namespace zev::test

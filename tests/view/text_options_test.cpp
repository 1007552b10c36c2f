// What the whole-card options do to the card, to its changed mark and to the options file.
#include <string>

#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "view/text_options.h"

namespace zev::test {
namespace {

class TextOptions : public FormTest {
  protected:
    TextOptions() { writeLayout(fewFields()); }

    static void choose(const std::string& item) {
        EXPECT_TRUE(toolkit::test::chooseMenu("Options>" + item)) << item;
    }
    static void chooseSize(const std::string& size) { choose("Font size>" + size); }

    /// Types into a field and leaves it.
    void enter(int field, std::string_view text) {
        clickText(field);
        toolkit::test::typeText(text);
        toolkit::test::typeKey(toolkit::key::escape);
    }
    /// Smaller, Normal, Larger, Big: an X for each that is checked.
    [[nodiscard]] std::string sizes() const {
        std::string checks;
        for (const auto* item : {&form.mSmallerTextFont, &form.mNormalTextFont,
                                 &form.mLargerTextFont, &form.mBigTextFont})
            checks += item->Checked ? 'X' : '.';
        return checks;
    }
    [[nodiscard]] bool stores(const std::string& setting) const {
        return dataFileContent("ZEV.Ini").find(setting + " ") != std::string::npos;
    }
    [[nodiscard]] int rebuilds() const {
        const auto lines = traceLines();
        return static_cast<int>(std::count(lines.begin(), lines.end(), "RebuildScreenImage"));
    }
};

TEST_F(TextOptions, EachSizeSetsTheSmallTextOnly) {
    start();
    EXPECT_EQ(sizes(), ".X..");
    const float scale = form.CardScale;
    const auto expectSmall = [&](float points) {
        EXPECT_EQ(form.TextFontSize[1], points * scale);
        EXPECT_EQ(form.TextFontSize[2], 14 * scale);
        EXPECT_EQ(form.TextFontSize[3], 18 * scale);
        EXPECT_EQ(form.MarkFontSize[1], 18 * scale);
    };
    expectSmall(11);
    chooseSize("Smaller");
    expectSmall(9.5F);
    EXPECT_EQ(sizes(), "X...");
    EXPECT_TRUE(stores("FontSize=1"));
    chooseSize("Larger");
    expectSmall(12.5F);
    EXPECT_EQ(sizes(), "..X.");
    EXPECT_TRUE(stores("FontSize=2"));
    chooseSize("Big");
    expectSmall(14);
    EXPECT_EQ(sizes(), "...X");
    EXPECT_TRUE(stores("FontSize=3"));
    chooseSize("Normal");
    expectSmall(11);
    EXPECT_EQ(sizes(), ".X..");
    EXPECT_TRUE(stores("FontSize=0"));
}

TEST_F(TextOptions, BigTwiceGoesBackToNormal) {
    start();
    chooseSize("Big");
    chooseSize("Big");
    EXPECT_EQ(sizes(), ".X..");
    EXPECT_EQ(form.TextFontSize[1], 11 * form.CardScale);
    EXPECT_TRUE(stores("FontSize=0"));
}

TEST_F(TextOptions, NormalOnTopOfNormalStillRebuilds) {
    start();
    form.Trace.clear();
    chooseSize("Normal");
    EXPECT_EQ(rebuilds(), 1);
    EXPECT_EQ(sizes(), ".X..");
}

TEST_F(TextOptions, BigIsSevenPointsOnACardOfHalfItsDesignSize) {
    writeOptions("Zoom=2\r\n");
    start();
    ASSERT_EQ(form.CardScale, 0.5F);
    chooseSize("Big");
    EXPECT_EQ(form.TextFontSize[1], 7);
    EXPECT_EQ(form.TextFontSize[2], 7);
    enter(1, "abc");
    EXPECT_EQ(form.AText[1].Font.Size, 7);
}

TEST_F(TextOptions, ASizeIsSeenAtOnceAndAtTheNextStart) {
    writeOptions("Zoom=5\r\nFontSize=3\r\n");
    start();
    EXPECT_EQ(sizes(), "...X");
    enter(1, "abc");
    EXPECT_EQ(form.AText[1].Font.Size, 14 * form.CardScale);
    chooseSize("Smaller");
    EXPECT_EQ(form.AText[1].Font.Size, 9.5F * form.CardScale);
    EXPECT_EQ(form.AText[1].Caption, "abc");
}

TEST_F(TextOptions, AnUnsavedCardKeepsItsChangedMarkThroughASizeChange) {
    start();
    clickMark(1);
    chooseSize("Big");
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
    EXPECT_TRUE(form.P1.Visible);
}

TEST_F(TextOptions, AnUnchangedCardStaysUnchangedThroughASizeChange) {
    start();
    chooseSize("Big");
    EXPECT_FALSE(form.CardModified);
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed)");
}

TEST_F(TextOptions, AnEditThatIsStillOpenIsKeptAndCountsAsAChange) {
    start();
    clickText(1);
    toolkit::test::pressKey('A');
    chooseSize("Larger");
    EXPECT_EQ(form.AText[1].Tag, "a");
    EXPECT_TRUE(form.CardModified);
}

TEST_F(TextOptions, TheCardHasTheFocusAgainAfterASizeChange) {
    start();
    chooseSize("Larger");
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.P1));
}

TEST_F(TextOptions, WhileTheProgramInitializesNothingHappens) {
    start();
    form.Initializing = true;
    form.Trace.clear();
    for (auto* procedure : {mSmallerTextFont_Click, mNormalTextFont_Click, mLargerTextFont_Click,
                            mBigTextFont_Click, mBold_Click, mLeftJustify_Click, mFillIn_Click})
        procedure(form);
    EXPECT_EQ(sizes(), ".X..");
    EXPECT_FALSE(form.mBold.Checked || form.mLeftJustify.Checked || form.mFillIn.Checked);
    EXPECT_EQ(rebuilds(), 0);
    EXPECT_FALSE(traced("IniWrite"));
    EXPECT_TRUE(traced("False MSmallerTextFont_Click "));
    EXPECT_TRUE(traced("False mBold_Click "));
}

TEST_F(TextOptions, InDesignModeASizeComesBackWithTheMarksShownAndThePositionsKept) {
    start();
    const std::string saved = dataFileContent("Definitions.Ini");
    toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    const float left = form.AMark[2].Left;
    const auto from = middleOf(form.AMark[2]);
    toolkit::test::moveMouse(from.x, from.y);
    toolkit::test::pressMouse(from.x, from.y);
    toolkit::test::moveMouse(from.x + 30, from.y, toolkit::button::left);
    toolkit::test::releaseMouse(from.x + 30, from.y);
    ASSERT_EQ(form.AMark[2].Left, left + 30);
    form.TraceOn = true; // this traces more lines than the ring holds
    chooseSize("Big");
    EXPECT_TRUE(traced("True mBigTextFont_Click "));
    EXPECT_EQ(sizes(), "...X");
    EXPECT_EQ(form.TextFontSize[1], 14 * form.CardScale);
    EXPECT_TRUE(form.MShowShapes.Checked);
    EXPECT_EQ(form.AText[1].Caption.substr(0, 4), "[ 1 ");
    for (int i = 1; i <= form.AMark.UBound(); ++i) EXPECT_TRUE(form.AMark[i].Visible) << i;
    EXPECT_EQ(form.AMark[2].Left, left + 30);
    // The file is as it was: nobody has saved the design.
    EXPECT_EQ(dataFileContent("Definitions.Ini"), saved);
    EXPECT_FALSE(std::filesystem::exists(dataFile("$$TempDef.Ini")));
    EXPECT_FALSE(form.CardModified);
}

TEST_F(TextOptions, BoldfaceDressesAllTextsAndIsRemembered) {
    start();
    enter(1, "abc");
    form.Trace.clear();
    form.CardModified = false;
    choose("Boldface");
    EXPECT_TRUE(form.mBold.Checked);
    for (int i = 1; i <= form.AText.UBound(); ++i) EXPECT_TRUE(form.AText[i].Font.Bold) << i;
    EXPECT_TRUE(form.CText.Font.Bold);
    EXPECT_TRUE(form.LText.Font.Bold);
    EXPECT_TRUE(stores("Bold=1"));
    EXPECT_EQ(rebuilds(), 0);
    EXPECT_FALSE(form.CardModified);
    choose("Boldface");
    EXPECT_FALSE(form.AText[1].Font.Bold);
    EXPECT_TRUE(stores("Bold=0"));
}

TEST_F(TextOptions, BoldfaceLaysTheSymbolsOutAnew) {
    start();
    enter(1, "long text ^h");
    ASSERT_EQ(form.ShownSymbols.at(1).size(), 1U);
    const float before = form.SText[form.ShownSymbols[1][0]].Left;
    choose("Boldface");
    ASSERT_EQ(form.ShownSymbols.at(1).size(), 1U);
    EXPECT_NE(form.SText[form.ShownSymbols[1][0]].Left, before);
    EXPECT_EQ(form.AText[1].Tag, "long text ^h");
}

TEST_F(TextOptions, BoldfaceFitsNoTextUntilTheCardIsBuiltAnew) {
    start();
    const auto& label = form.AText[1];
    std::string text = "n";
    while (toolkit::textWidth(label.Font, text + "n ") < label.Width) text += "n";
    enter(1, text);
    const toolkit::FontSpec before = label.Font;
    choose("Boldface");
    EXPECT_EQ(label.Font.Size, before.Size);
    EXPECT_EQ(label.Font.Name, before.Name);
    chooseSize("Normal");
    const toolkit::FontSpec& after = form.AText[1].Font;
    EXPECT_TRUE(after.Size < before.Size || after.Name != before.Name);
}

TEST_F(TextOptions, InDesignModeBoldfaceTakesTheNumbersOffUntilTheModeIsEnteredAgain) {
    start();
    toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    ASSERT_TRUE(form.AText[1].Caption.starts_with("[ 1 "));
    choose("Boldface");
    EXPECT_EQ(form.AText[1].Caption, "");
    for (int turn = 0; turn < 2; ++turn) toolkit::test::typeKey('A', toolkit::shift::ctrl);
    EXPECT_TRUE(form.AText[1].Caption.starts_with("[ 1 "));
}

TEST_F(TextOptions, WithBoldfaceTheFieldsOwnItemIsOffAndItsKeyDoesNothing) {
    start();
    choose("Boldface");
    EXPECT_FALSE(form.mpopBold.Enabled);
    clickText(1);
    toolkit::test::typeKey('B', toolkit::shift::ctrl);
    EXPECT_TRUE(form.AText[1].Font.Bold);
    EXPECT_TRUE(form.CText.Visible);
    toolkit::test::typeKey(toolkit::key::escape);
    choose("Boldface");
    EXPECT_TRUE(form.mpopBold.Enabled);
}

TEST_F(TextOptions, LeftJustifyTurnsAllTextsAndOffCentresAllOfThem) {
    start();
    enter(1, "left ^s");
    const float centred = form.SText[form.ShownSymbols.at(1).at(0)].Left;
    choose("Left-Justify all text");
    EXPECT_TRUE(form.mLeftJustify.Checked);
    for (int i = 1; i <= form.AText.UBound(); ++i)
        EXPECT_EQ(form.AText[i].Alignment, toolkit::Alignment::Left) << i;
    EXPECT_LT(form.SText[form.ShownSymbols.at(1).at(0)].Left, centred);
    form.AText[2].Alignment = toolkit::Alignment::Left; // by the player's own hand
    choose("Left-Justify all text");
    EXPECT_FALSE(form.mLeftJustify.Checked);
    for (int i = 1; i <= form.AText.UBound(); ++i)
        EXPECT_EQ(form.AText[i].Alignment, toolkit::Alignment::Center) << i;
    EXPECT_EQ(form.SText[form.ShownSymbols.at(1).at(0)].Left, centred);
}

TEST_F(TextOptions, LeftJustifyIsSavedWithTheFieldsAndNotAsAnOption) {
    start();
    const std::string options = dataFileContent("ZEV.Ini");
    choose("Left-Justify all text");
    EXPECT_EQ(dataFileContent("ZEV.Ini"), options);
    answerName("Jones");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Save"));
    EXPECT_NE(dataFileContent("Jones.zev").find("1,\"\",4"), std::string::npos);
}

TEST_F(TextOptions, FilledInSquaresAppearAtOnceOnAllMarksThatAreSet) {
    start();
    clickMark(1);
    clickMark(2);
    const std::string check = form.AMark[1].Caption;
    choose("Fill-in Checkmarks");
    EXPECT_TRUE(form.mFillIn.Checked);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(form.AMark[2].Visible);
    EXPECT_FALSE(form.AMark[3].Visible);
    EXPECT_EQ(form.AMark[1].Caption, "n");
    EXPECT_EQ(form.AMark[2].Caption, "n");
    EXPECT_TRUE(stores("Fillincheckmarks=1"));
    EXPECT_TRUE(form.CardModified);
    choose("Fill-in Checkmarks");
    EXPECT_EQ(form.AMark[1].Caption, check);
    EXPECT_TRUE(stores("Fillincheckmarks=0"));
}

TEST_F(TextOptions, TheMenuShowsTheChecks) {
    writeOptions("Zoom=5\r\nBold=1\r\nFillincheckmarks=1\r\nFontSize=2\r\n");
    start();
    EXPECT_EQ(sizes(), "..X.");
    EXPECT_TRUE(form.mBold.Checked);
    EXPECT_TRUE(form.mFillIn.Checked);
    EXPECT_FALSE(form.mLeftJustify.Checked);
    EXPECT_FALSE(form.mpopBold.Enabled);
}

} // namespace
} // namespace zev::test

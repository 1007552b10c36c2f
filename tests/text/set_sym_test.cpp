#include "card/write_card.h"
#include "text/edit_test.h"
#include "text/set_sym.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

constexpr toolkit::Color red = toolkit::rgb(195, 17, 25);

class SetSymbols : public EditTest {
  protected:
    void show(int field, std::string_view raw) {
        form.AText[field].Caption = raw;
        SetSym(form, field);
    }
    [[nodiscard]] int shownSymbols(int field) const {
        int count = 0;
        for (int i = 1; i <= form.SText.UBound(); ++i) {
            const toolkit::Label& symbol = form.SText[i];
            count += symbol.Visible && symbol.Tag == std::to_string(field) ? 1 : 0;
        }
        return count;
    }
};

TEST_F(SetSymbols, FieldWithoutACaretOnlyGetsItsTag) {
    startSmall();
    const toolkit::Label before = form.AText[1];
    show(1, "1NT");
    EXPECT_EQ(form.AText[1].Tag, "1NT");
    EXPECT_EQ(form.AText[1].Caption, "1NT");
    EXPECT_EQ(form.AText[1].Stack, before.Stack);
    EXPECT_EQ(form.SText.UBound(), 0);
    EXPECT_TRUE(traced("SetSym 1"));
}

TEST_F(SetSymbols, SymbolOfACentredFieldStandsBehindItsTextShiftedByHalfTheFreeWidth) {
    startSmall();
    enter(1, "4^h");
    const toolkit::Label& label = form.AText[1];
    EXPECT_EQ(label.Caption, "4\xA0\xA0\xA0");
    EXPECT_EQ(label.Tag, "4^h");
    ASSERT_EQ(form.SText.UBound(), 1);
    const toolkit::Label& heart = form.SText[1];
    const float shift = (label.Width - widthIn(1, "4\xA0\xA0\xA0")) / 2;
    EXPECT_FLOAT_EQ(heart.Left, label.Left + widthIn(1, "4") + shift);
    EXPECT_EQ(heart.Top, label.Top - 6 * pixel);
    EXPECT_EQ(heart.Height, label.Height + 8 * pixel);
    EXPECT_FLOAT_EQ(heart.Width, widthIn(1, "^h"));
    EXPECT_EQ(heart.Font.Size, label.Font.Size + 4);
    EXPECT_EQ(heart.Font.Name, form.SText[0].Font.Name);
    EXPECT_EQ(heart.Caption, "\xA9");
    EXPECT_EQ(heart.Tag, "1");
    EXPECT_EQ(heart.ForeColor, red);
    EXPECT_TRUE(heart.Visible);
    EXPECT_EQ(form.SuitColors.size(), 2U);
    EXPECT_EQ(form.SuitColors[1], red);
}

TEST_F(SetSymbols, SymbolOfALeftJustifiedFieldIsNotShifted) {
    startSmall();
    form.AText[1].Alignment = toolkit::Alignment::Left;
    enter(1, "4^h");
    EXPECT_FLOAT_EQ(form.SText[1].Left, form.AText[1].Left + widthIn(1, "4"));
}

TEST_F(SetSymbols, SuitsHaveTheirOwnSignsAndColours) {
    startSmall();
    show(1, "^c ^d ^h ^s");
    ASSERT_EQ(form.SText.UBound(), 4);
    const std::string signs = "\xA7\xA8\xA9\xAA";
    for (int i = 1; i <= 4; ++i) {
        EXPECT_EQ(form.SText[i].Caption, signs.substr(static_cast<std::size_t>(i) - 1, 1));
        EXPECT_EQ(form.SText[i].ForeColor, i == 2 || i == 3 ? red : toolkit::black) << i;
    }
}

TEST_F(SetSymbols, SecondOfTwoEscapesInARowStaysVisibleUnderItsSymbol) {
    startSmall();
    show(1, "^h^s");
    EXPECT_EQ(form.AText[1].Caption, "\xA0\xA0\xA0^s");
    EXPECT_EQ(shownSymbols(1), 2);
    EXPECT_EQ(form.SText[2].Caption, "\xAA");
    // Over the escape that is seen.
    EXPECT_NEAR(form.SText[2].Left - form.SText[1].Left, widthIn(1, "\xA0\xA0\xA0"), 1);
    EXPECT_NEAR(form.SText[2].Width, widthIn(1, "^s"), 1);
}

TEST_F(SetSymbols, CapitalLetterShowsItsSuitAndStaysInTagAndFile) {
    startSmall();
    writeCard("Jones", "");
    form.CardName = "Jones";
    enter(1, "^H");
    EXPECT_EQ(form.SText[1].Caption, "\xA9");
    EXPECT_EQ(form.AText[1].Tag, "^H");
    typeKey('S', toolkit::shift::ctrl);
    EXPECT_NE(dataFileContent("Jones.zev").find("\"^H\""), std::string::npos);
}

TEST_F(SetSymbols, CapitalLetterDirectlyBehindAnEscapeGetsNoSymbol) {
    startSmall();
    show(1, "^h^S");
    EXPECT_EQ(form.AText[1].Caption, "\xA0\xA0\xA0^S");
    EXPECT_EQ(shownSymbols(1), 1);
}

TEST_F(SetSymbols, CaretWithAnotherLetterIsBlankWithoutASymbolAndStaysInTheFile) {
    startSmall();
    writeCard("Jones", "");
    form.CardName = "Jones";
    enter(1, "1^x2");
    EXPECT_EQ(form.AText[1].Caption, "1\xA0\xA0\xA0"
                                     "2");
    EXPECT_EQ(form.AText[1].Tag, "1^x2");
    EXPECT_EQ(form.SText.UBound(), 0);
    typeKey('S', toolkit::shift::ctrl);
    EXPECT_NE(dataFileContent("Jones.zev").find("\"1^x2\""), std::string::npos);
}

TEST_F(SetSymbols, CaretAtTheEndIsBlankWithoutASymbol) {
    startSmall();
    show(1, "1^");
    EXPECT_EQ(form.AText[1].Caption, "1\xA0\xA0\xA0");
    EXPECT_EQ(form.AText[1].Tag, "1^");
    show(1, "^h^");
    EXPECT_EQ(form.AText[1].Caption, "\xA0\xA0\xA0^");
    EXPECT_EQ(shownSymbols(1), 1);
}

TEST_F(SetSymbols, SymbolsBehindAmpersandsStandOnTheBlanksThatArePainted) {
    startSmall();
    for (const auto alignment : {toolkit::Alignment::Left, toolkit::Alignment::Center}) {
        form.AText[1].Alignment = alignment;
        show(1, "i && i&&i ^h&&^s");
        const toolkit::Label& label = form.AText[1];
        EXPECT_EQ(label.Caption, "i && i&&i \xA0\xA0\xA0&&\xA0\xA0\xA0");
        const std::string painted = "i & i&i \xA0\xA0\xA0&\xA0\xA0\xA0";
        const bool isCentred = alignment == toolkit::Alignment::Center;
        const float start = label.Left + (isCentred ? (label.Width - widthIn(1, painted)) / 2 : 0);
        const int last = form.SText.UBound();
        ASSERT_EQ(shownSymbols(1), 2);
        EXPECT_NEAR(form.SText[last - 1].Left, start + widthIn(1, "i & i&i "), 1);
        EXPECT_NEAR(form.SText[last].Left, start + widthIn(1, "i & i&i \xA0\xA0\xA0&"), 1);
    }
}

TEST_F(SetSymbols, AmpersandBehindASymbolDoesNotMoveIt) {
    startSmall();
    enter(1, "^h&&&");
    const toolkit::Label& label = form.AText[1];
    ASSERT_EQ(label.Caption, "\xA0\xA0\xA0&&&&");
    EXPECT_NEAR(form.SText[1].Left, label.Left + (label.Width - widthIn(1, "\xA0\xA0\xA0&&")) / 2,
                1);
}

TEST_F(SetSymbols, SecondEditLeavesTheOldSymbolsHidden) {
    startSmall();
    enter(1, "^h");
    enter(2, "^s");
    enter(1, "4");
    ASSERT_EQ(form.SText.UBound(), 3);
    EXPECT_FALSE(form.SText[1].Visible);
    EXPECT_TRUE(form.SText[2].Visible);
    EXPECT_TRUE(form.SText[3].Visible);
    EXPECT_EQ(form.SuitColors.size(), 4U);
}

TEST_F(SetSymbols, InAColourSchemeEverySymbolTakesItsColour) {
    startSmall();
    form.mcolorscheme[0].Checked = false;
    form.mcolorscheme[1].Checked = true;
    form.ColorScheme = static_cast<std::int32_t>(toolkit::rgb(1, 2, 3));
    show(1, "^h ^s");
    EXPECT_EQ(form.SText[1].ForeColor, toolkit::rgb(1, 2, 3));
    EXPECT_EQ(form.SText[2].ForeColor, toolkit::rgb(1, 2, 3));
    EXPECT_EQ(form.SuitColors[1], red);
    EXPECT_EQ(form.SuitColors[2], toolkit::black);
}

TEST_F(SetSymbols, SchemeBelowTheLastTakesAPaletteColour) {
    startSmall();
    form.mcolorscheme[0].Checked = false;
    form.mcolorscheme[1].Checked = true;
    form.LastSchemeIndex = 2;
    form.ColorScheme = static_cast<std::int32_t>(toolkit::rgb(1, 2, 3));
    show(1, "^h");
    EXPECT_EQ(form.SText[1].ForeColor, toolkit::qbColor(0));
    EXPECT_EQ(form.SuitColors[1], red);
}

TEST_F(SetSymbols, StackFromTheBackIsHighlightLabelTheRestSymbol) {
    startSmall();
    show(1, "^h");
    EXPECT_LT(form.Highlight[1].Stack, form.AText[1].Stack);
    for (int i = 2; i <= form.AText.UBound(); ++i) {
        EXPECT_LT(form.AText[1].Stack, form.AText[i].Stack);
        EXPECT_LT(form.AText[1].Stack, form.Highlight[i].Stack);
        EXPECT_GT(form.SText[1].Stack, form.AText[i].Stack);
    }
    for (int i = 1; i <= form.AMark.UBound(); ++i) {
        EXPECT_LT(form.AText[1].Stack, form.AMark[i].Stack);
        EXPECT_GT(form.SText[1].Stack, form.AMark[i].Stack);
    }
}

TEST_F(SetSymbols, SymbolIsNeverBoldAndGrowsWithTheField) {
    startSmall();
    form.AText[1].Font.Bold = true;
    form.AText[1].Font.Size = 7.5F;
    show(1, "^h");
    EXPECT_FALSE(form.SText[1].Font.Bold);
    EXPECT_EQ(form.SText[1].Font.Size, 11.5F);
    EXPECT_EQ(form.SText[1].Width, toolkit::textWidth(form.AText[1].Font, "^h"));
}

TEST_F(SetSymbols, ClickOnASymbolOpensItsField) {
    startSmall();
    enter(1, "4^h");
    form.AText[1].Stack = form.Highlight[1].Stack + 1;
    const toolkit::Label& heart = form.SText[1];
    // The part of the symbol that sticks out above the field.
    click(heart.Left + heart.Width / 2, heart.Top + 2 * pixel);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_TRUE(traced("SText_MouseDown 1"));
    EXPECT_TRUE(traced("SText_MouseUp 1"));
    EXPECT_TRUE(traced("SText_Click 1"));
    // X counts from the symbol, so the caret goes near the start.
    EXPECT_EQ(form.CText.SelStart, 0);
}

TEST_F(SetSymbols, ClickOnASymbolWhileItsFieldIsOpenedMakesNewOnesSafely) {
    startSmall();
    enter(1, "^h ^s ^d");
    enter(2, "^c ^h ^d");
    clickText(2);
    const toolkit::Label heart = form.SText[1];
    click(heart.Left + heart.Width / 2, heart.Top + 2 * pixel);
    EXPECT_EQ(form.TIndex, 1);
    EXPECT_EQ(shownSymbols(2), 3);
}

TEST_F(SetSymbols, FailureIsTracedWithTheFieldsNumber) {
    startSmall();
    announceError("Error in SetSym");
    SetSym(form, 77);
    EXPECT_TRUE(traced("Error in SetSym 340, Control array element '77' doesn't exist, index=77"));
}

TEST_F(SetSymbols, ASymbolReachesToTheTextCloseBehindIt) {
    startSmall();
    show(1, "^h: ^s ^c");
    ASSERT_EQ(form.SText.UBound(), 3);
    EXPECT_FLOAT_EQ(form.SText[1].Reach, widthIn(1, "\xA0\xA0\xA0"));
    EXPECT_EQ(form.SText[2].Reach, 0);
    EXPECT_EQ(form.SText[3].Reach, 0);
    show(2, "&&^d\xA0x^d5");
    ASSERT_EQ(form.SText.UBound(), 5);
    EXPECT_EQ(form.SText[4].Reach, 0);
    EXPECT_FLOAT_EQ(form.SText[5].Reach, widthIn(2, "\xA0\xA0\xA0"));
}

TEST_F(SetSymbols, NewCardTakesAllSymbolsAway) {
    startSmall();
    enter(1, "^h ^s");
    form.CardModified = false;
    ASSERT_TRUE(chooseMenu("File>New"));
    EXPECT_EQ(form.SText.UBound(), 0);
    EXPECT_TRUE(form.SuitColors.empty());
}

} // namespace
} // namespace zev::test

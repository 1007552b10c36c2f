#include "design/add_field.h"

#include "design/design_test.h"
#include "layout/write_layout.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "view/rebuild.h"

namespace zev::test {
namespace {

using namespace toolkit::test;
using toolkit::button::left;
using toolkit::button::right;

constexpr float addedX = 800 * pixel;
constexpr float addedY = 600 * pixel;

class AddField : public DesignTest {
  protected:
    [[nodiscard]] static std::string repeated(const std::string& word) {
        std::string text;
        for (int i = 0; i < 256; ++i) text += word;
        text.pop_back();
        return text;
    }
};

TEST_F(AddField, ARightPressOnBareCardAddsACheckmark) {
    design();
    addField();
    ASSERT_EQ(form.AMark.UBound(), 5);
    const toolkit::Label& mark = form.AMark[5];
    EXPECT_EQ(mark.Caption, "\xFC");
    EXPECT_EQ(mark.Left, addedX);
    EXPECT_EQ(mark.Top, addedY);
    EXPECT_EQ(mark.Font.Name, form.MarkFontName);
    EXPECT_TRUE(mark.Font.Bold);
    EXPECT_EQ(mark.Width, toolkit::textWidth(mark.Font, mark.Caption));
    EXPECT_EQ(mark.Height, toolkit::textHeight(mark.Font));
    EXPECT_TRUE(mark.Visible);
    EXPECT_GT(mark.Stack, form.AMark[4].Stack);
    EXPECT_EQ(form.UndoIndex, 5);
    EXPECT_FALSE(form.UndoIsText);
    EXPECT_TRUE(form.DesignDirty);
}

TEST_F(AddField, TheShapeIsTheCheckedOne) {
    design();
    choose("Design>Circle");
    addField();
    EXPECT_EQ(form.AMark[5].Caption, "\xA1");
    choose("Design>Text");
    moveMouse(addedX, addedY + 100 * pixel);
    pressMouse(addedX, addedY + 100 * pixel, right);
    releaseMouse(addedX, addedY + 100 * pixel, right);
    EXPECT_EQ(form.AMark.UBound(), 5);
    EXPECT_EQ(form.AText.UBound(), 5);
}

TEST_F(AddField, WithFilledInCheckmarksItIsASquare) {
    design();
    form.mFillIn.Checked = true;
    addField();
    EXPECT_EQ(form.AMark[5].Caption, "n");
}

TEST_F(AddField, TheSizeIsTheCheckedOne) {
    design();
    int index = 4;
    for (const auto& [item, size] : {std::pair("Small", 1), {"Medium", 2}, {"Large", 3}}) {
        choose("Design>" + std::string(item));
        addField(static_cast<float>(40 * index), 0);
        ++index;
        const auto cell = static_cast<std::size_t>(size);
        EXPECT_EQ(form.AMark[index].Font.Size, form.MarkFontSize[cell]);
        EXPECT_EQ(form.MarkSizes.at(static_cast<std::size_t>(index)), size);
    }
}

TEST_F(AddField, TheColoursAreThoseOfThePaletteAndNotOfTheCard) {
    design();
    const auto color = [&](const char* item, float across) {
        choose("Design>" + std::string(item));
        addField(across, 0);
        const int last = form.AMark.UBound();
        EXPECT_EQ(form.MarkColors.at(static_cast<std::size_t>(last)), form.AMark[last].ForeColor);
        return form.AMark[last].ForeColor;
    };
    EXPECT_EQ(color("Black", 40), toolkit::rgb(0, 0, 0));
    EXPECT_EQ(color("Red", 80), toolkit::rgb(255, 0, 0));
    EXPECT_EQ(color("Blue", 120), toolkit::rgb(0, 255, 255));
}

TEST_F(AddField, WhileTheButtonIsDownAMarkGoesToThePointer) {
    design();
    form.DesignDirty = false;
    addField(25, -30);
    EXPECT_EQ(form.AMark[5].Left, addedX + 25 * pixel);
    EXPECT_EQ(form.AMark[5].Top, addedY - 30 * pixel);
    moveMouse(addedX, addedY);
    EXPECT_EQ(form.AMark[5].Left, addedX + 25 * pixel);
}

TEST_F(AddField, ATextIsAYellowBarWhileItIsAdded) {
    design();
    choose("Design>Text");
    choose("Design>Medium");
    moveMouse(addedX, addedY);
    pressMouse(addedX, addedY, right);
    ASSERT_EQ(form.AText.UBound(), 5);
    const toolkit::Label& text = form.AText[5];
    EXPECT_EQ(text.Caption, "5 My " + repeated("| "));
    EXPECT_EQ(text.Alignment, toolkit::Alignment::Left);
    EXPECT_EQ(text.BackStyle, toolkit::BackStyle::Opaque);
    EXPECT_EQ(text.BackColor, toolkit::rgb(255, 255, 0));
    EXPECT_EQ(text.Font.Name, form.TextFontName);
    EXPECT_EQ(text.Font.Size, form.TextFontSize[2]);
    EXPECT_TRUE(text.Font.Bold);
    EXPECT_EQ(text.Left, addedX);
    EXPECT_EQ(text.Top, addedY);
    EXPECT_EQ(text.Width, toolkit::textWidth(text.Font, "abc"));
    EXPECT_EQ(text.Height, toolkit::textHeight(text.Font));
    EXPECT_EQ(form.TextSizes.at(5), 2);
    EXPECT_EQ(form.TextColors.at(5), toolkit::black);
    EXPECT_EQ(form.UndoIndex, 5);
    EXPECT_TRUE(form.UndoIsText);
    EXPECT_EQ(form.TIndex, 5);
    EXPECT_EQ(form.CText.Left, addedX);
    EXPECT_EQ(form.LText.Width, text.Width);
    EXPECT_TRUE(form.DesignDirty);
    releaseMouse(addedX, addedY, right);
}

TEST_F(AddField, LetGoATextIsCentredAndWhiteAgain) {
    design();
    choose("Design>Text");
    addField();
    const toolkit::Label& text = form.AText[5];
    EXPECT_EQ(text.Alignment, toolkit::Alignment::Center);
    EXPECT_EQ(text.Caption, repeated("5 My "));
    EXPECT_EQ(text.BackStyle, toolkit::BackStyle::Transparent);
    EXPECT_EQ(text.BackColor, toolkit::white);
    EXPECT_FALSE(text.Font.Bold);
}

TEST_F(AddField, WhileTheButtonIsDownATextIsWidenedAndNotMoved) {
    design();
    choose("Design>Text");
    addField(120, 40);
    EXPECT_EQ(form.AText[5].Left, addedX);
    EXPECT_EQ(form.AText[5].Top, addedY);
    EXPECT_EQ(form.AText[5].Width, 120 * pixel);
}

TEST_F(AddField, ToTheLeftOfATextTheWidthStaysAsItWas) {
    design();
    choose("Design>Text");
    moveMouse(addedX, addedY);
    pressMouse(addedX, addedY, right);
    const float width = form.AText[5].Width;
    moveMouse(addedX - 20 * pixel, addedY, right);
    EXPECT_EQ(form.AText[5].Width, width);
    moveMouse(addedX, addedY, right);
    EXPECT_EQ(form.AText[5].Width, width);
    releaseMouse(addedX, addedY, right);
}

TEST_F(AddField, ANewFieldIsSavedAndReadBack) {
    design();
    addField(0, -50);
    choose("Design>Text");
    choose("Design>Large");
    addField(100, 0);
    choose("Design>Save Design");
    pressDesignKey();
    RebuildScreenImage(form);
    ASSERT_EQ(form.AMark.UBound(), 5);
    ASSERT_EQ(form.AText.UBound(), 5);
    EXPECT_FLOAT_EQ(form.AMark[5].Top, addedY - 50 * pixel);
    EXPECT_FLOAT_EQ(form.AText[5].Width, 100 * pixel);
    EXPECT_EQ(form.TextSizes.at(5), 3);
    clickMark(5);
    EXPECT_TRUE(form.AMark[5].Visible);
}

TEST_F(AddField, ANewFieldWorksOnTheCardAtOnce) {
    design();
    choose("Design>Text");
    addField(100, 0);
    pressDesignKey();
    EXPECT_EQ(form.AText[5].Caption, "");
    enter(5, "hello");
    EXPECT_EQ(form.AText[5].Caption, "hello");
    clickText(5);
    typeKey('G', toolkit::shift::ctrl);
    EXPECT_TRUE(form.Highlight[5].Visible);
    EXPECT_EQ(form.Highlight[5].Left, addedX + 2 * pixel);
    answer(toolkit::Answer::No);
    choose("File>New");
    EXPECT_FALSE(form.Highlight[5].Visible);
}

TEST_F(AddField, ALeftPressOnBareCardTakesTheCard) {
    design();
    moveMouse(addedX, addedY);
    pressMouse(addedX, addedY);
    EXPECT_EQ(form.P1.MousePointer, toolkit::MousePointer::Hand);
    EXPECT_EQ(form.LastX, addedX);
    EXPECT_EQ(form.LastY, addedY);
    moveMouse(addedX, addedY, left);
    moveMouse(addedX - 10 * pixel, addedY, left);
    EXPECT_EQ(form.P1.Left, -10 * pixel);
    releaseMouse(addedX, addedY);
    EXPECT_EQ(form.P1.MousePointer, toolkit::MousePointer::Default);
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_FALSE(form.DesignDirty);
}

TEST_F(AddField, OnANormalCardARightPressAddsNothing) {
    start();
    addField();
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_EQ(form.AText.UBound(), 4);
}

TEST_F(AddField, BesideAFieldItAddsAlsoWhileRecording) {
    design();
    answer(toolkit::Answer::No);
    choose("Design>Set Tab sequence");
    addField();
    EXPECT_EQ(form.AMark.UBound(), 5);
}

TEST_F(AddField, WithTheHelpOpenAPressOnlyDismissesIt) {
    design();
    typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    form.THelp.Move(0, 1000 * pixel);
    addField();
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_FALSE(form.THelp.Visible);
}

/// The right button is still down while the help page closes, and the pointer seldom rests.
TEST_F(AddField, APressThatDismissesTheHelpMovesNoFieldEither) {
    design();
    const toolkit::Label last = form.AMark[4];
    typeKey(toolkit::key::f1);
    form.THelp.Move(0, 1000 * pixel);
    form.DesignDirty = false;
    addField(25, -30);
    EXPECT_EQ(form.AMark[4].Left, last.Left);
    EXPECT_EQ(form.AMark[4].Top, last.Top);
    EXPECT_FALSE(form.DesignDirty);
}

TEST_F(AddField, APressThatDismissesTheHelpMovesNotWhatWasAddedBefore) {
    design();
    addField(0, 0);
    ASSERT_EQ(form.AMark.UBound(), 5);
    const toolkit::Label last = form.AMark[5];
    typeKey(toolkit::key::f1);
    form.THelp.Move(0, 1000 * pixel);
    const float x = addedX + 100 * pixel;
    moveMouse(x, addedY);
    pressMouse(x, addedY, right);
    moveMouse(x + 25 * pixel, addedY, right);
    releaseMouse(x + 25 * pixel, addedY, right);
    EXPECT_EQ(form.AMark.UBound(), 5);
    EXPECT_EQ(form.AMark[5].Left, last.Left);
    EXPECT_EQ(form.AMark[5].Top, last.Top);
}

TEST_F(AddField, APressThatDismissesTheHelpWidensAndDressesNoText) {
    design();
    choose("Design>Text");
    const toolkit::Label last = form.AText[4];
    typeKey(toolkit::key::f1);
    form.THelp.Move(0, 1000 * pixel);
    form.DesignDirty = false;
    addField(120, 0);
    EXPECT_EQ(form.AText[4].Width, last.Width);
    EXPECT_EQ(form.AText[4].Caption, last.Caption);
    EXPECT_EQ(form.AText[4].Alignment, last.Alignment);
    EXPECT_FALSE(form.DesignDirty);
}

TEST_F(AddField, TakenBackWhileItIsHeldAMarkLeavesTheOthersWhereTheyAre) {
    design();
    const toolkit::Label last = form.AMark[4];
    moveMouse(addedX, addedY);
    pressMouse(addedX, addedY, right);
    ASSERT_EQ(form.AMark.UBound(), 5);
    undo();
    ASSERT_EQ(form.AMark.UBound(), 4);
    moveMouse(addedX + 25 * pixel, addedY, right);
    releaseMouse(addedX + 25 * pixel, addedY, right);
    EXPECT_EQ(form.AMark[4].Left, last.Left);
    EXPECT_EQ(form.AMark[4].Top, last.Top);
}

TEST_F(AddField, TakenBackWhileItIsHeldATextLeavesTheOthersAsTheyAre) {
    design();
    choose("Design>Text");
    const toolkit::Label last = form.AText[4];
    moveMouse(addedX, addedY);
    pressMouse(addedX, addedY, right);
    ASSERT_EQ(form.AText.UBound(), 5);
    undo();
    ASSERT_EQ(form.AText.UBound(), 4);
    moveMouse(addedX + 120 * pixel, addedY, right);
    releaseMouse(addedX + 120 * pixel, addedY, right);
    EXPECT_EQ(form.AText[4].Width, last.Width);
    EXPECT_EQ(form.AText[4].Caption, last.Caption);
    EXPECT_EQ(form.AText[4].Alignment, last.Alignment);
}

/// The key leaves the mode during the press; coming back must not take hold of the field again.
TEST_F(AddField, AFieldIsNotHeldAcrossTwoTurnsInTheMode) {
    design();
    moveMouse(addedX, addedY);
    pressMouse(addedX, addedY, right);
    const float place = form.AMark[5].Left;
    pressDesignKey();
    pressDesignKey();
    ASSERT_EQ(form.AMark.UBound(), 5);
    moveMouse(addedX + 25 * pixel, addedY, right);
    releaseMouse(addedX + 25 * pixel, addedY, right);
    EXPECT_EQ(form.AMark[5].Left, place);
}

/// A new field may be the first of its kind.
TEST_F(AddField, OnALayoutWithoutFieldsTheFirstIsNumberOne) {
    writeLayout(smallLayout({}, {}));
    design();
    addField(10, 0);
    choose("Design>Text");
    addField(50, 0);
    EXPECT_EQ(form.AMark.UBound(), 1);
    EXPECT_EQ(form.AText.UBound(), 1);
    EXPECT_EQ(form.AText[1].Width, 50 * pixel);
}

} // namespace
} // namespace zev::test

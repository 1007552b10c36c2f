#include "design/undo.h"

#include "design/design_test.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

class UndoDesign : public DesignTest {};

TEST_F(UndoDesign, WithNothingToUndoItBeeps) {
    design();
    undo();
    EXPECT_EQ(beeps, 1);
}

TEST_F(UndoDesign, ADragIsTakenBackOnce) {
    design();
    const float left = form.AMark[2].Left;
    const float top = form.AMark[2].Top;
    dragLabel(form.AMark[2], 30, 20);
    undo();
    EXPECT_EQ(form.AMark[2].Left, left);
    EXPECT_EQ(form.AMark[2].Top, top);
    EXPECT_EQ(beeps, 0);
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark[2].Left, left);
}

TEST_F(UndoDesign, AWidthIsTakenBack) {
    design();
    const float width = form.AText[1].Width;
    dragLabel(form.AText[1], 25, 0, toolkit::button::left, toolkit::shift::ctrl);
    ASSERT_EQ(form.AText[1].Width, width + 25 * pixel);
    undo();
    EXPECT_EQ(form.AText[1].Width, width);
}

TEST_F(UndoDesign, WhatWasAddedIsTakenAway) {
    design();
    addField();
    ASSERT_EQ(form.AMark.UBound(), 5);
    undo();
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_EQ(form.ActiveControl, &form.P1);
    EXPECT_EQ(form.MarkSizes.size(), 6U);
    EXPECT_EQ(form.MarkColors.size(), 6U);
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark.UBound(), 4);
}

TEST_F(UndoDesign, ATextThatWasAddedIsTakenAwayWithItsHighlight) {
    design();
    addField(); // so that there are more marks than texts
    form.AMark[5].Move(0, 0);
    choose("Design>Text");
    addField(50, 0);
    undo();
    EXPECT_EQ(form.AText.UBound(), 4);
    EXPECT_EQ(form.Highlight.UBound(), 4);
    EXPECT_EQ(form.TIndex, 0);
    EXPECT_EQ(form.TextSizes.size(), 6U);
    choose("Design>Save Design");
    EXPECT_EQ(fieldsInFile(), "5 marks, 4 texts");
}

TEST_F(UndoDesign, AnotherShapeGivesItUp) {
    design();
    choose("Design>Circle");
    addField();
    choose("Design>Checkmark");
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark.UBound(), 5);
}

TEST_F(UndoDesign, AnotherSizeOrColourDoesNot) {
    design();
    addField();
    choose("Design>Large");
    choose("Design>Blue");
    undo();
    EXPECT_EQ(beeps, 0);
    EXPECT_EQ(form.AMark.UBound(), 4);
}

/// Only a press on a field decides what an undo does: after one, it moves the added field to the
/// old place of the pressed one.
TEST_F(UndoDesign, AfterAPressANewFieldGoesToThePressedOnesPlace) {
    design();
    const float left = form.AMark[1].Left;
    const float top = form.AMark[1].Top;
    dragLabel(form.AMark[1], 5, 0);
    addField();
    undo();
    ASSERT_EQ(form.AMark.UBound(), 5);
    EXPECT_EQ(form.AMark[5].Left, left);
    EXPECT_EQ(form.AMark[5].Top, top);
    EXPECT_EQ(form.AMark[1].Left, left + 5 * pixel);
}

TEST_F(UndoDesign, OnANormalCardTheKeyDoesNothing) {
    start();
    form.UndoIndex = 2;
    undo();
    EXPECT_EQ(beeps, 0);
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_EQ(form.UndoIndex, 2);
}

TEST_F(UndoDesign, OtherKeysDoNothing) {
    design();
    typeKey('Y', toolkit::shift::ctrl);
    typeKey('Z', 0, "z");
    EXPECT_EQ(beeps, 0);
}

TEST_F(UndoDesign, AFailureIsTracedOnce) {
    design();
    dragLabel(form.AMark[4], 5, 0);
    form.UndoIndex = 9;
    announceError("Error in P1_KeyPress: #");
    undo();
    EXPECT_TRUE(traced("Error in P1_KeyPress: #340, Control array element '9' doesn't exist"));
    undo();
    EXPECT_EQ(beeps, 1);
}

/// After a press with the middle button an undo removes a field as if it had been added: but none
/// of the layout's.
TEST_F(UndoDesign, AfterAMiddlePressNoFieldOfTheLayoutGoes) {
    design();
    for (const char* shape : {"Checkmark", "Circle", "Text"}) {
        choose("Design>" + std::string(shape));
        const toolkit::Label& last =
            form.MText.Checked ? form.AText[form.AText.UBound()] : form.AMark[form.AMark.UBound()];
        dragLabel(last, 5, 0);
        dragLabel(last, 0, 0, toolkit::button::middle);
        undo();
        EXPECT_EQ(form.AMark.UBound(), 4) << shape;
        EXPECT_EQ(form.AText.UBound(), 4) << shape;
        EXPECT_EQ(form.UndoIndex, 0) << shape;
    }
    EXPECT_EQ(beeps, 3);
    EXPECT_EQ(form.ActiveControl, &form.P1);
}

TEST_F(UndoDesign, AfterAMiddlePressTheFieldThatWasAddedStillGoes) {
    design();
    addField();
    dragLabel(form.AMark[1], 0, 0, toolkit::button::middle);
    undo();
    EXPECT_EQ(form.AMark.UBound(), 4);
    EXPECT_EQ(beeps, 0);
}

TEST_F(UndoDesign, WhatWasAddedIsNotTakenAwayInALaterTurn) {
    design();
    addField();
    pressDesignKey();
    pressDesignKey();
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark.UBound(), 5);
}

/// Saving leaves the mode and enters it again: from then on the field is one of the layout's.
TEST_F(UndoDesign, WhatIsSavedIsNotTakenAway) {
    design();
    addField();
    choose("Design>Save Design");
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark.UBound(), 5);
}

TEST_F(UndoDesign, ADragIsNotTakenBackInALaterTurn) {
    design();
    dragLabel(form.AMark[2], 30, 20);
    const float left = form.AMark[2].Left;
    pressDesignKey();
    pressDesignKey();
    undo();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(form.AMark[2].Left, left);
}

TEST_F(UndoDesign, AZoomForgetsWhatWasAdded) {
    design();
    addField();
    choose("View>Zoom In (Bigger)                   Ctrl +");
    ASSERT_EQ(form.AMark.UBound(), 4);
    dragLabel(form.AMark[4], 0, 0, toolkit::button::middle);
    undo();
    EXPECT_EQ(form.AMark.UBound(), 4);
}

} // namespace
} // namespace zev::test

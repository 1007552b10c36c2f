// What a screen reader gets of a panel.
#include "panel_fixture.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/window/dialog.h"

namespace window_test {
namespace {

using namespace toolkit;

class AccessiblePanel : public PanelTest {
  protected:
    AccessiblePanel() {
        panel.AccessibleName = "Panel";
        name.AccessibleName = "Name";
        rows.AccessibleName = "Rows";
        bar.AccessibleName = "Bar";
        line.Caption = "Ways && means";
        plain.Caption = "Choose one";
        LabelGroup& group = contents.groups.front();
        group.AccessibleName = [](int index) { return "sample " + std::to_string(index); };
        group.IsChosen = [this](int index) { return index == chosen; };
    }

    int chosen = 1;
};

TEST_F(AccessiblePanel, HasItsLabelsAndThenItsControls) {
    std::string parts;
    for (const auto& part : test::accessiblePartsOf("Panel"))
        parts += part.name + " (" + part.role + ")\n";
    EXPECT_EQ(parts, "Ways & means (button)\nChoose one (label)\n"
                     "sample 0 (radio button)\nsample 1 (radio button)\n"
                     "Name (text)\nRows (list)\nBar (slider)\nOK (button)\nCancel (button)\n");
}

TEST_F(AccessiblePanel, IsTheSameWhereSomebodyListensFromTheStart) {
    const test::ScreenReader reader;
    open();
    openPanel();
    EXPECT_EQ(test::accessiblePart("Panel").role, "dialog");
    EXPECT_EQ(test::accessiblePart("sample 0").role, "radio button");
    EXPECT_EQ(test::accessiblePart("three").actions, Log{"Press"});
}

TEST_F(AccessiblePanel, IsADialogThatSaysWhatItIsFor) {
    EXPECT_EQ(test::accessiblePart("Panel").role, "dialog");
    EXPECT_EQ(test::accessiblePart("Panel").description, "Choose one");
    plain.Caption = "Choose another";
    EXPECT_EQ(test::accessiblePart("Panel").description, "Choose another");
}

TEST_F(AccessiblePanel, TellsItsDefaultButton) {
    EXPECT_TRUE(test::accessiblePart("OK").isDefault);
    EXPECT_FALSE(test::accessiblePart("Cancel").isDefault);
}

TEST_F(AccessiblePanel, ALabelHasANameOfItsOwnWhereItsCaptionDoesntSayIt) {
    line.AccessibleName = "The line";
    EXPECT_EQ(test::accessiblePart("The line").role, "button");
    EXPECT_EQ(test::accessiblePart("The line").description, "tip of the line");
}

TEST_F(AccessiblePanel, APressedLabelIsAClick) {
    EXPECT_TRUE(test::press("Ways & means"));
    EXPECT_EQ(log, (Log{"line.MouseDown B=1 S=0 X=0 Y=0", "line.Click"}));
    EXPECT_FALSE(test::press("Choose one"));
}

TEST_F(AccessiblePanel, AChoiceIsPressedAndTellsThatItIsChosen) {
    EXPECT_FALSE(test::accessiblePart("sample 0").isChecked);
    EXPECT_TRUE(test::accessiblePart("sample 1").isChecked);
    const test::ScreenReader reader;
    chosen = 0;
    // Another sample is another painting.
    samples[0].Caption = "X";
    window->update();
    EXPECT_TRUE(test::accessiblePart("sample 0").isChecked);
    EXPECT_TRUE(reader.heard("Checked sample 0"));
    EXPECT_TRUE(test::press("sample 1"));
    EXPECT_EQ(log, (Log{"sample1.MouseDown B=1 S=0 X=0 Y=0", "sample1.Click"}));
}

TEST_F(AccessiblePanel, ALabelsNewNameIsTold) {
    const test::ScreenReader reader;
    static_cast<void>(test::accessiblePartsOf("Panel"));
    plain.Caption = "Choose two";
    window->update();
    EXPECT_TRUE(reader.heard("Name Choose two"));
    samples.Load(2);
    window->update();
    EXPECT_TRUE(reader.heard("Order Panel"));
    EXPECT_EQ(test::accessiblePart("sample 2").role, "radio button");
    EXPECT_FALSE(test::accessiblePart("sample 2").isShown);
}

TEST_F(AccessiblePanel, APartLiesWhereItIsSeen) {
    // At 100, 100 of the form, that is at 90, 90 of the card.
    const auto sample = test::accessiblePart("sample 1");
    EXPECT_EQ(sample.corner.x, px(130));
    EXPECT_EQ(sample.corner.y, px(220));
    EXPECT_EQ(sample.width, px(20));
    for (const char* part : {"Ways & means", "sample 1", "Name", "OK"})
        EXPECT_EQ(test::accessiblePartAt(part), part);
}

TEST_F(AccessiblePanel, ASliderTakesAValue) {
    test::slideTo("Bar", 200);
    EXPECT_EQ(bar.Value, 200);
    EXPECT_EQ(times("bar.Scroll 200"), 1);
}

TEST_F(AccessiblePanel, IsOutOfReachBelowABoxAndWhileItIsHidden) {
    test::readNextBox([] {
        test::pressInWindow("Ways & means");
        test::press("OK");
    });
    tell("Done", Icon::Information);
    panel.Visible = false;
    window->update();
    EXPECT_FALSE(test::accessiblePart("Ways & means").isShown);
    test::press("Ways & means");
    EXPECT_EQ(times("line.Click"), 0);
}

} // namespace
} // namespace window_test

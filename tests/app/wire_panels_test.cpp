// What the panels consist of.
#include "app/wire_panels.h"

#include <algorithm>

#include "support/form_test.h"
#include "toolkit/testing/test_accessible.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class WirePanels : public FormTest {};

TEST_F(WirePanels, EachPanelHasOneDefaultAndOneCancelButton) {
    for (const auto& panel : wirePanels(form)) {
        int defaults = 0;
        int cancels = 0;
        for (const auto& control : panel.controls) {
            const auto* button = std::get_if<toolkit::CommandButton*>(&control);
            if (button == nullptr) continue;
            defaults += (*button)->Default ? 1 : 0;
            cancels += (*button)->Cancel ? 1 : 0;
            EXPECT_TRUE((*button)->Click);
        }
        EXPECT_EQ(defaults, 1);
        EXPECT_EQ(cancels, 1);
    }
}

TEST_F(WirePanels, ThePanelsBelongToTheForm) {
    const auto panels = wirePanels(form);
    ASSERT_EQ(panels.size(), 3U);
    EXPECT_EQ(panels[0].box, &form.P3);
    EXPECT_EQ(panels[1].box, &form.ColorPic);
    EXPECT_EQ(panels[2].box, &form.PHelp);
    EXPECT_EQ(form.BHelp.AccessibleName, "Close help");
    EXPECT_EQ(form.ColorBut[0].Caption, "&OK");
    EXPECT_EQ(form.ColorBut[1].Caption, "&Cancel");
}

TEST_F(WirePanels, EverySliderHasItsOwnNumber) {
    start();
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Color Management>Custom..."));
    for (std::size_t i = 0; i < form.ColorScroll.size(); ++i) {
        form.ColorScroll[i].Value = static_cast<int>(10 * (i + 1));
        form.ColorScroll[i].Scroll();
    }
    EXPECT_EQ(form.ColorID[0].Caption, "10");
    EXPECT_EQ(form.ColorID[1].Caption, "20");
    EXPECT_EQ(form.ColorID[2].Caption, "30");
}

TEST_F(WirePanels, AScreenReaderChoosesAColorByItsName) {
    start();
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Color Management>Custom..."));
    const auto panel = toolkit::test::accessiblePart("Color of marks and texts");
    EXPECT_EQ(panel.role, "dialog");
    EXPECT_EQ(panel.description, toolkit::paintedText(form.Lpresetcolors.Caption));
    for (const char* name : {"Black", "Dark blue", "Dark green", "Purple", "Dark red", "Brown"})
        EXPECT_EQ(toolkit::test::accessiblePart(name).role, "radio button") << name;
    EXPECT_TRUE(toolkit::test::accessiblePart("Black").isChecked);
    EXPECT_TRUE(toolkit::test::press("Dark red"));
    EXPECT_TRUE(toolkit::test::accessiblePart("Dark red").isChecked);
    EXPECT_FALSE(toolkit::test::accessiblePart("Black").isChecked);
    EXPECT_EQ(toolkit::test::accessiblePart("Chosen color: red 160, green 0, blue 0").role,
              "label");
    EXPECT_EQ(toolkit::test::accessiblePart("Sample Text").role, "label");
    toolkit::test::slideTo("Green", 7);
    EXPECT_EQ(form.ColorLabel.BackColor, toolkit::rgb(160, 7, 0));
    EXPECT_TRUE(toolkit::test::press("Pure blue"));
    EXPECT_EQ(form.ColorLabel.BackColor, toolkit::rgb(0, 0, 255));
    EXPECT_TRUE(toolkit::test::accessiblePart("OK").isDefault);
}

} // namespace
} // namespace zev::test

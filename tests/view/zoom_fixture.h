// A card with few fields, zoomed.
#pragma once

#include <cstdint>
#include <string>

#include "app/layouts.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"

namespace zev::test {

class Zoom : public FormTest {
  protected:
    Zoom() { writeLayout(fewFields()); }

    void startAtStep(int step) {
        writeOptions("Zoom=" + std::to_string(step) + "\r\n");
        start();
    }
    /// Chooses fit to width on a screen on which that gives about this scale.
    void fitTo(float scale) {
        toolkit::overrideScreen(
            {.width = scale * 2396 * pixel + form.FrameWidth, .height = 30000, .hasTaskBar = true});
        ASSERT_TRUE(toolkit::test::chooseMenu("View>Fit to screen width                Ctrl  0"));
        ASSERT_NEAR(form.ZoomTable[0], scale, 0.0005F);
    }
    static void zoomIn() { toolkit::test::typeKey(toolkit::key::add, toolkit::shift::ctrl); }
    static void zoomOut() { toolkit::test::typeKey(toolkit::key::subtract, toolkit::shift::ctrl); }
    void expectStep(std::int16_t step) const {
        EXPECT_EQ(form.ZoomLevel, step);
        EXPECT_EQ(form.ZoomTable[0], 0);
        EXPECT_FALSE(form.MFitScreenWidth.Checked);
        EXPECT_FALSE(form.MFitScreenHeight.Checked);
        EXPECT_FALSE(form.Zooming);
    }
    [[nodiscard]] bool rebuilt() const { return traced("RebuildScreenImage"); }
};

} // namespace zev::test

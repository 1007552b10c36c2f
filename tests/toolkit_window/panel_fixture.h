// A form with a panel over its card that has one of everything.
#pragma once

#include "fixture.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace window_test {

/// The panel is 300 x 200 pixels at 100, 100 of the form.
class PanelTest : public WindowTest {
  protected:
    PanelTest() {
        listen(name, "name");
        listen(rows, "rows");
        listen(ok, "ok");
        listen(cancel, "cancel");
        listen(bar, "bar");
        bar.Scroll = [this] { note("bar.Scroll " + std::to_string(bar.Value)); };
        line.MouseDown = [this](toolkit::MouseArguments& mouse) {
            note("line.MouseDown " + text(mouse));
        };
        line.Click = [this] { note("line.Click"); };
        line.ToolTip = "tip of the line";
        ok.Caption = "&OK";
        ok.Default = true;
        cancel.Caption = "&Cancel";
        cancel.Cancel = true;
        samples.Load(1);
        contents.labels = {&line, &plain};
        contents.groups = {group(samples, "sample")};
        contents.controls = {&name, &rows, &bar, &ok, &cancel};
    }

    void SetUp() override {
        WindowTest::SetUp();
        placeAll();
        openPanel();
    }

    void openPanel() {
        panel.Visible = true;
        form.SetFocus(name);
        window->update();
        toolkit::test::settle();
        log.clear();
    }

    void placeAll() {
        panel.Move(px(100), px(100), px(300), px(200));
        panel.Stack = 1;
        place(line, 10, 5, 100, 15);
        place(plain, 150, 5, 100, 15);
        place(samples[0], 10, 130, 20, 20);
        place(samples[1], 40, 130, 20, 20);
        show(name, 10, 25, 200, 22);
        show(rows, 10, 50, 200, 50);
        show(bar, 10, 105, 200, 20);
        show(ok, 10, 160, 80, 25);
        show(cancel, 100, 160, 80, 25);
        rows.List = {"one", "two", "three"};
        bar.Max = 255;
        bar.LargeChange = 16;
    }

    static void show(toolkit::Control& control, int left, int top, int width, int height) {
        control.Move(px(left), px(top), px(width), px(height));
        control.Visible = true;
    }

    /// A click in the panel, pixels from its corner.
    void clickAt(int x, int y, int button = toolkit::button::left) const {
        const auto point = toolkit::test::pointIn(panel, px(x), px(y));
        toolkit::test::click(point.x, point.y, button);
    }

    [[nodiscard]] static bool hasFocus(const toolkit::Control& control) {
        return toolkit::test::hasPlatformFocus(control);
    }

    /// The pixel of the window at this place of the panel.
    [[nodiscard]] static std::optional<toolkit::Color> shownAt(int x, int y) {
        return toolkit::test::grabWindow().pixel(100 + x, 100 + y);
    }

    toolkit::PanelLabel line;
    toolkit::PanelLabel plain;
    toolkit::ControlArray<toolkit::Label> samples;
    toolkit::TextBox name;
    toolkit::ListBox rows;
    toolkit::ScrollBar bar;
    toolkit::CommandButton ok;
    toolkit::CommandButton cancel;
};

} // namespace window_test

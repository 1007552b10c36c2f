// A small form with one of everything, whose slots write what they got into a log.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "toolkit/base/key.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/base/twips.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/application.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/window.h"

namespace window_test {

/// The one of this process.
extern toolkit::Application* application;

using Log = std::vector<std::string>;

/// Whole pixels as twips.
inline float px(int pixels) { return static_cast<float>(pixels * toolkit::twipsPerPixel()); }

inline std::string pixelsText(float twips) {
    return std::to_string(toolkit::pixelsFromTwips(twips));
}

/// "B=1 S=0 X=10 Y=20", the place in pixels.
inline std::string text(const toolkit::MouseArguments& arguments) {
    return "B=" + std::to_string(arguments.Button) + " S=" + std::to_string(arguments.Shift) +
           " X=" + pixelsText(arguments.X) + " Y=" + pixelsText(arguments.Y);
}

inline std::string text(const toolkit::KeyArguments& arguments) {
    return std::to_string(arguments.KeyCode) + "/" + std::to_string(arguments.Shift);
}

/// The card is 400 x 300 pixels at 10, 10 of the form.
class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        form.Left = px(50);
        form.Top = px(60);
        form.Width = px(640);
        form.Height = px(480);
        form.Visible = true;
        card.Visible = true;
        card.Move(px(10), px(10), px(400), px(300));
        for (int index = 1; index <= 3; ++index) marks.Load(index);
        for (int index = 1; index <= 2; ++index) texts.Load(index);
        form.KeyDown = [this](toolkit::KeyArguments& arguments) {
            note("form.KeyDown " + text(arguments));
        };
        form.Unhandled = [this](const toolkit::RunTimeError& failure) {
            note("Unhandled " + std::to_string(failure.number()));
        };
        listen(card, "card");
        listen(box, "box");
        listen(list, "list");
    }

    ~WindowTest() override {
        toolkit::answerDialogsWith({});
        toolkit::overrideProgram({});
        toolkit::overrideScreen({});
    }

    void SetUp() override {
        open();
        log.clear();
    }

    void note(std::string line) { log.push_back(std::move(line)); }

    /// How often the line stands in the log.
    [[nodiscard]] int times(const std::string& line) const {
        return static_cast<int>(std::count(log.begin(), log.end(), line));
    }

    void listen(toolkit::Control& control, const std::string& name) {
        using toolkit::KeyArguments;
        using toolkit::MouseArguments;
        control.GotFocus = [this, name] { note(name + ".GotFocus"); };
        control.LostFocus = [this, name] { note(name + ".LostFocus"); };
        control.KeyDown = [this, name](KeyArguments& key) { note(name + ".KeyDown " + text(key)); };
        control.KeyPress = [this, name](int& key) {
            note(name + ".KeyPress " + std::to_string(key));
        };
        control.KeyUp = [this, name](KeyArguments& key) { note(name + ".KeyUp " + text(key)); };
        control.MouseDown = [this, name](MouseArguments& mouse) {
            note(name + ".MouseDown " + text(mouse));
        };
        control.MouseMove = [this, name](MouseArguments& mouse) {
            note(name + ".MouseMove " + text(mouse));
        };
        control.MouseUp = [this, name](MouseArguments& mouse) {
            note(name + ".MouseUp " + text(mouse));
        };
        control.Click = [this, name] { note(name + ".Click"); };
        control.DblClick = [this, name] { note(name + ".DblClick"); };
    }

    toolkit::LabelGroup group(toolkit::ControlArray<toolkit::Label>& labels,
                              const std::string& name) {
        using toolkit::MouseArguments;
        const auto slot = [this, name](const std::string& event) {
            return [this, name, event](int index, MouseArguments& mouse) {
                note(name + std::to_string(index) + event + text(mouse));
            };
        };
        return {
            .labels = &labels,
            .MouseDown = slot(".MouseDown "),
            .MouseMove = slot(".MouseMove "),
            .MouseUp = slot(".MouseUp "),
            .Click = [this, name](int index) { note(name + std::to_string(index) + ".Click"); }};
    }

    /// Shows a label at whole pixels.
    static void place(toolkit::Label& label, int left, int top, int width, int height,
                      int stack = 0) {
        label.Move(px(left), px(top), px(width), px(height));
        label.Visible = true;
        label.Stack = stack;
    }

    /// Shows the edit box and gives it the focus.
    void openBox(std::string content) {
        box.Move(px(20), px(20), px(120), px(20));
        box.Text = std::move(content);
        box.SelStart = 0;
        box.SelLength = 0;
        box.Visible = true;
        form.SetFocus(box);
        window->update();
        log.clear();
    }

    void open() {
        toolkit::WindowParts parts{.form = &form, .card = &card, .frozenCard = &frozen};
        toolkit::LabelGroup markGroup = group(marks, "mark");
        markGroup.TakesFocus = true;
        parts.cardGroups = {markGroup, group(texts, "text")};
        parts.cardLabels = {&stamp};
        parts.framedLabel = [this] { return framed; };
        parts.pointerOver = pointerOver;
        parts.cardTextBoxes = {&box, &otherBox};
        parts.lists = {&list};
        parts.panels.push_back(contents);
        parts.overlays = {&overlay};
        parts.note = &footNote;
        parts.menu = menu;
        parts.accessible = accessible;
        window.reset();
        window = std::make_unique<toolkit::Window>(std::move(parts));
        window->update();
        toolkit::test::settle();
    }

    Log log;
    toolkit::Form form;
    toolkit::PictureBox card;
    toolkit::PictureBox frozen; ///< stands for the card while it is visible
    toolkit::ControlArray<toolkit::Label> marks;
    toolkit::ControlArray<toolkit::Label> texts;
    toolkit::Label stamp;
    const toolkit::Label* framed = nullptr; ///< the label with a frame around it
    toolkit::TextBox box;
    toolkit::TextBox otherBox;
    toolkit::ListBox list;
    toolkit::Panel panel;
    toolkit::TextBox overlay;
    toolkit::Note footNote;
    toolkit::PanelContents contents{.box = &panel};
    std::vector<toolkit::MenuRow> menu;
    toolkit::AccessibleCard accessible;
    /// What the pointer looks like over the card; set before the window is made.
    decltype(toolkit::WindowParts::pointerOver) pointerOver;
    std::unique_ptr<toolkit::Window> window;
};

} // namespace window_test

// Design mode on the small card: three marks, a circle and four texts.
#pragma once

#include <sstream>
#include <string>

#include "text/edit_test.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {

/// Marks 1 to 3 (black, red, blue checks), mark 4 a circle, texts 1 to 4, as in EditTest.
class DesignTest : public EditTest {
  protected:
    DesignTest() {
        writeLayout(smallLayout(
            {{100, 100, 0, 0, 1, 2},
             {200, 100, 0, 0, 2, 2},
             {300, 100, 0, 0, 3, 2},
             {400, 100, 0, 0, 1, 2, 161}},
            {{100, 300, 300, 0}, {100, 400, 300, 0}, {100, 500, 300, 0}, {100, 600, 40, 0}},
            "1,2\r\n", 2));
    }

    /// Enters the mode as the player does: a key shows the hidden menu.
    void design() {
        start();
        pressDesignKey();
        ASSERT_TRUE(form.MShowShapes.Checked);
    }
    static void pressDesignKey() {
        toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    }
    static void undo() { toolkit::test::typeKey('Z', toolkit::shift::ctrl); }
    static void choose(const std::string& item) {
        EXPECT_TRUE(toolkit::test::chooseMenu(item)) << item;
    }

    /// Presses at the label's middle, moves by whole pixels and lets go.
    void dragLabel(const toolkit::Label& label, float right, float down,
                   int button = toolkit::button::left, int shift = 0) {
        const CardPoint from = middleOf(label);
        const float x = from.x + right * pixel;
        const float y = from.y + down * pixel;
        toolkit::test::moveMouse(from.x, from.y, 0, shift);
        toolkit::test::pressMouse(from.x, from.y, button, shift);
        toolkit::test::moveMouse(x, y, button, shift);
        toolkit::test::releaseMouse(x, y, button, shift);
    }
    /// A right press on bare card at (800, 600) pixels, moved and let go.
    void addField(float right = 0, float down = 0) {
        using namespace toolkit::test;
        const float x = 800 * pixel;
        const float y = 600 * pixel;
        moveMouse(x, y);
        pressMouse(x, y, toolkit::button::right);
        if (right != 0 || down != 0)
            moveMouse(x + right * pixel, y + down * pixel, toolkit::button::right);
        releaseMouse(x + right * pixel, y + down * pixel, toolkit::button::right);
    }
    [[nodiscard]] int visibleMarks() const {
        int count = 0;
        for (int i = 1; i <= form.AMark.UBound(); ++i) count += form.AMark[i].Visible ? 1 : 0;
        return count;
    }
    /// How many marks and texts the layout file tells: "5 marks, 4 texts".
    [[nodiscard]] std::string fieldsInFile() const {
        std::istringstream file(dataFileContent("Definitions.Ini"));
        std::string marks;
        std::string texts;
        std::string last;
        for (std::string line; std::getline(file, line);) {
            if (!line.empty() && line.back() == '\r') line.pop_back();
            if (line.starts_with("' For each one, 9 values")) marks = last;
            if (line.starts_with("' For each one, 8 values")) texts = last;
            if (!line.empty() && line.front() != '\'') last = line;
        }
        return marks + " marks, " + texts + " texts";
    }
    /// Whether the layout file has this line.
    [[nodiscard]] bool layoutHolds(const std::string& line) const {
        return dataFileContent("Definitions.Ini").find("\r\n" + line + "\r\n") != std::string::npos;
    }
};

} // namespace zev::test

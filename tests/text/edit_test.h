// A card of a few fields at known places, for tests of editing and of walking.
#pragma once

#include <cstddef>
#include <string>

#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {

/// Rows of the menu of an open field, from the top.
constexpr std::size_t copyRow = 7;
constexpr std::size_t pasteRow = 8;

/// Marks 1 to 3 (black, red, blue) in a row, texts 1 to 4 below each other; text 4 is too narrow
/// for most texts. TAB goes from text 1 to 2, on to marks 1 and 2 and to text 3, where it ends.
class EditTest : public FormTest {
  protected:
    void startSmall(std::string_view tabPairs = "1,2\r\n2,1001\r\n1001,1002\r\n1002,3\r\n",
                    int largestTab = 1002) {
        writeLayout(smallLayout(
            {{100, 100, 0, 0, 1, 2}, {200, 100, 0, 0, 2, 2}, {300, 100, 0, 0, 3, 2}},
            {{100, 300, 300, 0}, {100, 400, 300, 0}, {100, 500, 300, 0}, {100, 600, 40, 0}},
            tabPairs, largestTab));
        start();
    }

    [[nodiscard]] bool isEditing() const { return form.CText.Visible || form.LText.Visible; }
    [[nodiscard]] toolkit::TextBox& openBox() {
        return form.LText.Visible ? form.LText : form.CText;
    }

    /// Opens a field, types into it and leaves it.
    void enter(int field, std::string_view text) {
        clickText(field);
        toolkit::test::typeText(text);
        toolkit::test::typeKey(toolkit::key::escape);
    }
    /// A place on the card without any field.
    void clickBareCard() { toolkit::test::click(800 * pixel, 800 * pixel); }

    [[nodiscard]] float widthIn(int field, std::string_view text) const {
        return toolkit::textWidth(form.AText[field].Font, text);
    }

    /// The index of a line in the trace; -1 if it isn't there.
    [[nodiscard]] int traceIndex(std::string_view line) const {
        const auto lines = traceLines();
        for (std::size_t i = 0; i < lines.size(); ++i) {
            if (lines[i] == line) return static_cast<int>(i);
        }
        return -1;
    }
};

} // namespace zev::test

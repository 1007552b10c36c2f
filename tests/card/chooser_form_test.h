// The chooser on the real form. The player acts while the program waits in it.
#pragma once

#include <fstream>
#include <functional>
#include <string>

#include "card/chooser.h"
#include "card_form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"

namespace zev::test {

class ChooserTest : public CardFormTest {
  protected:
    /// Opens the chooser and puts what it returns into `chosen`.
    void inChooser(std::function<void()> acts) {
        answerChooser(std::move(acts));
        chosen = GetFileNames(form);
    }
    /// The player types the name and presses Enter.
    std::string take(const std::string& utf8) {
        answerName(utf8);
        return chosen = GetFileNames(form);
    }
    static void leave() { toolkit::test::typeKey(toolkit::key::escape); }

    static void clickOn(const toolkit::Control& control) {
        const auto point = toolkit::test::pointOn(control);
        toolkit::test::click(point.x, point.y);
    }
    void clickOn(const toolkit::Label& label, int button = toolkit::button::left) {
        const auto point = toolkit::test::pointOn(form.P3, label);
        toolkit::test::click(point.x, point.y, button);
    }
    void clickRow(int row, int button = toolkit::button::left) {
        const auto point = toolkit::test::pointOnRow(form.FileList, row);
        toolkit::test::click(point.x, point.y, button);
    }
    [[nodiscard]] std::string tipOfFolder() {
        return toolkit::test::toolTipAt(form.P3, toolkit::test::pointOn(form.P3, form.LPath));
    }

    std::string chosen = "not asked";
};

} // namespace zev::test

// A monkey at mouse and keyboard: whatever it does, the program neither fails nor loses its rules.
#include <array>
#include <random>

#include "support/form_test.h"
#include "toolkit/key.h"

namespace zev::test {
namespace {

class Monkey : public FormTest {
  protected:
    Monkey() {
        toolkit::answerDialogsWith(
            {.message =
                 [this](const toolkit::MessageBox& box) {
                     if (box.buttons == toolkit::Buttons::Ok) return toolkit::Answer::Ok;
                     return pick(3) == 0 ? toolkit::Answer::Cancel : toolkit::Answer::No;
                 },
             .input = [this](const toolkit::InputBox&) { return std::string(pickedText()); },
             .popup =
                 [this](std::span<const toolkit::PopupRow> rows) {
                     const auto& row = rows[pick(rows.size())];
                     if (row.item != nullptr && row.item->Enabled) row.Click();
                 }});
        // Beyond the walk's table TAB says so in the trace.
        announceError("Error in P1_KeyDown: #9");
        announceError("Error in xText_LostFocus: #9");
    }

    void actInChooser() override {
        if (pick(6) == 0) return toolkit::test::typeKey(toolkit::key::escape);
        act();
    }

    std::size_t pick(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }

    std::string_view pickedText() {
        static constexpr auto texts =
            std::to_array<std::string_view>({"x", "^h", "2^s & 3^C", "&&", "\"", "Joe 12345", " ",
                                             "a/b", "long enough to be shrunk"});
        return texts[pick(texts.size())];
    }

    void pressSomeKey() {
        using namespace toolkit;
        static constexpr auto keys = std::to_array<int>(
            {key::tab, key::enter, key::escape, key::space, key::left,   key::right,
             key::up,  key::down,  key::home,   key::end,   key::pageUp, key::pageDown,
             key::f5,  key::f8,    key::f1,     8,          66,          71,
             73,       76,         90});
        const std::array<int, 4> shifts{0, 0, shift::shift, shift::ctrl};
        toolkit::test::typeKey(keys[pick(keys.size())], shifts[pick(shifts.size())]);
    }

    void chooseSomeMenu() {
        static constexpr auto items = std::to_array<std::string_view>(
            {"File>New", "File>Open...", "File>Save As...", "Options>My Name",
             "Options>Partner's Name", "Options>Boldface", "Options>Left-Justify all text",
             "Options>Font size>Larger", "Options>Color Management>Custom...", "Help"});
        static_cast<void>(toolkit::test::chooseMenu(items[pick(items.size())]));
    }

    void clickSomewhere() {
        const auto x = static_cast<float>(pick(18000));
        const auto y = static_cast<float>(pick(18000));
        const int button = pick(4) == 0 ? toolkit::button::right : toolkit::button::left;
        toolkit::test::click(x, y, button);
    }

    void dragSomewhere() {
        toolkit::test::pressMouse(static_cast<float>(pick(18000)), static_cast<float>(pick(18000)));
        toolkit::test::moveMouse(static_cast<float>(pick(18000)), static_cast<float>(pick(18000)),
                                 toolkit::button::left);
        toolkit::test::releaseMouse(static_cast<float>(pick(18000)),
                                    static_cast<float>(pick(18000)));
    }

    void act() {
        switch (pick(12)) {
        case 0:
            return chooseSomeMenu();
        case 1:
            return dragSomewhere();
        case 2:
            return toolkit::test::turnWheel(pick(2) == 0 ? 120 : -120);
        case 3:
        case 4:
        case 5:
            return pressSomeKey();
        case 6:
        case 7:
            return toolkit::test::typeText(pickedText());
        default:
            return clickSomewhere();
        }
    }

    void checkRules() const {
        EXPECT_FALSE(form.CText.Visible && form.LText.Visible);
        if (form.SText.UBound() > 0) {
            EXPECT_EQ(form.SuitColors.size(), static_cast<std::size_t>(form.SText.UBound()) + 1);
        }
        EXPECT_EQ(form.Caption.ends_with(" *"), form.CardModified) << form.Caption;
    }

  private:
    std::mt19937 random_{20240229};
};

TEST_F(Monkey, FindsNoFailureInThousandsOfEvents) {
    start();
    int modifiedCards = 0;
    for (int step = 0; step < 3000 && !HasFailure(); ++step) {
        act();
        checkRules();
        if (form.CardModified) ++modifiedCards;
    }
    // It really got at the card.
    EXPECT_GT(modifiedCards, 1000);
}

} // namespace
} // namespace zev::test

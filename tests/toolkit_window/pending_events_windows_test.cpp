// Keys of the system itself, which come while a procedure waits.
#include <array>

#include <windows.h>

#include "fixture.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace window_test {
namespace {

using namespace toolkit;

INPUT keyInput(WORD virtualKey, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.dwFlags = flags;
    return input;
}

/// Pressed and released before anyone looks, as by a quick player.
void strike(WORD modifier, WORD virtualKey) {
    std::array inputs{keyInput(modifier, 0), keyInput(virtualKey, 0),
                      keyInput(virtualKey, KEYEVENTF_KEYUP), keyInput(modifier, KEYEVENTF_KEYUP)};
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

class PendingEventsWindows : public WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        DWORD process = 0;
        GetWindowThreadProcessId(GetForegroundWindow(), &process);
        if (process != GetCurrentProcessId()) GTEST_SKIP() << "the window isn't on a real screen";
        openBox("");
    }

    /// Lets what was struck come in.
    void awaitText(const std::string& wanted) {
        for (int round = 0; round < 500 && box.Text != wanted; ++round) {
            wait(1);
            test::settle();
        }
    }
};

TEST_F(PendingEventsWindows, AKeyThatComesDuringAWaitKeepsItsShift) {
    card.Click = [this] {
        strike(VK_SHIFT, 'A');
        wait(50);
        EXPECT_EQ(box.Text, "");
    };
    test::click(px(300), px(200));
    form.SetFocus(box);
    awaitText("A");
    EXPECT_EQ(box.Text, "A");
}

TEST_F(PendingEventsWindows, AKeyThatComesDuringAWaitKeepsItsCtrl) {
    card.Click = [] {
        strike(VK_CONTROL, 'O');
        wait(50);
    };
    test::click(px(300), px(200));
    for (int round = 0; round < 500 && times("form.KeyDown 79/2") == 0; ++round) {
        wait(1);
        test::settle();
    }
    EXPECT_EQ(times("form.KeyDown 79/2"), 1);
    EXPECT_EQ(times("form.KeyDown 79/0"), 0);
}

} // namespace
} // namespace window_test

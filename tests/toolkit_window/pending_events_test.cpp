// Paint and timers in the middle of a procedure.
#include <chrono>

#include "fixture.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace window_test {
namespace {

using namespace toolkit;

class PendingEvents : public WindowTest {};

TEST_F(PendingEvents, DoEventsShowsWhatTheProcedureHasSetSoFar) {
    place(marks[1], 50, 60, 20, 10);
    marks[1].BackStyle = BackStyle::Opaque;
    marks[1].BackColor = white;
    test::settle();
    const int before = test::cardPaints().paints;
    int during = 0;
    card.Click = [&] {
        marks[1].BackColor = rgb(255, 255, 160);
        doEvents();
        during = test::cardPaints().paints;
        marks[1].BackColor = white;
    };
    test::click(px(300), px(200));
    EXPECT_EQ(during, before + 1);
}

TEST_F(PendingEvents, WaitTakesItsTimeAndPaints) {
    const auto start = std::chrono::steady_clock::now();
    marks[1].Visible = true;
    marks[1].Move(0, 0, px(5), px(5));
    const int before = test::cardPaints().paints;
    wait(30);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(29));
    EXPECT_EQ(test::cardPaints().paints, before + 1);
}

TEST_F(PendingEvents, ACloseThatComesDuringAWaitIsAnsweredBehindTheProcedure) {
    form.QueryClose = [this] {
        note("close");
        return true;
    };
    card.Click = [this] {
        test::requestClose();
        wait(1);
        note("done");
    };
    test::click(px(300), px(200));
    test::settle();
    ASSERT_GE(log.size(), 2U);
    EXPECT_EQ(Log(log.end() - 2, log.end()), (Log{"done", "close"}));
}

} // namespace
} // namespace window_test

// Events and waits in the middle of a procedure.
#include "fixture.h"

#include <chrono>

namespace window_test {
namespace {

using namespace toolkit;

class Program : public WindowTest {};

TEST_F(Program, DoEventsShowsWhatTheProcedureHasSetSoFar) {
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

TEST_F(Program, WaitTakesItsTimeAndPaints) {
    const auto start = std::chrono::steady_clock::now();
    marks[1].Visible = true;
    marks[1].Move(0, 0, px(5), px(5));
    const int before = test::cardPaints().paints;
    wait(30);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(29));
    EXPECT_EQ(test::cardPaints().paints, before + 1);
}

TEST_F(Program, ShortWaitsAreOverAtOnce) {
    overrideProgram({.shortWaits = true});
    const auto start = std::chrono::steady_clock::now();
    wait(10000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(Program, WaitForThePlayerLetsThemActInTheMiddleOfAProcedure) {
    bool clicked = false;
    card.Click = [&] { clicked = true; };
    box.Click = [&] { waitForPlayer([&] { return clicked; }); };
    openBox("text");
    overrideProgram({.player = [&] { test::click(px(300), px(200)); }});
    test::click(px(30), px(30));
    EXPECT_TRUE(clicked);
}

TEST_F(Program, ACloseDuringSuchAWaitComesAtOnce) {
    bool closed = false;
    form.QueryClose = [&] { return closed = true; };
    card.Click = [&] {
        waitForPlayer([&] { return closed; });
        note("after");
    };
    overrideProgram({.player = [] { test::closeWindow(); }});
    test::click(px(300), px(200));
    EXPECT_TRUE(closed);
    EXPECT_EQ(log.back(), "after");
}

TEST_F(Program, TheEndOfTheProgramEndsSuchAWait) {
    card.Click = [&] { waitForPlayer([] { return false; }); };
    box.Click = [] { throw ProgramEnded{}; };
    openBox("text");
    overrideProgram({.player = [] { test::click(px(30), px(30)); }});
    EXPECT_THROW(test::click(px(300), px(200)), ProgramEnded);
}

TEST_F(Program, BeepIsToldToATest) {
    overrideProgram({.beep = [this] { note("beep"); }});
    beep();
    EXPECT_EQ(log, (Log{"beep"}));
}

} // namespace
} // namespace window_test

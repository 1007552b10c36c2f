// The player closes the window, and events in the middle of a procedure.
#include "fixture.h"

#include <chrono>

namespace window_test {
namespace {

using namespace toolkit;

class Close : public WindowTest {};

TEST_F(Close, IsAskedOnceAndARefusalKeepsTheWindow) {
    form.QueryClose = [this] {
        note("asked");
        return true;
    };
    test::closeWindow();
    EXPECT_EQ(log, (Log{"asked"}));
    EXPECT_TRUE(test::isShown(card));
    test::closeWindow();
    EXPECT_EQ(times("asked"), 2);
}

TEST_F(Close, WaitsForTheRunningProcedure) {
    form.QueryClose = [this] {
        note("asked");
        return true;
    };
    card.Click = [this] {
        test::closeWindow();
        doEvents();
        wait(1);
        note("procedure over");
    };
    test::click(px(30), px(40));
    log.clear();
    test::settle();
    EXPECT_EQ(log, (Log{"asked"}));
}

TEST_F(Close, ProcedureIsOverBeforeTheQuestion) {
    form.QueryClose = [this] {
        note("asked");
        return true;
    };
    card.MouseDown = [this](MouseArguments&) {
        test::closeWindow();
        test::settle();
        note("down over");
    };
    test::click(px(30), px(40));
    test::settle();
    EXPECT_EQ(times("asked"), 1);
    EXPECT_LT(std::find(log.begin(), log.end(), "down over"),
              std::find(log.begin(), log.end(), "asked"));
}

TEST_F(Close, DoEventsShowsWhatTheProcedureHasSetSoFar) {
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

TEST_F(Close, WaitTakesItsTimeAndPaints) {
    const auto start = std::chrono::steady_clock::now();
    marks[1].Visible = true;
    marks[1].Move(0, 0, px(5), px(5));
    const int before = test::cardPaints().paints;
    wait(30);
    EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(29));
    EXPECT_EQ(test::cardPaints().paints, before + 1);
}

TEST_F(Close, ShortWaitsAreOverAtOnce) {
    overrideProgram({.shortWaits = true});
    const auto start = std::chrono::steady_clock::now();
    wait(10000);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST_F(Close, EndInsideANestedProcedureLeavesTheOuterOneToo) {
    overrideProgram({.throwAtEnd = true});
    form.QueryClose = []() -> bool { endProgram(); };
    EXPECT_THROW(test::closeWindow(), ProgramEnded);
}

} // namespace
} // namespace window_test

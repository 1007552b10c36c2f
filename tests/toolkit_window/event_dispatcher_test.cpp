// Failures and the end of the program in handlers, and a close in the middle of one.
#include <cstdlib>

#include "fixture.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/program.h"

namespace window_test {
namespace {

using namespace toolkit;

class EventDispatcher : public WindowTest {};

TEST_F(EventDispatcher, FailureInAHandlerIsReportedAndTheNextEventComes) {
    card.MouseDown = [](MouseArguments&) { throw RunTimeError(Failure::Overflow); };
    test::click(px(30), px(40));
    EXPECT_EQ(log.back(), "card.Click");
    EXPECT_EQ(times("Unhandled 6"), 1);
}

TEST_F(EventDispatcher, EndOfTheProgramReachesTheTest) {
    overrideProgram({.throwAtEnd = true});
    card.Click = [] { endProgram(EXIT_SUCCESS); };
    EXPECT_THROW(test::click(px(30), px(40)), ProgramEnded);
    // It came once; the next event goes its usual way.
    card.Click = [this] { note("again"); };
    test::click(px(30), px(40));
    EXPECT_EQ(log.back(), "again");
}

TEST_F(EventDispatcher, IsAskedOnceAndARefusalKeepsTheWindow) {
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

TEST_F(EventDispatcher, WaitsForTheRunningProcedure) {
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

TEST_F(EventDispatcher, ProcedureIsOverBeforeTheQuestion) {
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

TEST_F(EventDispatcher, TheEndOfTheSessionIsAskedOnceAndByItself) {
    form.QueryClose = [this] {
        note("closed");
        return true;
    };
    form.QueryEnd = [this] {
        note("ended");
        return true;
    };
    test::endSession();
    test::settle();
    EXPECT_EQ(log, (Log{"ended"}));
    test::closeWindow();
    EXPECT_EQ(log.back(), "closed");
}

TEST_F(EventDispatcher, TheEndOfTheSessionWaitsForTheRunningProcedure) {
    form.QueryEnd = [this] {
        note("ended");
        return true;
    };
    card.Click = [this] {
        test::endSession();
        note("procedure over");
    };
    test::click(px(30), px(40));
    test::settle();
    EXPECT_LT(std::find(log.begin(), log.end(), "procedure over"),
              std::find(log.begin(), log.end(), "ended"));
    EXPECT_EQ(times("ended"), 1);
}

TEST_F(EventDispatcher, TheEndOfTheSessionIsAskedAgainBehindAWaitForThePlayer) {
    bool isOver = false;
    form.QueryEnd = [&] {
        note("ended");
        isOver = true;
        return true;
    };
    card.Click = [&] {
        waitForPlayer([&] { return isOver; });
        note("wait over");
    };
    overrideProgram({.player = [] { test::endSession(); }});
    test::click(px(300), px(200));
    test::settle();
    EXPECT_EQ(times("ended"), 2);
    EXPECT_EQ(log.back(), "ended");
    EXPECT_EQ(times("wait over"), 1);
}

TEST_F(EventDispatcher, QueuedCloseWaitsForAProcedureThatBeganMeanwhile) {
    form.QueryClose = [this] {
        note("asked");
        return true;
    };
    card.Click = [this] {
        doEvents();
        note("procedure over");
    };
    test::requestClose();
    test::click(px(30), px(40));
    EXPECT_EQ(times("asked"), 0);
    EXPECT_EQ(times("procedure over"), 1);
    test::settle();
    EXPECT_EQ(times("asked"), 1);
}

TEST_F(EventDispatcher, TheFormIsToldBeforeEachEnd) {
    overrideProgram({.throwAtEnd = true});
    form.Ending = [this] { note("ending"); };
    card.Click = [] { endProgram(EXIT_SUCCESS); };
    EXPECT_THROW(test::click(px(30), px(40)), ProgramEnded);
    EXPECT_EQ(times("ending"), 1);
    card.Click = [] { leaveProgram(); };
    EXPECT_THROW(test::click(px(30), px(40)), ProgramEnded);
    EXPECT_EQ(times("ending"), 2);
}

TEST_F(EventDispatcher, WhatFailsBeforeAnEndDoesntHoldItUp) {
    overrideProgram({.throwAtEnd = true});
    form.Ending = [] { throw RunTimeError(Failure::DiskFull); };
    card.Click = [] { endProgram(EXIT_SUCCESS); };
    EXPECT_THROW(test::click(px(30), px(40)), ProgramEnded);
}

TEST_F(EventDispatcher, EndInTheQuestionReachesTheTest) {
    overrideProgram({.throwAtEnd = true});
    form.QueryClose = []() -> bool { endProgram(EXIT_SUCCESS); };
    EXPECT_THROW(test::closeWindow(), ProgramEnded);
}

} // namespace
} // namespace window_test

// Signals that ask the program to end.
#include "fixture.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/application.h"
#include "toolkit/window/program.h"

#ifndef _WIN32

#include <csignal>

namespace window_test {
namespace {

using namespace toolkit;

class SessionEndTest : public WindowTest, public testing::WithParamInterface<int> {
  protected:
    /// The program runs; in its midst the signal comes.
    int runWith(int signal) {
        card.Click = [signal] { std::raise(signal); };
        overrideProgram({.player = [] { test::click(px(300), px(200)); }});
        test::whenRunning([] { test::click(px(300), px(200)); });
        return application->run();
    }
};

TEST_P(SessionEndTest, ASignalAsksTheFormAndConsentEndsTheRun) {
    form.QueryEnd = [this] {
        note("end");
        return false;
    };
    form.QueryClose = [this] {
        note("close");
        return false;
    };
    EXPECT_EQ(runWith(GetParam()), 0);
    EXPECT_EQ(times("end"), 1);
    EXPECT_EQ(times("close"), 0);
}

INSTANTIATE_TEST_SUITE_P(Signals, SessionEndTest, testing::Values(SIGHUP, SIGINT, SIGTERM));

TEST_F(SessionEndTest, ARefusalKeepsTheProgramRunning) {
    form.QueryEnd = [this] {
        note("end");
        test::whenRunning([this] {
            note("still running");
            Application::quit();
        });
        return true;
    };
    EXPECT_EQ(runWith(SIGTERM), 0);
    EXPECT_EQ(times("end"), 1);
    EXPECT_EQ(log.back(), "still running");
}

/// By default the second one would kill: the question that was cancelled had been the only one.
TEST_F(SessionEndTest, EachSignalAsksAnew) {
    int asked = 0;
    form.QueryEnd = [&] {
        if (++asked < 3) test::whenRunning([] { std::raise(SIGTERM); });
        return asked < 3;
    };
    EXPECT_EQ(runWith(SIGTERM), 0);
    EXPECT_EQ(asked, 3);
}

TEST_F(SessionEndTest, ASignalDuringTheQuestionIsThatQuestion) {
    form.QueryEnd = [this] {
        note("end");
        std::raise(SIGTERM);
        wait(1);
        test::whenRunning([] { Application::quit(); });
        return true;
    };
    EXPECT_EQ(runWith(SIGTERM), 0);
    EXPECT_EQ(times("end"), 1);
}

TEST_F(SessionEndTest, TheFormIsToldBeforeItIsAsked) {
    form.Ending = [this] { note("ending"); };
    form.QueryEnd = [this] {
        note("end");
        return false;
    };
    EXPECT_EQ(runWith(SIGTERM), 0);
    ASSERT_GE(log.size(), 2U);
    EXPECT_LT(std::ranges::find(log, "ending"), std::ranges::find(log, "end"));
}

/// The answer may never come.
TEST_F(SessionEndTest, InTheMiddleOfAProcedureTheFormIsToldAtOnceAndAskedLater) {
    form.Ending = [this] { note("ending"); };
    form.QueryEnd = [this] {
        note("end");
        return false;
    };
    card.Click = [this] {
        std::raise(SIGTERM);
        wait(1);
        note("procedure over");
    };
    test::whenRunning([] { test::click(px(300), px(200)); });
    EXPECT_EQ(application->run(), 0);
    const auto at = [this](const char* line) { return std::ranges::find(log, line); };
    EXPECT_LT(at("ending"), at("procedure over"));
    EXPECT_LT(at("procedure over"), at("end"));
    EXPECT_NE(at("end"), log.end());
}

} // namespace
} // namespace window_test

#endif

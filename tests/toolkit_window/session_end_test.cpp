// Signals that ask the program to end.
#include "fixture.h"

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

} // namespace
} // namespace window_test

#endif

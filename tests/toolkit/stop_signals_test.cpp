#include "toolkit/base/stop_signals.h"

#include <csignal>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(StopSignals, KeepsTheLastOneThatCame) {
    const StopSignals signals;
    EXPECT_EQ(StopSignals::received(), 0);
    std::raise(SIGINT);
    EXPECT_EQ(StopSignals::received(), SIGINT);
    std::raise(SIGTERM);
    EXPECT_EQ(StopSignals::received(), SIGTERM);
}

TEST(StopSignals, EachBeginsWithNone) {
    {
        const StopSignals signals;
        std::raise(SIGINT);
    }
    const StopSignals signals;
    EXPECT_EQ(StopSignals::received(), 0);
}

TEST(StopSignals, WhatWasIgnoredStaysSo) {
    std::signal(SIGTERM, SIG_IGN);
    {
        const StopSignals signals;
        std::raise(SIGTERM);
        EXPECT_EQ(StopSignals::received(), 0);
    }
    EXPECT_EQ(std::signal(SIGTERM, SIG_DFL), SIG_IGN);
}

TEST(StopSignals, CanBeLeftToOthers) {
    leaveStopToOthers();
    std::raise(SIGINT);
    EXPECT_EQ(std::signal(SIGINT, SIG_DFL), SIG_IGN);
}

} // namespace
} // namespace toolkit

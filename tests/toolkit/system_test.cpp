#include "toolkit/system.h"

#include <regex>
#include <vector>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

TEST(System, VersionHasTheFormOfTheDiagnostics) {
    const std::regex form(R"(\d+\.\d+, Build \d+, Platform \w+, SP \d+\.\d+)");
    EXPECT_TRUE(std::regex_match(systemVersion(), form)) << systemVersion();
    EXPECT_NE(systemVersion().substr(0, 4), "0.0,");
}

TEST(System, MemoryOfTheMachineIsPlausible) {
    const MemoryFacts facts = memoryFacts();
    EXPECT_GT(facts.physicalBytes, 64ULL * 1024 * 1024);
    EXPECT_GE(facts.pageFileBytes, facts.physicalBytes);
    EXPECT_GT(facts.loadPercent, 0);
    EXPECT_LE(facts.loadPercent, 100);
}

TEST(System, ThePeakOfThisProcessRisesWithItsUse) {
    const MemoryUsage before = memoryUsage();
    EXPECT_GT(before.current, 0U);
    EXPECT_GE(before.peak, before.current / 2);
    constexpr std::size_t size = 64 * 1024 * 1024;
    const std::vector<char> block(size, 'x');
    EXPECT_EQ(block.back(), 'x');
    EXPECT_GT(memoryUsage().current, before.current + size / 2);
}

} // namespace
} // namespace toolkit

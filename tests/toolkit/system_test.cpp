#include "toolkit/base/system.h"

#include <regex>
#include <vector>

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/utsname.h>
#endif

namespace toolkit {
namespace {

TEST(System, VersionHasTheFormOfTheDiagnostics) {
    const std::regex form(R"(\d+\.\d+, Build \d+, Platform \w+, SP \d+\.\d+)");
    EXPECT_TRUE(std::regex_match(systemVersion(), form)) << systemVersion();
    EXPECT_NE(systemVersion().substr(0, 4), "0.0,");
}

#ifndef _WIN32
TEST(System, VersionIsTheKernelsOwn) {
    utsname names{};
    ASSERT_EQ(uname(&names), 0);
    const std::string release = names.release;
    const std::string version = systemVersion();
    EXPECT_EQ(version.substr(0, version.find(',')), release.substr(0, release.find('.', 2)));
    EXPECT_NE(version.find(std::string("Platform ") + names.sysname), std::string::npos);
}
#endif

TEST(System, AnOverrideStandsInUntilItIsTakenBack) {
    overrideSystem({.memory = [] { return MemoryFacts{.loadPercent = 300}; }});
    EXPECT_EQ(memoryFacts().loadPercent, 300);
    EXPECT_GT(memoryUsage().current, 0U);
    overrideSystem({});
    EXPECT_LE(memoryFacts().loadPercent, 100);
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

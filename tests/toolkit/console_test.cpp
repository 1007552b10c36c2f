#include "toolkit/base/console.h"

#include <array>

#include <gtest/gtest.h>

namespace toolkit {
namespace {

#ifndef _WIN32
TEST(Console, ArgumentsAreTheBytesBehindTheProgramsName) {
    const std::array arguments{"zevlin-cards", "check", "\xFF \u00C9", ""};
    EXPECT_EQ(commandArguments(4, arguments.data()),
              (std::vector<std::string>{"check", "\xFF \u00C9", ""}));
}

TEST(Console, AProcessMayHaveNoArgumentsAtAll) {
    const std::array<const char*, 1> none{nullptr};
    EXPECT_TRUE(commandArguments(0, none.data()).empty());
}
#endif

} // namespace
} // namespace toolkit

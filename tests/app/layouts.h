// Layouts for tests: the small layout of form_test.h, changed in one place.
#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "support/form_test.h"

namespace zev::test {

constexpr std::string_view usualEnvironment = "15,19200\r\n";
constexpr std::string_view zeroOffsets = "0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0\r\n";

/// The text with its first `from` replaced; the test fails if there is none.
inline std::string replaced(std::string text, std::string_view from, std::string_view to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

/// The layout as written on another machine: `environment` is its twips per pixel and screen width.
inline std::string writtenAt(const std::string& layout, std::string_view environment) {
    return replaced(layout, usualEnvironment, std::string(environment) + "\r\n");
}

/// Three checks of the three sizes, a small circle and two texts, far from each other.
inline std::string fewFields() {
    return smallLayout(
        {{.left = 100, .top = 100, .width = 18, .height = 18, .color = 1, .size = 1},
         {.left = 200, .top = 100, .width = 22, .height = 22, .color = 2, .size = 2},
         {.left = 300, .top = 100, .width = 30, .height = 30, .color = 3, .size = 3},
         {.left = 400,
          .top = 100,
          .width = 18,
          .height = 18,
          .color = 2,
          .size = 1,
          .symbol = 161}},
        {{.left = 100, .top = 300, .width = 200, .height = 20},
         {.left = 100, .top = 400, .width = 400, .height = 30, .color = 2, .size = 3}});
}

} // namespace zev::test

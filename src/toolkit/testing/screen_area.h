// Where something lies among all screens, for tests.
#pragma once

namespace toolkit::test {

/// Logical pixels.
struct ScreenArea {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] constexpr bool holds(const ScreenArea& other) const {
        return other.width > 0 && other.height > 0 && other.left >= left && other.top >= top &&
               other.left + other.width <= left + width && other.top + other.height <= top + height;
    }
    friend bool operator==(const ScreenArea&, const ScreenArea&) = default;
};

} // namespace toolkit::test

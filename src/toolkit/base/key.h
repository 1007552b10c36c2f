// Virtual key codes as handlers see them, the same on every platform.
#pragma once

namespace toolkit::key {

constexpr int backspace = 8;
constexpr int tab = 9;
constexpr int enter = 13;
constexpr int escape = 27;
constexpr int space = 32;
constexpr int pageUp = 33;
constexpr int pageDown = 34;
constexpr int end = 35;
constexpr int home = 36;
constexpr int left = 37;
constexpr int up = 38;
constexpr int right = 39;
constexpr int down = 40;
constexpr int insert = 45;
constexpr int deleteKey = 46;
constexpr int digit0 = 48;
constexpr int menu = 93; ///< opens the pop-up menu of what has the focus
constexpr int add = 107;
constexpr int subtract = 109;
constexpr int f1 = 112;
constexpr int f2 = 113;
constexpr int f3 = 114;
constexpr int f4 = 115;
constexpr int f5 = 116;
constexpr int f8 = 119;
constexpr int f10 = 121;
constexpr int plus = 187;
constexpr int minus = 189;

} // namespace toolkit::key

namespace toolkit {

/// The keys are free to repeat: whether this press is one that a held key repeats, or this release
/// not the first since the key went down.
[[nodiscard]] bool isKeyRepeat();

} // namespace toolkit

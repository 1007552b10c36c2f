// Twips, in which the form reckons, and the pixels of the screen.
#pragma once

namespace toolkit {

constexpr float twipsPerInch = 1440;

/// 1440 over the screen's logical dots per inch, rounded; read once in a run.
[[nodiscard]] int twipsPerPixel();

/// Pixels from twips at painting and reading: to nearest, halves to even.
[[nodiscard]] int pixelsFromTwips(float twips);

/// For tests: another figure for twipsPerPixel; a zero gives back the real one.
void overrideTwipsPerPixel(int twips);

} // namespace toolkit

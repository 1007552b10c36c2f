// The units that the card is drawn in: full pixels are the pixels of the full-scale picture, design
// pixels are twice as large. Layout files place fields in whole design pixels, on a card 1198 of
// them wide.
#pragma once

namespace card_tool {

constexpr int pictureWidth = 2396;
constexpr int pictureHeight = 2473;
/// Rows at the foot of the picture that stay paper: the time stamp and the credit line stand there.
constexpr int footRows = 30;
constexpr int fullPerDesign = 2;
constexpr int twipsPerPoint = 20;

/// The em of a font of that many points on a screen of that resolution, in screen pixels. A screen
/// pixel is a design pixel when the card is shown at half scale.
[[nodiscard]] constexpr double emPixels(double points, int twipsPerPixel) {
    return points * twipsPerPoint / twipsPerPixel;
}

} // namespace card_tool

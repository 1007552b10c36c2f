// How large a card is printed, whatever the zoom on the screen.
#pragma once

namespace zev {

/// No card is printed wider.
constexpr float widestCardInches = 8.1F;
/// A page this narrow or narrower counts as one of unknown size.
constexpr float unknownPageInches = 2.0F;
/// On a narrower page the player is asked first.
constexpr float narrowPageInches = 8.0F;

/// The printable part of a page.
struct PageFacts {
    float widthInches = 0;
    float heightInches = 0;
    int pixelsPerInchX = 0;
    int pixelsPerInchY = 0;
    float twipsPerPixelX = 0; ///< of the printer
    float twipsPerPixelY = 0;
    float scaleWidth = 0; ///< twips
};

/// Height in twips, for the alternate method; `ratio` is the card's height over its width.
[[nodiscard]] float printedHeight(const PageFacts& page, float ratio);

struct DeviceSize {
    float width = 0;
    float height = 0;
};
/// Size in printer pixels, for the primary method. A card that would overrun the page's height is
/// squeezed to it and keeps its width.
[[nodiscard]] DeviceSize deviceSize(const PageFacts& page, float ratio);

} // namespace zev

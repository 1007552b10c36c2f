// What a page file of the program says of its page and the card on it.
#pragma once

#include <filesystem>

namespace zev::test {

/// The card's size at full scale, in pixels.
constexpr int cardWidth = 2396;
constexpr int cardHeight = 2488;

/// In points.
struct PrintedPage {
    float pageWidth = 0;
    float pageHeight = 0;
    float width = 0;
    float height = 0;
    float left = 0;
    float foot = 0; ///< from the page's foot to the card's
    int pictures = 0;
    int pixelsAcross = 0;
    int pixelsDown = 0;
};

[[nodiscard]] PrintedPage pageIn(const std::filesystem::path& file);

} // namespace zev::test

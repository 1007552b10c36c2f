// The card's picture as auto-adjust reads it: by places in twips.
#pragma once

#include <optional>

#include "toolkit/picture/bitmap.h"

namespace zev {

/// The picture that the searches of one run share; a search for a word erases what it finds.
/// Places are twips on the card. Ink is whatever has another colour than the picture's first pixel,
/// and so is everything outside the picture, which can't be erased.
class SearchedPicture {
  public:
    /// `scale` is the card's width over its design width. No picture is failure 481.
    SearchedPicture(toolkit::Bitmap picture, int twipsPerPixel, float scale);

    struct Pixel {
        int column = 0;
        int row = 0;
    };

    [[nodiscard]] bool isInk(Pixel pixel) const;
    [[nodiscard]] bool isInk(float x, float y) const;
    void erase(Pixel pixel);

    /// The twips of a length of pixels, and of a length that grows with the card.
    [[nodiscard]] float pixels(float count) const { return count * twips_; }
    [[nodiscard]] float scaled(float twips) const { return twips * scale_; }
    [[nodiscard]] float scaledPixels(float count) const { return scaled(pixels(count)); }

    /// The left or upper edge of the pixel in which a place lies. Without twips per pixel this is
    /// failure 11.
    [[nodiscard]] float edgeOf(float place) const;

    /// The whole twips of a place, without what is over whole pixels. Fails in the same way, and
    /// beyond 32 bits it is failure 6.
    [[nodiscard]] float cutToPixels(float place) const;

    /// The pixel of a place in whole twips.
    [[nodiscard]] Pixel pixelAt(int x, int y) const;

    [[nodiscard]] int twipsPerPixel() const { return static_cast<int>(twips_); }
    [[nodiscard]] int width() const;
    [[nodiscard]] int height() const;

  private:
    [[nodiscard]] float inPixels(float length) const;

    toolkit::Bitmap picture_;
    std::optional<toolkit::Color> paper_;
    float twips_ = 0;
    float scale_ = 0;
};

} // namespace zev

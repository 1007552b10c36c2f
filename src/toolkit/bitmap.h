// A picture of opaque 32-bit pixels in memory, always at one pixel a pixel.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

#include "toolkit/color.h"
#include "toolkit/font.h"
#include "toolkit/pixel_memory.h"

namespace toolkit {

/// Pixels are stored as 0xFFRRGGBB, row by row without padding.
class Bitmap {
  public:
    Bitmap() = default;
    Bitmap(int width, int height, Color fill = white);
    /// One whose pixels are nothing yet.
    [[nodiscard]] static Bitmap unpainted(int width, int height);

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] bool empty() const { return pixels_.empty(); }

    /// The colour at a pixel, none outside the picture.
    [[nodiscard]] std::optional<Color> pixel(int x, int y) const;
    /// Sets a pixel; outside the picture nothing happens.
    void setPixel(int x, int y, Color color);
    /// Fills the part of the rectangle that lies in the picture.
    void fill(int left, int top, int width, int height, Color color);

    [[nodiscard]] std::uint32_t* row(int y) { return pixels_.data() + offset(y); }
    [[nodiscard]] const std::uint32_t* row(int y) const { return pixels_.data() + offset(y); }

  private:
    [[nodiscard]] std::size_t offset(int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

    int width_ = 0;
    int height_ = 0;
    std::vector<std::uint32_t, PixelAllocator<std::uint32_t>> pixels_;
};

constexpr std::uint32_t pixelOf(Color color) {
    return 0xFF000000U | (color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU);
}
constexpr Color colorOf(std::uint32_t pixel) {
    return (pixel & 0xFFU) << 16U | (pixel & 0xFF00U) | (pixel >> 16U & 0xFFU);
}

/// Draws a text with its line's top left corner at (x, y) pixels, as labels are painted.
void drawText(Bitmap& bitmap, float x, float y, const FontSpec& font, Color color,
              std::string_view text);

/// Reads an image file (GIF, PNG, JPEG, BMP); transparent parts become white. A file that is none
/// is failure 481, one that can't be read fails as readFile does.
[[nodiscard]] Bitmap loadBitmap(const std::filesystem::path& path);

/// Writes a PNG file; for tests, screenshots and the windowless demonstration. An empty picture is
/// failure 57, else it fails as writeFile does.
void savePng(const Bitmap& bitmap, const std::filesystem::path& path);

} // namespace toolkit

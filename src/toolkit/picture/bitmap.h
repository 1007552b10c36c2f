// A picture of opaque 32-bit pixels in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>

#include "toolkit/base/color.h"

namespace toolkit {

/// Pixels are stored as 0xFFRRGGBB, row by row without padding.
class Bitmap {
  public:
    Bitmap() = default;
    Bitmap(int width, int height, Color fill = white);
    Bitmap(const Bitmap& other);
    Bitmap(Bitmap&& other) noexcept;
    Bitmap& operator=(Bitmap other) noexcept;
    ~Bitmap() = default;

    /// Its pixels may be anything until each is written. To fill the card's largest picture first
    /// made an export longer by a tenth.
    [[nodiscard]] static Bitmap unwritten(int width, int height);

    [[nodiscard]] int width() const { return width_; }
    [[nodiscard]] int height() const { return height_; }
    [[nodiscard]] bool empty() const { return pixels_ == nullptr; }

    /// The colour at a pixel, none outside the picture.
    [[nodiscard]] std::optional<Color> pixel(int x, int y) const;
    /// Sets a pixel; outside the picture nothing happens.
    void setPixel(int x, int y, Color color);
    /// Fills the part of the rectangle that lies in the picture.
    void fill(int left, int top, int width, int height, Color color);

    [[nodiscard]] std::uint32_t* row(int y) { return pixels_.get() + offset(y); }
    [[nodiscard]] const std::uint32_t* row(int y) const { return pixels_.get() + offset(y); }

  private:
    [[nodiscard]] std::size_t offset(int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_);
    }

    [[nodiscard]] std::size_t size() const { return offset(height_); }

    int width_ = 0;
    int height_ = 0;
    std::unique_ptr<std::uint32_t[]> pixels_;
};

constexpr std::uint32_t pixelOf(Color color) {
    return 0xFF000000U | (color & 0xFFU) << 16U | (color & 0xFF00U) | (color >> 16U & 0xFFU);
}
constexpr Color colorOf(std::uint32_t pixel) {
    return (pixel & 0xFFU) << 16U | (pixel & 0xFF00U) | (pixel >> 16U & 0xFFU);
}

} // namespace toolkit

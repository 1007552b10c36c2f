#include "toolkit/picture/bitmap.h"

#include <algorithm>
#include <utility>

namespace toolkit {

Bitmap::Bitmap(int width, int height, Color fill) : Bitmap(unwritten(width, height)) {
    std::fill_n(pixels_.get(), size(), pixelOf(fill));
}

Bitmap::Bitmap(const Bitmap& other) : Bitmap(unwritten(other.width_, other.height_)) {
    std::copy_n(other.pixels_.get(), size(), pixels_.get());
}

Bitmap::Bitmap(Bitmap&& other) noexcept
    : width_(std::exchange(other.width_, 0)), height_(std::exchange(other.height_, 0)),
      pixels_(std::move(other.pixels_)) {}

Bitmap& Bitmap::operator=(Bitmap other) noexcept {
    width_ = std::exchange(other.width_, 0);
    height_ = std::exchange(other.height_, 0);
    pixels_ = std::move(other.pixels_);
    return *this;
}

Bitmap Bitmap::unwritten(int width, int height) {
    Bitmap bitmap;
    bitmap.width_ = std::max(width, 0);
    bitmap.height_ = std::max(height, 0);
    if (bitmap.size() != 0)
        bitmap.pixels_ = std::make_unique_for_overwrite<std::uint32_t[]>(bitmap.size());
    return bitmap;
}

std::optional<Color> Bitmap::pixel(int x, int y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return std::nullopt;
    return colorOf(row(y)[x]);
}

void Bitmap::setPixel(int x, int y, Color color) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_) return;
    row(y)[x] = pixelOf(color);
}

void Bitmap::fill(int left, int top, int width, int height, Color color) {
    // In 64 bits: a rectangle may begin and end far outside.
    const auto clipped = [](std::int64_t value, int bound) {
        return static_cast<int>(std::clamp<std::int64_t>(value, 0, bound));
    };
    const int firstX = clipped(left, width_);
    const int firstY = clipped(top, height_);
    const int pastX = clipped(std::int64_t{left} + width, width_);
    const int pastY = clipped(std::int64_t{top} + height, height_);
    if (firstX >= pastX) return;
    for (int y = firstY; y < pastY; ++y) std::fill(row(y) + firstX, row(y) + pastX, pixelOf(color));
}

} // namespace toolkit

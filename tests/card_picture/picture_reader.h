#pragma once

#include "card_picture/layout_reader.h"

#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

namespace card_picture {

using Colour = std::tuple<std::uint8_t, std::uint8_t, std::uint8_t>;
inline constexpr Colour paper{255, 255, 255};

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<Colour> pixels{};

    [[nodiscard]] const Colour& at(int x, int y) const {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
    [[nodiscard]] bool inside(int x, int y) const {
        return x >= 0 && y >= 0 && x < width && y < height;
    }
    [[nodiscard]] bool ink(int x, int y) const { return inside(x, y) && at(x, y) != paper; }
};

/// The tool's pictures; empty if they can't be read.
[[nodiscard]] Picture readPacked(const std::string& path);
[[nodiscard]] Picture readGif(const std::string& path);
/// The full picture, read once.
[[nodiscard]] const Picture& fullPicture();
[[nodiscard]] const Picture& halfPicture();

/// The colour that a field of that number is printed in, at full strength.
[[nodiscard]] Colour printedColour(int number);

/// How a mark's character lies in its label, in pixels of the screen. The centre is that of the
/// print that it belongs to: a letter's is the ring's, a box's that of a filled square.
struct Glyph {
    double centreX = 0;
    double centreY = 0;
    double radius = 0;
    double advance = 0;
    double height = 0;
};
[[nodiscard]] Glyph markGlyph(const Field& mark, int twips);
/// The ink of a check, in pixels from its label's corner.
struct CheckInk {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};
[[nodiscard]] CheckInk checkInk(const Field& mark, int twips);
/// The ascent and line height of a text area's font, and how far letters reach below the base
/// line, in pixels of the screen.
struct LineHeight {
    double ascent = 0;
    double height = 0;
    double reach = 0;
};
[[nodiscard]] LineHeight textLine(const Field& text, int twips);

} // namespace card_picture

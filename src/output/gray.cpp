#include "output/gray.h"

#include <array>
#include <cmath>

namespace zev {
namespace {

using Levels = std::array<std::uint32_t, 256>;

/// The grey pixel for each luminance, lightened.
Levels lightenedLevels() {
    constexpr double gamma = 3.2767;
    Levels levels{};
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const double share = std::pow(static_cast<double>(i) / 255, 1 / gamma);
        const auto level = static_cast<std::uint32_t>(std::lround(share * 255));
        levels[i] = 0xFF000000U | level << 16U | level << 8U | level;
    }
    return levels;
}

/// The weights of the eye, in 1024ths.
constexpr std::size_t luminance(std::uint32_t pixel) {
    return ((pixel >> 16U & 0xFFU) * 306U + (pixel >> 8U & 0xFFU) * 601U + (pixel & 0xFFU) * 117U +
            512U) >>
           10U;
}

const Levels& grayLevels() {
    static const Levels levels = lightenedLevels();
    return levels;
}

} // namespace

toolkit::Bitmap grayed(const toolkit::Bitmap& picture) {
    const Levels& levels = grayLevels();
    toolkit::Bitmap gray(picture.width(), picture.height());
    for (int y = 0; y < picture.height(); ++y) {
        const std::uint32_t* source = picture.row(y);
        std::uint32_t* target = gray.row(y);
        for (int x = 0; x < picture.width(); ++x) target[x] = levels[luminance(source[x])];
    }
    return gray;
}

toolkit::Drawing grayed(const toolkit::Drawing& drawing) {
    toolkit::Drawing gray = drawing;
    for (toolkit::DrawnItem& item : gray.items)
        std::visit(
            [](auto& drawn) {
                const auto pixel = toolkit::pixelOf(drawn.color);
                drawn.color = toolkit::colorOf(grayLevels()[luminance(pixel)]);
            },
            item);
    return gray;
}

} // namespace zev

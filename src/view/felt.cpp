#include "view/felt.h"

#include <cstdint>
#include <vector>

namespace zev {
namespace {

constexpr int tileSize = 324;
constexpr int baseRed = 46;
constexpr int baseGreen = 96;
constexpr int baseBlue = 70;

/// The next number of a noise that is the same in every run, so that the felt never changes.
std::uint32_t nextNoise(std::uint32_t state) {
    state ^= state << 13U;
    state ^= state >> 17U;
    return state ^ state << 5U;
}

std::vector<int> noiseField() {
    std::vector<int> field(static_cast<std::size_t>(tileSize) * tileSize);
    std::uint32_t state = 2463534242U;
    for (int& value : field) {
        state = nextNoise(state);
        value = static_cast<int>(state >> 24U) - 128;
    }
    return field;
}

/// Short fibres: the mean of three neighbours, wrapping round so that tiles join unseen.
int fibre(const std::vector<int>& field, int x, int y) {
    const auto at = [&](int column, int row) {
        return field[static_cast<std::size_t>(row % tileSize) * tileSize +
                     static_cast<std::size_t>(column % tileSize)];
    };
    return (at(x, y) + at(x + 1, y) + at(x + 1, y + 1)) / 3;
}

} // namespace

toolkit::Bitmap feltTile() {
    toolkit::Bitmap tile(tileSize, tileSize);
    const auto field = noiseField();
    for (int y = 0; y < tileSize; ++y) {
        for (int x = 0; x < tileSize; ++x) {
            const int shade = fibre(field, x, y) / 16;
            tile.row(y)[x] = toolkit::pixelOf(
                toolkit::rgb(baseRed + shade, baseGreen + shade, baseBlue + shade));
        }
    }
    return tile;
}

} // namespace zev

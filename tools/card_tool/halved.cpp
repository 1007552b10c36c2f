#include "card_tool/failure.h"
#include "card_tool/picture.h"

#include <algorithm>
#include <map>

namespace card {
namespace {

Rgb average(const IndexedPicture& picture, int left, int top) {
    int red = 0;
    int green = 0;
    int blue = 0;
    int count = 0;
    for (int y = top; y < std::min(top + 2, picture.height); ++y)
        for (int x = left; x < std::min(left + 2, picture.width); ++x) {
            const Rgb colour = picture.colour(x, y);
            red += colour.red;
            green += colour.green;
            blue += colour.blue;
            ++count;
        }
    const auto rounded = [count](int sum) {
        return static_cast<std::uint8_t>((sum + count / 2) / count);
    };
    return {rounded(red), rounded(green), rounded(blue)};
}

/// Numbers colours in the order in which they turn up.
class PaletteMaker {
  public:
    std::uint8_t indexOf(Rgb colour) {
        const auto [place, added] = m_numbers.try_emplace(colour, m_numbers.size());
        if (added) m_palette.push_back(colour);
        if (m_palette.size() > 256)
            throw Failure("the half-size picture takes more than 256 colours");
        return static_cast<std::uint8_t>(place->second);
    }
    std::vector<Rgb> palette() && { return std::move(m_palette); }

  private:
    std::map<Rgb, std::size_t> m_numbers{};
    std::vector<Rgb> m_palette{};
};

} // namespace

IndexedPicture halved(const IndexedPicture& picture) {
    IndexedPicture half{(picture.width + 1) / 2, (picture.height + 1) / 2, {}, {}};
    half.pixels.reserve(half.index(0, half.height));
    PaletteMaker maker;
    for (int y = 0; y < picture.height; y += 2)
        for (int x = 0; x < picture.width; x += 2)
            half.pixels.push_back(maker.indexOf(average(picture, x, y)));
    half.palette = std::move(maker).palette();
    return half;
}

} // namespace card

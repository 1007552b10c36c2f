#include "help/description_place.h"

#include <algorithm>
#include <array>

namespace zev {
namespace {

struct Sides {
    float left = 0;  ///< twips free left of the menus
    float right = 0; ///< and right of them
};

struct Try {
    DescriptionPlace place;
    float highest = 0; ///< twips; its top must not be above this
};

Sides sidesOf(const DescriptionPlace& menus, const DescriptionRoom& room) {
    return {.left = menus.left - 2 * room.gap,
            .right = room.width - (menus.left + menus.width) - 2 * room.gap};
}

} // namespace

std::optional<DescriptionPlace> placeBeside(const DescriptionPlace& menus, float rowTop,
                                            const DescriptionRoom& room,
                                            const std::function<float(float width)>& heightAt) {
    const Sides sides = sidesOf(menus, room);
    const float wanted = room.width / 4;
    const auto rightOf = [&](float width) {
        return Try{{menus.left + menus.width + room.gap, rowTop, width}, 0};
    };
    const auto leftOf = [&](float width) {
        return Try{{menus.left - room.gap - width, rowTop, width}, 0};
    };
    const float below = menus.top + menus.height + room.gap;
    const std::array tries{rightOf(sides.right >= wanted ? wanted : 0),
                           leftOf(sides.left >= wanted ? wanted : 0),
                           sides.right >= sides.left ? rightOf(sides.right) : leftOf(sides.left),
                           Try{{room.gap, below, room.width - 2 * room.gap}, below}};
    for (auto [place, highest] : tries) {
        if (place.width < room.narrowest) continue;
        place.height = heightAt(place.width);
        const float lowest = room.height - room.gap - place.height;
        if (lowest < highest) continue;
        place.top = std::clamp(place.top, highest, lowest);
        return place;
    }
    return std::nullopt;
}

} // namespace zev

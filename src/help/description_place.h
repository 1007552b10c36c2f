// Where the text stands that explains a row of a menu.
#pragma once

#include <functional>
#include <optional>

namespace zev {

/// Twips, relative to the form.
struct DescriptionPlace {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
};

/// Twips.
struct DescriptionRoom {
    float width = 0; ///< of the form's inside
    float height = 0;
    float gap = 0;       ///< free between the text and the menus, and the form's edges
    float narrowest = 0; ///< no text can be read that is narrower
};

/// A place inside the form, a quarter as wide, beside the open menus and level with the row: right
/// of them or else left; where that doesn't do, as wide as the wider side, or else below them.
/// `heightAt` tells the height of the text at a width. None where it fits nowhere.
[[nodiscard]] std::optional<DescriptionPlace>
placeBeside(const DescriptionPlace& menus, float rowTop, const DescriptionRoom& room,
            const std::function<float(float width)>& heightAt);

} // namespace zev

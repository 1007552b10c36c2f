// A page and what stands on it.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/model/drawing.h"

namespace toolkit {

/// A card stretched into a place of a page. Points, 72 to the inch, from the page's top left
/// corner.
struct PlacedCard {
    std::shared_ptr<const CardRecording> card;
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// All lengths in points.
struct Page {
    double width = 0;
    double height = 0;
    std::vector<PlacedCard> cards{};
    std::vector<DrawnItem> items{}; ///< over the cards, at places of the page
};

} // namespace toolkit

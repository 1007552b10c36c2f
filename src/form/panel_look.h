// How the panels over the form look: alike, and measured by the text font.
#pragma once

#include <functional>

#include "toolkit/base/color.h"
#include "toolkit/model/control.h"
#include "toolkit/text/font.h"

namespace zev {

struct Zevlin;

/// Background of what the player writes into, or reads, outside the card.
constexpr toolkit::Color paleYellow = toolkit::rgb(255, 255, 225);

/// Colour of a text that can be clicked.
constexpr toolkit::Color linkBlue = toolkit::rgb(0, 0, 128);

constexpr int panelCornerRadius = 4; ///< pixels

// Distances in lines of the text font.
constexpr float panelMargin = 1.2F;
constexpr float panelGap = 0.6F;
constexpr float buttonHeight = 1.7F;
constexpr float buttonWidth = 5.5F;

/// How large a panel is laid out.
struct PanelScale {
    float points = 10;
    float air = 1; ///< margins and gaps as a share of the usual ones
};

/// The measures that a panel is laid out by, twips.
struct PanelMeasures {
    toolkit::FontSpec font;
    float air = 1; ///< of the scale; below 1 room is short
    float pixel = 0;
    float line = 0;   ///< height of a line, whole pixels
    float letter = 0; ///< width of an "n"

    [[nodiscard]] float margin() const { return lines(panelMargin * air); }
    [[nodiscard]] float gap() const { return lines(panelGap * air); }
    /// The height of `count` lines, in whole pixels.
    [[nodiscard]] float lines(float count) const { return whole(count * line); }
    /// The nearest whole pixel.
    [[nodiscard]] float whole(float twips) const;
};
[[nodiscard]] PanelMeasures measurePanel(const Zevlin& form, PanelScale scale = {});

/// Lays a panel out as roomy as a form of this height can show it whole: `layOut` places everything
/// by the measures that it is given and returns the panel's height.
void layOutWhole(const Zevlin& form, const std::function<float(const PanelMeasures&)>& layOut);

/// Puts OK and Cancel side by side with their right edge at `right`, no wider than `room` together.
/// Returns their bottom.
float placeButtons(const PanelMeasures& measures, toolkit::Control& ok, toolkit::Control& cancel,
                   float right, float top, float room);

/// Sizes the panel and puts it into the middle of the form.
void centrePanel(const Zevlin& form, toolkit::Panel& panel, float width, float height);

} // namespace zev

#include "form/panel_look.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "form/zevlin.h"

namespace zev {
namespace {

/// From the usual one down; what is still too high at the last is cut.
constexpr std::array scales{PanelScale{},
                            PanelScale{.points = 10, .air = 0.4F},
                            PanelScale{.points = 9, .air = 0.3F},
                            PanelScale{.points = 8, .air = 0.25F},
                            PanelScale{.points = 7, .air = 0.2F},
                            PanelScale{.points = 6, .air = 0.15F}};

} // namespace

float PanelMeasures::whole(float twips) const { return std::round(twips / pixel) * pixel; }

PanelMeasures measurePanel(const Zevlin& form, PanelScale scale) {
    PanelMeasures measures{.font = {.Name = form.TextFontName, .Size = scale.points},
                           .air = scale.air,
                           .pixel = static_cast<float>(form.TwipsPerPixel)};
    const float height = toolkit::textHeight(measures.font);
    measures.line = std::floor(height / measures.pixel) * measures.pixel;
    measures.letter = toolkit::textWidth(measures.font, "n");
    return measures;
}

void layOutWhole(const Zevlin& form, const std::function<float(const PanelMeasures&)>& layOut) {
    for (const PanelScale scale : scales)
        if (layOut(measurePanel(form, scale)) <= form.ScaleHeight()) return;
}

float placeButtons(const PanelMeasures& measures, toolkit::Control& ok, toolkit::Control& cancel,
                   float right, float top, float room) {
    const float gap = measures.gap();
    const float width = std::min(measures.lines(buttonWidth), measures.whole((room - gap) / 2));
    cancel.Move(right - width, top, width, measures.lines(buttonHeight));
    ok.Move(cancel.Left - gap - width, top, width, cancel.Height);
    return top + cancel.Height;
}

void centrePanel(const Zevlin& form, toolkit::Panel& panel, float width, float height) {
    panel.Move((form.ScaleWidth() - width) / 2, (form.ScaleHeight() - height) / 2, width, height);
}

} // namespace zev

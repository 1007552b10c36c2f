#include "form/panel_look.h"

#include <algorithm>
#include <cmath>

#include "form/zevlin.h"

namespace zev {
namespace {

constexpr float panelPoints = 10;

} // namespace

toolkit::FontSpec panelFont(const Zevlin& form) {
    return {.Name = form.TextFontName, .Size = panelPoints, .Bold = false, .Italic = false};
}

float PanelMeasures::whole(float twips) const { return std::round(twips / pixel) * pixel; }

PanelMeasures measurePanel(const Zevlin& form) {
    const toolkit::FontSpec font = panelFont(form);
    PanelMeasures measures{.pixel = static_cast<float>(form.TwipsPerPixel)};
    measures.line = std::floor(toolkit::textHeight(font) / measures.pixel) * measures.pixel;
    measures.letter = toolkit::textWidth(font, "n");
    return measures;
}

float placeButtons(const PanelMeasures& measures, toolkit::Control& ok, toolkit::Control& cancel,
                   float right, float top, float room) {
    const float gap = measures.lines(panelGap);
    const float width = std::min(measures.lines(buttonWidth), measures.whole((room - gap) / 2));
    cancel.Move(right - width, top, width, measures.lines(buttonHeight));
    ok.Move(cancel.Left - gap - width, top, width, cancel.Height);
    return top + cancel.Height;
}

void centrePanel(const Zevlin& form, toolkit::Panel& panel, float width, float height) {
    panel.Move((form.ScaleWidth() - width) / 2, (form.ScaleHeight() - height) / 2, width, height);
}

} // namespace zev

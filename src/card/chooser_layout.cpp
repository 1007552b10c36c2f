#include "card/chooser_layout.h"

#include <algorithm>
#include <cmath>

#include "form/panel_look.h"
#include "form/panels.h"
#include "form/zevlin.h"

namespace zev {
namespace {

constexpr float smallestPoints = 6;
/// The panel is at least this wide, in letters.
constexpr float narrowestInLetters = 52;
constexpr float fewestRows = 3;
constexpr float fewestRowsWhereThereIsRoom = 8;
constexpr float mostRows = 14;
constexpr int rowGapPixels = 6;
constexpr float listFramePixels = 2;
/// In lines of the text font.
constexpr float boxHeight = 1.8F;

void dress(toolkit::Control& control, const toolkit::FontSpec& font, toolkit::Color ground) {
    control.Font = font;
    control.BackColor = ground;
}

void dressControls(Zevlin& form, const toolkit::FontSpec& font) {
    dress(form.TSaveAs, font, paleYellow);
    dress(form.FileList, font, paleYellow);
    dress(form.BOK, font, form.BOK.BackColor);
    dress(form.BCancel, font, form.BCancel.BackColor);
    form.FileList.RowGap = rowGapPixels;
    form.LSaveAs.Font = form.LPath.Font = font;
    form.LPath.Shortens = true;
}

/// The width between the margins.
float innerWidth(const Zevlin& form, const PanelMeasures& measures) {
    const float wanted =
        std::max({measures.letter * narrowestInLetters,
                  toolkit::textWidth(measures.font, toolkit::paintedText(form.LSaveAs.Caption)),
                  toolkit::textWidth(measures.font, toolkit::paintedText(form.LPath.Caption))});
    const float room = form.ScaleWidth() - 4 * measures.margin();
    return measures.whole(std::min(wanted, room));
}

/// Where the prompt is too long for a small form, its font gets smaller before it is cut.
void shrinkPrompt(toolkit::Label& prompt) {
    while (prompt.Font.Size > smallestPoints &&
           toolkit::textWidth(prompt.Font, toolkit::paintedText(prompt.Caption)) > prompt.Width)
        prompt.Font.Size -= 0.5F;
}

float listHeight(const Zevlin& form, const PanelMeasures& measures) {
    const float others =
        4 * measures.margin() + 4 * measures.gap() + measures.lines(boxHeight + buttonHeight + 2);
    const float row = measures.line + static_cast<float>(rowGapPixels) * measures.pixel;
    const float room = std::floor((form.ScaleHeight() - others) / row);
    const float wanted = std::clamp(static_cast<float>(form.FileList.List.size()),
                                    fewestRowsWhereThereIsRoom, mostRows);
    const float rows = std::max(measures.air < 1 ? 1 : fewestRows, std::min(wanted, room));
    return rows * row + listFramePixels * measures.pixel;
}

/// From the top: prompt, name, list, folder, buttons. Returns the panel's height.
float placeControls(Zevlin& form, const PanelMeasures& measures, float width) {
    const float left = measures.margin();
    const float gap = measures.gap();
    float top = measures.margin();
    form.LSaveAs.Move(left, top, width, measures.line);
    shrinkPrompt(form.LSaveAs);
    top += measures.line + gap;
    form.TSaveAs.Move(left, top, width, measures.lines(boxHeight));
    top += form.TSaveAs.Height + gap;
    form.FileList.Move(left, top, width, listHeight(form, measures));
    if (form.FileList.Visible) top += form.FileList.Height + gap;
    form.LPath.Move(left, top, width, measures.line);
    top += measures.line + gap;
    return placeButtons(measures, form.BOK, form.BCancel, left + width, top, width) +
           measures.margin();
}

} // namespace

void layOutChooser(Zevlin& form) {
    layOutWhole(form, [&form](const PanelMeasures& measures) {
        dressControls(form, measures.font);
        const float width = innerWidth(form, measures);
        const float height = placeControls(form, measures, width);
        centrePanel(form, form.P3, width + 2 * measures.margin(), height);
        return height;
    });
    form.P3.Framed = true;
    MakeObjRounded(form, form.P3, panelCornerRadius);
}

} // namespace zev

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

void dressControls(Zevlin& form) {
    const toolkit::FontSpec font = panelFont(form);
    dress(form.TSaveAs, font, paleYellow);
    dress(form.FileList, font, paleYellow);
    dress(form.BOK, font, form.BOK.BackColor);
    dress(form.BCancel, font, form.BCancel.BackColor);
    form.FileList.RowGap = rowGapPixels;
    form.LSaveAs.Font = form.LPath.Font = font;
}

/// The width between the margins.
float innerWidth(const Zevlin& form, const PanelMeasures& measures) {
    const toolkit::FontSpec font = panelFont(form);
    const float wanted =
        std::max({measures.letter * narrowestInLetters,
                  toolkit::textWidth(font, toolkit::paintedText(form.LSaveAs.Caption)),
                  toolkit::textWidth(font, toolkit::paintedText(form.LPath.Caption))});
    const float room = form.ScaleWidth() - measures.lines(4 * panelMargin);
    return measures.whole(std::min(wanted, room));
}

/// Where a line is too long for a small form, its font gets smaller before the line is cut.
void placeLine(toolkit::Label& label, const PanelMeasures& measures, float top, float width) {
    label.Move(measures.lines(panelMargin), top, width, measures.line);
    while (label.Font.Size > smallestPoints &&
           toolkit::textWidth(label.Font, toolkit::paintedText(label.Caption)) > width)
        label.Font.Size -= 0.5F;
}

float listHeight(const Zevlin& form, const PanelMeasures& measures) {
    constexpr float others = 4 * panelMargin + 4 * panelGap + boxHeight + buttonHeight + 2;
    const float row = measures.line + static_cast<float>(rowGapPixels) * measures.pixel;
    const float room = std::floor((form.ScaleHeight() - measures.lines(others)) / row);
    const float wanted = std::clamp(static_cast<float>(form.FileList.List.size()),
                                    fewestRowsWhereThereIsRoom, mostRows);
    const float rows = std::max(fewestRows, std::min(wanted, room));
    return rows * row + listFramePixels * measures.pixel;
}

/// From the top: prompt, name, list, folder, buttons. Returns the panel's height.
float placeControls(Zevlin& form, const PanelMeasures& measures, float width) {
    const float left = measures.lines(panelMargin);
    const float gap = measures.lines(panelGap);
    float top = measures.lines(panelMargin);
    placeLine(form.LSaveAs, measures, top, width);
    top += measures.line + gap;
    form.TSaveAs.Move(left, top, width, measures.lines(boxHeight));
    top += form.TSaveAs.Height + gap;
    form.FileList.Move(left, top, width, listHeight(form, measures));
    if (form.FileList.Visible) top += form.FileList.Height + gap;
    placeLine(form.LPath, measures, top, width);
    top += measures.line + gap;
    return placeButtons(measures, form.BOK, form.BCancel, left + width, top, width) +
           measures.lines(panelMargin);
}

} // namespace

void layOutChooser(Zevlin& form) {
    dressControls(form);
    const PanelMeasures measures = measurePanel(form);
    const float width = innerWidth(form, measures);
    const float height = placeControls(form, measures, width);
    centrePanel(form, form.P3, width + measures.lines(2 * panelMargin), height);
    form.P3.Framed = true;
    MakeObjRounded(form, form.P3, panelCornerRadius);
}

} // namespace zev

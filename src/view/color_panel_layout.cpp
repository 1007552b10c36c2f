#include "view/color_panel_layout.h"

#include <algorithm>
#include <array>

#include "form/panel_look.h"
#include "form/zevlin.h"

namespace zev {
namespace {

constexpr const char* explanation = "Click a pre-defined text color or use sliders below to select "
                                    "the pen color for your marks and text";
constexpr int presetCount = 6;

// In lines of the text font.
constexpr float explanationLines = 2;
constexpr float sampleHeight = 1.6F;
constexpr float numberHeight = 1.3F;
constexpr float colorHeight = 2.6F;
/// Room for the explanation, in letters.
constexpr float widthInLetters = 54;
constexpr float numberInLetters = 6;

constexpr std::array primaries{toolkit::rgb(255, 0, 0), toolkit::rgb(0, 255, 0),
                               toolkit::rgb(0, 0, 255)};
/// Colours of the numbers, readable on these.
constexpr std::array numberInks{toolkit::white, toolkit::black, toolkit::white};

void show(toolkit::PanelLabel& label, const toolkit::FontSpec& font, toolkit::BackStyle ground,
          toolkit::Alignment alignment) {
    label.Font = font;
    label.BackStyle = ground;
    label.Alignment = alignment;
    label.Visible = true;
}

void dressLabels(Zevlin& form, const toolkit::FontSpec& font) {
    using enum toolkit::BackStyle;
    show(form.Lpresetcolors, font, Transparent, toolkit::Alignment::Left);
    show(form.ColorLabel, font, Opaque, toolkit::Alignment::Center);
    show(form.ColorText, font, Opaque, toolkit::Alignment::Center);
    form.Lpresetcolors.Caption = explanation;
    form.Lpresetcolors.Wraps = true;
    form.ColorText.Caption = "Sample Text";
    form.ColorText.Font.Size = form.TextFontSize[1];
    for (std::size_t i = 0; i < primaries.size(); ++i) {
        show(form.ColorID[i], font, Opaque, toolkit::Alignment::Center);
        form.ColorID[i].BackColor = primaries[i];
        form.ColorID[i].ForeColor = numberInks[i];
    }
    for (toolkit::Label& sample : form.ColorSample) {
        sample.Font = font;
        sample.Font.Bold = true;
        sample.BackStyle = Opaque;
        sample.Alignment = toolkit::Alignment::Center;
        sample.ForeColor = toolkit::white;
        sample.Visible = true;
    }
}

void dressControls(Zevlin& form, const toolkit::FontSpec& font) {
    for (toolkit::ScrollBar& bar : form.ColorScroll) {
        bar.Min = 0;
        bar.Max = 255;
        bar.LargeChange = 16;
        bar.Visible = true;
    }
    for (toolkit::CommandButton& button : form.ColorBut) {
        button.Font = font;
        button.Visible = true;
    }
}

float sampleWidth(const PanelMeasures& measures, float width) {
    return measures.whole((width - (presetCount - 1) * sampleGap) / presetCount);
}

/// Places all six side by side; those that aren't loaded yet take their place from the one before.
float placeSamples(Zevlin& form, const PanelMeasures& measures, float top, float width) {
    const float each = sampleWidth(measures, width);
    float left = measures.margin();
    for (toolkit::Label& sample : form.ColorSample) {
        sample.Move(left, top, each, measures.lines(sampleHeight));
        left += each + sampleGap;
    }
    return top + measures.lines(sampleHeight) + measures.gap();
}

float placeSliders(Zevlin& form, const PanelMeasures& measures, float top, float width) {
    const float left = measures.margin();
    const float gap = measures.gap();
    const float number = measures.whole(measures.letter * numberInLetters);
    const float height = measures.lines(numberHeight);
    for (std::size_t i = 0; i < form.ColorScroll.size(); ++i) {
        form.ColorID[i].Move(left, top, number, height);
        form.ColorScroll[i].Move(left + number + gap, top, width - number - gap, height);
        top += height + gap;
    }
    return top;
}

/// The colour beside its sample text.
float placeChosen(Zevlin& form, const PanelMeasures& measures, float top, float width) {
    const float left = measures.margin();
    const float half = measures.whole((width - sampleGap) / 2);
    form.ColorLabel.Move(left, top, half, measures.lines(colorHeight));
    form.ColorText.Move(left + width - half, top, half, form.ColorLabel.Height);
    return top + measures.lines(colorHeight) + measures.gap();
}

float placeAll(Zevlin& form, const PanelMeasures& measures, float width) {
    const float left = measures.margin();
    float top = measures.margin();
    form.Lpresetcolors.Move(left, top, width, measures.lines(explanationLines));
    top = placeSamples(form, measures, top + measures.lines(explanationLines) + measures.gap(),
                       width);
    top = placeSliders(form, measures, top, width);
    top = placeChosen(form, measures, top, width);
    return placeButtons(measures, form.ColorBut[0], form.ColorBut[1], left + width, top, width) +
           measures.margin();
}

} // namespace

void layOutColorPanel(Zevlin& form) {
    form.ColorPic.BackColor = paleYellow;
    form.ColorPic.Framed = true;
    layOutWhole(form, [&form](const PanelMeasures& measures) {
        dressLabels(form, measures.font);
        dressControls(form, measures.font);
        const float room =
            std::min(measures.letter * widthInLetters, form.ScaleWidth() - 4 * measures.margin());
        const float width = (sampleWidth(measures, room) + sampleGap) * presetCount - sampleGap;
        const float height = placeAll(form, measures, width);
        centrePanel(form, form.ColorPic, width + 2 * measures.margin(), height);
        return height;
    });
}

} // namespace zev

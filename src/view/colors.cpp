#include "view/colors.h"

#include <string>
#include <vector>

#include "form/trace.h"
#include "form/field_values.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "toolkit/number_text.h"
#include "view/color_panel.h"
#include "form/options.h"

namespace zev {
namespace {

using Labels = toolkit::ControlArray<toolkit::Label>;
using Colors = std::vector<toolkit::Color>;

void paintOwn(Labels& labels, const Colors& colors) {
    forEachField(labels, [&](int i) {
        const auto cell = static_cast<std::size_t>(i);
        if (cell < colors.size()) labels[i].ForeColor = colors[cell];
    });
}

void paintAll(Labels& labels, toolkit::Color color) {
    forEachField(labels, [&](int i) { labels[i].ForeColor = color; });
}

Colors colorsOf(const Labels& labels) {
    Colors colors;
    for (const auto& label : labels) colors.push_back(label.ForeColor);
    return colors;
}

void paintScheme(Zevlin& form) {
    if (form.mcolorscheme[0].Checked) {
        paintOwn(form.AMark, form.MarkColors);
        paintOwn(form.AText, form.TextColors);
        paintOwn(form.SText, form.SuitColors);
        return;
    }
    const auto color = static_cast<toolkit::Color>(form.ColorScheme);
    form.mcolorscheme.at(static_cast<std::size_t>(form.LastSchemeIndex)).Checked = true;
    paintAll(form.AMark, color);
    paintAll(form.AText, color);
    paintAll(form.SText, color);
}

void checkScheme(Zevlin& form, int index) {
    form.PreviousScheme = static_cast<std::int16_t>(index);
    for (int i = 0; auto& item : form.mcolorscheme) {
        if (item.Checked && i != index) form.PreviousScheme = static_cast<std::int16_t>(i);
        item.Checked = false;
        ++i;
    }
    form.mcolorscheme.at(static_cast<std::size_t>(index)).Checked = true;
}

void chooseScheme(Zevlin& form, int index) {
    checkScheme(form, index);
    if (index < form.LastSchemeIndex) {
        form.ColorScheme = index;
    } else if (!form.Initializing) {
        // Its buttons do the rest.
        return showColorPanel(form);
    }
    if (form.AMark.UBound() > 0) SetGlobalColors(form);
    if (!form.Initializing) IniWrite(form);
}

} // namespace

void mColorScheme_Click(Zevlin& form, int index) {
    Traceit(form, toolkit::numberText(index) + " mColorScheme_Click ");
    trapped(form, "Error in mColorScheme_Click: #", [&] { chooseScheme(form, index); });
}

void SetGlobalColors(Zevlin& form) {
    Traceit(form, "SetGlobalColors");
    trapped(form, "Error in SetGlobalColors: #", [&] { paintScheme(form); });
}

void KeepFieldColors(Zevlin& form) {
    form.MarkColors = colorsOf(form.AMark);
    form.TextColors = colorsOf(form.AText);
    form.SuitColors = colorsOf(form.SText);
}

} // namespace zev

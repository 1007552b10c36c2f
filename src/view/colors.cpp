#include "view/colors.h"

#include <string>
#include <vector>

#include "form/field_values.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "toolkit/base/number_text.h"

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

} // namespace

void SetGlobalColors(Zevlin& form) {
    procedure(form, "SetGlobalColors", [&] { paintScheme(form); });
}

void KeepFieldColors(Zevlin& form) {
    form.MarkColors = colorsOf(form.AMark);
    form.TextColors = colorsOf(form.AText);
    form.SuitColors = colorsOf(form.SText);
}

} // namespace zev

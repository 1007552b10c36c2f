#include "design/field_colors.h"

#include <array>
#include <vector>

#include "form/field_values.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/popup_menu.h"

namespace zev {
namespace {

/// The colours of the menu's rows, indexed from 1.
std::array<toolkit::Color, 4> menuColors(const Zevlin& form) {
    return {0, form.ColorBlack, form.ColorRed, form.ColorBlue};
}

void checkColor(Zevlin& form, toolkit::Color color) {
    const auto colors = menuColors(form);
    bool found = false;
    for (std::size_t row = 1; row < colors.size(); ++row) {
        form.mpopDesignColor[row].Checked = !found && colors[row] == color;
        found = found || form.mpopDesignColor[row].Checked;
    }
}

void recolor(Zevlin& form, int index) {
    const DesignField field{static_cast<FieldKind>(form.PopupKind), form.PopupIndex};
    toolkit::Label& label = labelOf(form, field);
    label.ForeColor = menuColors(form).at(static_cast<std::size_t>(index));
    cellOf(colorsOf(form, field.kind), field.index) = label.ForeColor;
}

} // namespace

void openColorMenu(Zevlin& form, DesignField field) {
    form.PopupIndex = toolkit::toInteger16(field.index);
    form.PopupKind = static_cast<std::int16_t>(field.kind);
    checkColor(form, labelOf(form, field).ForeColor);
    std::vector<toolkit::PopupRow> rows;
    for (int row = 1; row <= 3; ++row) {
        rows.push_back({.item = &form.mpopDesignColor.at(static_cast<std::size_t>(row)),
                        .shortcut = {},
                        .Click = [&form, row] { mpopDesignColor_Click(form, row); }});
    }
    toolkit::popupMenu(rows, "Color of the field");
}

void mpopDesignColor_Click(Zevlin& form, int index) {
    procedure(form, "mpopDesignColor_Click", [&] { recolor(form, index); });
}

} // namespace zev

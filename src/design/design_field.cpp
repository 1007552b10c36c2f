#include "design/design_field.h"

#include "form/field_values.h"
#include "form/zevlin.h"

namespace zev {

toolkit::Label& labelOf(Zevlin& form, DesignField field) {
    return field.kind == FieldKind::Mark ? form.AMark[field.index] : form.AText[field.index];
}

std::vector<toolkit::Color>& colorsOf(Zevlin& form, FieldKind kind) {
    return kind == FieldKind::Mark ? form.MarkColors : form.TextColors;
}

std::string widthPattern(std::string unit) {
    for (int i = 0; i < 8; ++i) unit += unit;
    unit.pop_back();
    return unit;
}

void showReadOut(Zevlin& form, DesignField field) {
    form.MCoord.Caption = readOut(field.index, labelOf(form, field));
}

} // namespace zev

#include "design/design_field.h"

#include "app/zevlin.h"
#include "marks/mark_clicks.h"

namespace zev {

toolkit::Label& labelOf(Zevlin& form, DesignField field) {
    return field.kind == FieldKind::Mark ? form.AMark[field.index] : form.AText[field.index];
}

std::vector<toolkit::Color>& colorsOf(Zevlin& form, FieldKind kind) {
    return kind == FieldKind::Mark ? form.MarkColors : form.TextColors;
}

void showReadOut(Zevlin& form, DesignField field) {
    form.MCoord.Caption = readOut(field.index, labelOf(form, field));
}

} // namespace zev

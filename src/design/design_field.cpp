#include "design/design_field.h"

#include "form/field_values.h"
#include "form/zevlin.h"
#include "layout/layout_file.h"

namespace zev {
namespace {

/// 0 for none.
char symbolOf(const toolkit::Label& mark) {
    return mark.Caption.size() == 1 ? mark.Caption.front() : '\0';
}

} // namespace

toolkit::Label& labelOf(Zevlin& form, DesignField field) {
    return field.kind == FieldKind::Mark ? form.AMark[field.index] : form.AText[field.index];
}

bool isCheck(const toolkit::Label& mark) {
    const char symbol = symbolOf(mark);
    return symbol == mark_symbol::check || symbol == mark_symbol::square;
}

bool isCircle(const toolkit::Label& mark) { return symbolOf(mark) == mark_symbol::circle; }

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

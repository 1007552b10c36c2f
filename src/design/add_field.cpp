#include "design/add_field.h"

#include <string>

#include "design/design_field.h"
#include "form/field_values.h"
#include "form/zevlin.h"
#include "layout/layout_file.h"
#include "text/edit_box.h"
#include "toolkit/base/color.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

/// Colours of the platform's palette. Red and blue aren't those of the printed card: a field gets
/// these by its colour menu.
namespace palette {
constexpr int black = 0;
constexpr int cyan = 11;
constexpr int red = 12;
constexpr int yellow = 14;
constexpr int white = 15;
} // namespace palette

toolkit::Color chosenColor(const Zevlin& form) {
    if (form.MBlack.Checked) return toolkit::qbColor(palette::black);
    return toolkit::qbColor(form.MRed.Checked ? palette::red : palette::cyan);
}

/// 1 small, 2 medium, 3 large.
std::size_t chosenSize(const Zevlin& form) {
    if (form.MSmall.Checked) return 1;
    return form.MMedium.Checked ? 2 : 3;
}

template <typename Value>
void store(std::vector<Value>& values, int index, Value value) {
    growTo(values, index);
    cellOf(values, index) = value;
}

char chosenSymbol(const Zevlin& form) {
    if (form.MCircle.Checked) return mark_symbol::circle;
    return form.mFillIn.Checked ? mark_symbol::square : mark_symbol::check;
}

void holdAdded(Zevlin& form, DesignField field) {
    form.UndoIndex = toolkit::toInteger16(field.index);
    form.UndoIsText = field.kind == FieldKind::Text;
    form.FieldAdded = field;
    form.FieldAddedHeld = true;
}

void addMark(Zevlin& form, const toolkit::MouseArguments& mouse) {
    form.DesignDirty = true;
    const std::int16_t index = toolkit::toInteger16(form.AMark.UBound() + 1);
    toolkit::Label& mark = form.AMark.Load(index);
    const std::size_t size = chosenSize(form);
    store(form.MarkSizes, index, static_cast<std::int16_t>(size));
    mark.Font = {.Name = form.MarkFontName,
                 .Size = form.MarkFontSize.at(size),
                 .Bold = true,
                 .Italic = false};
    mark.ForeColor = chosenColor(form);
    store(form.MarkColors, index, mark.ForeColor);
    mark.Caption = std::string(1, chosenSymbol(form));
    mark.Clips = false;
    mark.Move(mouse.X, mouse.Y, toolkit::textWidth(mark.Font, mark.Caption),
              toolkit::textHeight(mark.Font));
    mark.Visible = true;
    form.P1Stack.bringToFront(mark);
    holdAdded(form, {FieldKind::Mark, index});
}

std::string newTextHead(int index) { return toolkit::numberText(index) + " My "; }

void dressNewText(Zevlin& form, toolkit::Label& text, int index) {
    const std::size_t size = chosenSize(form);
    store(form.TextSizes, index, static_cast<std::int16_t>(size));
    text.Font = {.Name = form.TextFontName,
                 .Size = form.TextFontSize.at(size),
                 .Bold = size > 1,
                 .Italic = false};
    text.ForeColor = chosenColor(form);
    store(form.TextColors, index, text.ForeColor);
    // A yellow bar while its width is being chosen.
    text.BackStyle = toolkit::BackStyle::Opaque;
    text.BackColor = toolkit::qbColor(palette::yellow);
    text.Caption = newTextHead(index) + widthPattern("| ");
    text.Alignment = toolkit::Alignment::Left;
    text.FirstLineOnly = true;
}

void addText(Zevlin& form, const toolkit::MouseArguments& mouse) {
    form.DesignDirty = true;
    const std::int16_t index = toolkit::toInteger16(form.AText.UBound() + 1);
    toolkit::Label& text = form.AText.Load(index);
    form.Highlight.Load(index);
    dressNewText(form, text, index);
    text.Move(mouse.X, mouse.Y, toolkit::textWidth(text.Font, "abc"),
              toolkit::textHeight(text.Font));
    text.Visible = true;
    form.P1Stack.bringToFront(text);
    form.TIndex = index;
    holdAdded(form, {FieldKind::Text, index});
    SetTextBox(form, form.CText, index);
    SetTextBox(form, form.LText, index);
}

} // namespace

void pressDesign(Zevlin& form, const toolkit::MouseArguments& mouse) {
    form.FieldAddedHeld = false;
    if (mouse.Button == toolkit::button::left) {
        form.P1.MousePointer = toolkit::MousePointer::Hand;
        form.LastX = mouse.X;
        form.LastY = mouse.Y;
    } else if (mouse.Button == toolkit::button::right) {
        // The click that dismisses the help page adds nothing.
        if (form.THelp.Visible) return;
        if (form.MText.Checked) {
            addText(form, mouse);
        } else {
            addMark(form, mouse);
        }
    }
}

void shapeNewField(Zevlin& form, const toolkit::MouseArguments& mouse) {
    if (!form.FieldAddedHeld) return;
    toolkit::Label& field = labelOf(form, form.FieldAdded);
    form.DesignDirty = true;
    if (form.FieldAdded.kind == FieldKind::Mark) return field.Move(mouse.X, mouse.Y);
    if (mouse.X > field.Left) field.Width = mouse.X - field.Left;
    form.P1Stack.bringToFront(field);
}

void letGoOfNewField(Zevlin& form) {
    if (!form.FieldAddedHeld) return;
    form.FieldAddedHeld = false;
    if (form.FieldAdded.kind == FieldKind::Mark) return;
    toolkit::Label& text = labelOf(form, form.FieldAdded);
    text.Alignment = toolkit::Alignment::Center;
    text.Caption = widthPattern(newTextHead(form.FieldAdded.index));
    text.BackColor = toolkit::qbColor(palette::white);
    text.BackStyle = toolkit::BackStyle::Transparent;
}

void keepAddedField(Zevlin& form) {
    form.FieldAdded = {};
    form.FieldAddedHeld = false;
}

} // namespace zev

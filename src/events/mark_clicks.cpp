#include "events/mark_clicks.h"

#include "design/drag_field.h"
#include "events/edit_field.h"
#include "events/record_tabs.h"
#include "form/field_values.h"
#include "form/modified.h"
#include "form/panels.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

using toolkit::numberText;

void clearMark(Zevlin& form, int index) {
    toolkit::Label& mark = form.AMark[index];
    mark.Visible = !mark.Visible;
    rememberTabMark(form, index);
    if (form.TraceOn) Traceit(form, "  AMark_Click " + focusText(form, index));
    SetMod(form);
}

void clickMark(Zevlin& form, int index) {
    if (form.THelp.Visible) return hideHelp(form);
    if (form.LastButton == toolkit::button::left && !form.MShowShapes.Checked) {
        return clearMark(form, index);
    }
    form.MCoord.Caption = readOut(index, form.AMark[index]);
}

int fieldOf(const Zevlin& form, int symbol) {
    const auto field = toolkit::wholeNumber(form.SText[symbol].Tag);
    if (!field) throw toolkit::RunTimeError(toolkit::Failure::TypeMismatch);
    return toolkit::toInteger16(*field);
}

} // namespace

void AMark_MouseDown(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    procedure(form, "AMark_MouseDown", numberText(mouse.Button), [&] {
        // The press names a number whose mark may be gone: that is failure 340.
        static_cast<void>(form.AMark[index]);
        form.LastButton = static_cast<std::int16_t>(mouse.Button);
        form.FieldHeld = false;
        if (recordTabPress(form, index + firstMarkItem, mouse)) return;
        if (form.MShowShapes.Checked && !form.THelp.Visible)
            pressField(form, {FieldKind::Mark, index}, mouse);
    });
}

void AMark_Click(Zevlin& form, int index) {
    Traceit(form, "Amark_Click (" + numberText(index) + ")");
    trapped(form, "Error in AMark_Click: #", [&] { clickMark(form, index); });
}

void SText_MouseDown(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    procedure(form, "SText_MouseDown", numberText(index),
              [&] { AText_MouseDown(form, fieldOf(form, index), mouse); });
}

void SText_Click(Zevlin& form, int index) {
    procedure(form, "SText_Click", numberText(index),
              [&] { AText_Click(form, fieldOf(form, index)); });
}

void rememberTabMark(Zevlin& form, int index) {
    form.CursorPos = toolkit::cursorPosition();
    form.TabActive = true;
    form.TabCursorX = form.CursorPos.x;
    form.TabCursorY = form.CursorPos.y;
    form.TabCode = form.TabLast = toolkit::toInteger16(index + firstMarkItem);
}

void turnMark(Zevlin& form, int index) {
    commitOpenField(form);
    form.SetFocus(form.P1);
    toolkit::Label& mark = form.AMark[index];
    mark.Visible = !mark.Visible;
    rememberTabMark(form, index);
    SetMod(form);
    form.P1Stack.bringToFront(mark);
}

void SText_MouseMove(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    trapped(form, "Error in SText_MouseMove: #",
            [&] { AText_MouseMove(form, fieldOf(form, index), mouse); });
}

void SText_MouseUp(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    procedure(form, "SText_MouseUp", numberText(index),
              [&] { AText_MouseUp(form, fieldOf(form, index), mouse); });
}

std::string focusText(const Zevlin& form, int index) {
    return "AMark(" + numberText(index) + ")" + placeText(form.AMark[index]) +
           "; Cursor: " + numberText(form.TabCursorX) + ", " + numberText(form.TabCursorY) + ", " +
           numberText(form.TabCode);
}

} // namespace zev

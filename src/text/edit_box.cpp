#include "text/edit_box.h"

#include <algorithm>
#include <string>

#include "form/field_values.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/escapes.h"
#include "text/fit.h"
#include "text/fit_text.h"
#include "text/set_sym.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

void dressBox(Zevlin& form, toolkit::TextBox& box, int index) {
    const toolkit::Label& field = form.AText[index];
    box.Font = field.Font;
    box.ForeColor = field.ForeColor;
    box.Move(field.Left, field.Top, field.Width, field.Height);
    box.Text = field.Tag;
    AmpRem(box.Text);
    form.mpopBold.Checked = field.Font.Bold;
    form.mpopBold.Enabled = !form.mBold.Checked;
    form.mpopItalic.Checked = field.Font.Italic;
    form.mpopLeft.Checked = field.Alignment == toolkit::Alignment::Left;
    form.mpopHilite.Checked = form.Highlight[index].Visible;
    if (!form.ClipText.empty()) form.mpopPaste.Enabled = true;
    form.mpopUndo.Enabled = false;
}

void takeOverText(Zevlin& form, toolkit::TextBox& box) {
    std::string text = box.Text;
    AmpAdd(text);
    if (text != form.OrigText) SetMod(form);
    toolkit::Label& field = form.AText[form.TIndex];
    field.Caption = text;
    field.Tag = text;
    FitText(form, box, form.TIndex);
    SetSym(form, form.TIndex);
    form.P1Stack.sendToBack(box);
    if (!form.OpeningField) hideTextBox(form, box);
    form.P1Stack.bringToFront(form.AText[form.TIndex]);
    form.TabLast = form.TIndex;
    form.ClickX = 0;
    form.ClickY = 0;
}

void commit(Zevlin& form, toolkit::TextBox& box, const std::function<void()>& next) {
    if (form.TIndex == 0) return;
    if (form.MShowShapes.Checked || form.OrigIndex != form.TIndex) return;
    takeOverText(form, box);
    if (next) next();
}

std::string commitDetails(const Zevlin& form) {
    return "tindex=" + toolkit::numberText(form.TIndex) +
           ",  origindex=" + toolkit::numberText(form.OrigIndex) + ", " +
           std::string(truthText(form.TabActive));
}

std::string focusDetails(const Zevlin& form, const toolkit::TextBox& box) {
    auto index = toolkit::numberText(form.TIndex);
    if (!form.TraceOn) return index;
    std::string text = "(" + index + "), at ";
    for (const float value : {box.Left, box.Top, box.Width, box.Height}) {
        text += toolkit::numberText(value) + ", ";
    }
    text.resize(text.size() - 2);
    return text +
           ", centered=" + std::string(truthText(box.Alignment == toolkit::Alignment::Center));
}

} // namespace

bool isEditing(const Zevlin& form) {
    return form.TIndex > 0 && (form.CText.Visible || form.LText.Visible);
}

toolkit::TextBox& openBox(Zevlin& form) { return form.LText.Visible ? form.LText : form.CText; }

void placeCaret(toolkit::TextBox& box, float x) {
    const auto width = [&](std::string_view text) { return toolkit::textWidth(box.Font, text); };
    const bool centered = box.Alignment == toolkit::Alignment::Center;
    const float offset = centered ? (box.Width - width(box.Text)) / 2 : 0;
    const int caret = caretAt(box.Text, x, offset, width);
    box.SelStart = std::min(caret, static_cast<int>(box.Text.size()));
    box.SelLength = 0;
}

void SetTextBox(Zevlin& form, toolkit::TextBox& box, int index) {
    procedure(form, "SetTextBox", toolkit::numberText(index), [&] { dressBox(form, box, index); });
}

void PositionTextCursor(Zevlin& form, toolkit::TextBox& box, float x) {
    if (box.Text.empty()) return;
    procedure(form, "PositionTextCursor", [&] { placeCaret(box, x); });
}

void xText_LostFocus(Zevlin& form, toolkit::TextBox& box, const std::function<void()>& next) {
    procedure(form, "xText_LostFocus", commitDetails(form), [&] { commit(form, box, next); });
}

void CText_LostFocus(Zevlin& form) {
    procedure(form, "CText_LostFocus", [&] { xText_LostFocus(form, form.CText); });
}

void LText_LostFocus(Zevlin& form) {
    procedure(form, "Ltext_LostFocus", [&] { xText_LostFocus(form, form.LText); });
}

void commitOpenField(Zevlin& form) {
    if (form.CText.Visible) CText_LostFocus(form);
    if (form.LText.Visible) LText_LostFocus(form);
}

void hideTextBox(Zevlin& form, toolkit::TextBox& box) {
    box.Visible = false;
    if (form.ActiveControl == &box) form.ActiveControl = &form.P1;
}

void takeOverTyping(Zevlin& form, toolkit::TextBox& box) {
    std::string text = box.Text;
    AmpAdd(text);
    toolkit::Label& field = form.AText[form.TIndex];
    if (text != field.Caption) {
        SetMod(form);
        field.Caption = text;
    }
    FitText(form, box, form.TIndex);
    // A shrinking field makes the box shrink with it.
    box.Font.Name = field.Font.Name;
    box.Font.Size = field.Font.Size;
}

void xText_GotFocus(Zevlin& form, toolkit::TextBox& box) {
    procedure(form, "xText_GotFocus", focusDetails(form, box), [&] {
        if (form.MShowShapes.Checked) {
            form.MCoord.Caption = readOut(form.TIndex, form.AText[form.TIndex]);
            return;
        }
        FitText(form, box, form.TIndex);
        box.Height = toolkit::textHeight(box.Font) - 3 * static_cast<float>(form.TwipsPerPixel);
    });
}

} // namespace zev

#include "text/styles.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "form/modified.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "text/escapes.h"
#include "text/fit_text.h"
#include "toolkit/window/input/clipboard.h"

namespace zev {
namespace {

void swallow(Zevlin& form, int& KeyAscii) {
    SetMod(form);
    KeyAscii = 0;
    form.SetFocus(form.P1);
}

void restoreBox(const toolkit::TextBox& kept, toolkit::TextBox& box) {
    box.Font.Name = kept.Font.Name;
    box.Font.Bold = kept.Font.Bold;
    box.Font.Italic = kept.Font.Italic;
    box.Text = kept.Text;
}

void restoreField(Zevlin& form) {
    restoreBox(form.UText, form.CText);
    restoreBox(form.UText, form.LText);
    toolkit::Label& field = form.AText[form.TIndex];
    field.Font.Name = form.UText.Font.Name;
    field.Font.Bold = form.UText.Font.Bold;
    field.Font.Italic = form.UText.Font.Italic;
    field.Caption = form.UText.Text;
    AmpAdd(field.Caption);
}

void changeAlignment(Zevlin& form, toolkit::Alignment alignment) {
    const bool center = alignment == toolkit::Alignment::Center;
    toolkit::TextBox& from = center ? form.LText : form.CText;
    toolkit::TextBox& to = center ? form.CText : form.LText;
    // The Tag is older than what was typed. The box that is open needn't be the one for the field's
    // alignment: all fields may have been justified since it was opened.
    const std::string typed = openBox(form).Text;
    form.AText[form.TIndex].Alignment = alignment;
    SetTextBox(form, to, form.TIndex);
    to.Text = typed;
    to.Visible = true;
    // The other box gets the focus in the same event, so that hiding this one commits nothing.
    from.Visible = false;
    form.ActiveControl = &to;
}

/// The selection in the box, empty if nothing is selected.
std::string selectedText(const toolkit::TextBox& box) {
    if (box.SelLength <= 0) return {};
    return box.Text.substr(static_cast<std::size_t>(box.SelStart),
                           static_cast<std::size_t>(box.SelLength));
}

void copy(Zevlin& form) {
    const toolkit::Label& field = form.AText[form.TIndex];
    const toolkit::TextBox& box = openBox(form);
    const std::string selected = selectedText(box);
    form.ClipText = selected.empty() ? field.Caption : selected;
    if (selected.empty()) AmpRem(form.ClipText);
    // The caption may have blanks for its suits; other programs get the text that is edited.
    const std::string& given = selected.empty() ? box.Text : selected;
    if (!given.empty()) toolkit::setClipboardText(given);
}

void pasteCopy(Zevlin& form) {
    toolkit::Label& field = form.AText[form.TIndex];
    AmpAdd(form.ClipText);
    field.Caption = form.ClipText;
    field.Tag = field.Caption;
    AmpRem(form.ClipText);
    form.CText.Text = form.LText.Text = form.ClipText;
    SetMod(form);
    FitText(form, form.CText, form.TIndex);
    FitText(form, form.LText, form.TIndex);
}

void pasteAtCaret(Zevlin& form) {
    toolkit::TextBox& box = openBox(form);
    const auto start = std::min(static_cast<std::size_t>(box.SelStart), box.Text.size());
    const std::string before = box.Text.substr(0, start);
    const std::string after =
        box.Text.substr(std::min(start + static_cast<std::size_t>(box.SelLength), box.Text.size()));
    const std::string pasted = toolkit::clipboardText({.before = before, .after = after});
    if (pasted.empty()) return;
    box.Text = before + pasted + after;
    box.SelStart = static_cast<int>(start + pasted.size());
    box.SelLength = 0;
    takeOverTyping(form, box);
}

void paste(Zevlin& form) {
    if (form.MShowShapes.Checked || !isEditing(form)) return;
    if (takesCopy(form)) return pasteCopy(form);
    pasteAtCaret(form);
}

} // namespace

bool takesCopy(const Zevlin& form) {
    return form.mpopPaste.Enabled && !form.ClipText.empty() && toolkit::holdsClipboardText();
}

void toggleBold(Zevlin& form, toolkit::TextBox& box, int& KeyAscii) {
    if (!form.mpopBold.Enabled) {
        KeyAscii = 0;
        return;
    }
    box.Font.Bold = !box.Font.Bold;
    form.AText[form.TIndex].Font.Bold = box.Font.Bold;
    form.mpopBold.Checked = box.Font.Bold;
    swallow(form, KeyAscii);
}

void toggleItalic(Zevlin& form, toolkit::TextBox& box, int& KeyAscii) {
    box.Font.Italic = !box.Font.Italic;
    form.AText[form.TIndex].Font.Italic = box.Font.Italic;
    form.mpopItalic.Checked = box.Font.Italic;
    swallow(form, KeyAscii);
}

void toggleJustification(Zevlin& form, int& KeyAscii) {
    const bool centered = form.AText[form.TIndex].Alignment == toolkit::Alignment::Center;
    changeAlignment(form, centered ? toolkit::Alignment::Left : toolkit::Alignment::Center);
    form.mpopLeft.Checked = centered;
    swallow(form, KeyAscii);
}

void undoField(Zevlin& form, toolkit::TextBox& box, int& KeyAscii) {
    if (!form.mpopUndo.Enabled || form.TIndex <= 0) {
        // The box's own undo knows nothing of the field.
        KeyAscii = 0;
        return;
    }
    const int caret = box.SelStart;
    restoreField(form);
    KeyAscii = 0;
    if (form.AText[form.TIndex].Alignment != form.OrigAlign) {
        changeAlignment(form, form.OrigAlign);
        xText_GotFocus(form, openBox(form));
    }
    openBox(form).SelStart = caret;
    form.mpopBold.Checked = form.CText.Font.Bold;
    form.mpopItalic.Checked = form.CText.Font.Italic;
    form.mpopLeft.Checked = form.LText.Visible;
    form.mpopUndo.Enabled = false;
    noteChange(form);
}

void mpopHilite_Click(Zevlin& form) {
    Traceit(form, "mpopHilite");
    if (!isEditing(form)) return;
    toolkit::Label& highlight = form.Highlight[form.TIndex];
    highlight.Visible = !highlight.Visible;
    form.mpopHilite.Checked = highlight.Visible;
    form.P1Stack.sendToBack(highlight);
    form.P1Stack.bringToFront(form.AText[form.TIndex]);
    SetMod(form);
}

void mpopCopy_Click(Zevlin& form) {
    procedure(form, "mpopCopy_Click", [&] {
        if (isEditing(form)) copy(form);
    });
}

void mpopPaste_Click(Zevlin& form) {
    procedure(form, "mpopPaste_Click", [&] { paste(form); });
}

} // namespace zev

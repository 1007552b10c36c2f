#include "events/edit_keys.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "events/tab_walk.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "text/escapes.h"
#include "text/fit_text.h"
#include "text/styles.h"
#include "toolkit/base/key.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/input/clipboard.h"
#include "toolkit/window/popup_menu.h"

namespace zev {
namespace {

void closeWithEscape(Zevlin& form, toolkit::TextBox& box, int& KeyAscii) {
    leaveField(form, box);
    KeyAscii = 0;
}

void closeWithEnter(Zevlin& form, toolkit::TextBox& box, int& KeyAscii) {
    KeyAscii = 0;
    if (toolkit::isKeyRepeat()) return;
    xText_LostFocus(form, box, [&form] { walkFromText(form, form.ShiftHeld); });
    if (!form.CText.Visible && !form.LText.Visible) form.SetFocus(form.P1);
}

void highlightByKey(Zevlin& form, int& KeyAscii) {
    mpopHilite_Click(form);
    KeyAscii = 0;
    form.SetFocus(form.P1);
}

/// The key does what the menu command does, and nothing in the box itself.
void clipByKey(Zevlin& form, int& KeyAscii, void (*procedure)(Zevlin&)) {
    KeyAscii = 0;
    procedure(form);
}

void actOnKey(Zevlin& form, toolkit::TextBox& box, int& KeyAscii) {
    switch (KeyAscii) {
    case toolkit::key::escape:
        return closeWithEscape(form, box, KeyAscii);
    case toolkit::key::enter:
        return closeWithEnter(form, box, KeyAscii);
    case control_key::b:
        return toggleBold(form, box, KeyAscii);
    case control_key::i:
        return toggleItalic(form, box, KeyAscii);
    case control_key::l:
        return toggleJustification(form, KeyAscii);
    case control_key::c:
        return clipByKey(form, KeyAscii, mpopCopy_Click);
    case control_key::v:
        return clipByKey(form, KeyAscii, mpopPaste_Click);
    case control_key::g:
        return highlightByKey(form, KeyAscii);
    case control_key::z:
        return undoField(form, box, KeyAscii);
    default:
        return;
    }
}

/// F5 to F8 insert a suit before the selection.
void insertSuit(toolkit::TextBox& box, int keyCode) {
    if (keyCode < toolkit::key::f5 || keyCode > toolkit::key::f8) return;
    const auto letter = suitLetters[static_cast<std::size_t>(keyCode - toolkit::key::f5)];
    box.Text.insert(static_cast<std::size_t>(box.SelStart), {'^', letter});
    box.SelStart += 2;
}

std::string mouseDetails(const Zevlin& form, const toolkit::MouseArguments& mouse) {
    return "ix=" + toolkit::numberText(form.TIndex) + " B=" + toolkit::numberText(mouse.Button) +
           " S=" + toolkit::numberText(mouse.Shift) + " X=" + toolkit::numberText(mouse.X) +
           " Y=" + toolkit::numberText(mouse.Y);
}

/// Shows the box for the field's present alignment again, with its caret.
void reopenBox(Zevlin& form, int caret) {
    if (form.TIndex <= 0) return;
    const bool centered = form.AText[form.TIndex].Alignment == toolkit::Alignment::Center;
    toolkit::TextBox& box = centered ? form.CText : form.LText;
    toolkit::TextBox& other = centered ? form.LText : form.CText;
    other.Visible = false;
    box.Visible = true;
    form.SetFocus(box);
    box.SelStart = std::min(caret, static_cast<int>(box.Text.size()));
    box.SelLength = 0;
}

void openPopup(Zevlin& form, toolkit::TextBox& box, const toolkit::MouseArguments& mouse) {
    if (mouse.Button != toolkit::button::right) return;
    const int caret = box.SelStart;
    const std::string text = box.Text;
    form.SetFocus(box);
    toolkit::MouseArguments press = mouse;
    press.Shift = 0;
    xText_MouseDown(form, box, press);
    // After a paste the caret stays behind what was pasted.
    reopenBox(form, box.Text == text ? caret : box.SelStart);
}

/// A menu command does what its key does.
void pressKey(Zevlin& form, std::string_view name, int key) {
    procedure(form, name, [&] {
        if (!isEditing(form)) return;
        int KeyAscii = key;
        xText_KeyPress(form, openBox(form), KeyAscii);
    });
}

} // namespace

void leaveField(Zevlin& form, toolkit::TextBox& box) {
    xText_LostFocus(form, box);
    form.OrigIndex = form.TIndex = form.ClickIndex = 0;
    form.SetFocus(form.P1);
}

void xText_KeyDown(Zevlin& form, toolkit::TextBox& box, toolkit::KeyArguments& key) {
    trapped(form, "Error in xText_KeyDown: #", [&] {
        if (key.KeyCode != toolkit::key::tab) return;
        key.KeyCode = 0;
        if (toolkit::isKeyRepeat()) return;
        const bool backward = (key.Shift & toolkit::shift::shift) != 0;
        xText_LostFocus(form, box, [&form, backward] { walkFromText(form, backward); });
    });
}

void xText_KeyPress(Zevlin& form, toolkit::TextBox& box, int& KeyAscii) {
    procedure(form, "xText_KeyPress", toolkit::numberText(KeyAscii),
              [&] { actOnKey(form, box, KeyAscii); });
}

void xText_KeyUp(Zevlin& form, toolkit::TextBox& box, toolkit::KeyArguments& key) {
    trapped(form, "Error in xText_KeyUp: #", [&] {
        if (form.MShowShapes.Checked) return;
        if (key.KeyCode == toolkit::key::enter) {
            key.KeyCode = 0;
            return;
        }
        // Some systems send releases while a key is held: only the first one counts.
        if (!toolkit::isKeyRepeat()) insertSuit(box, key.KeyCode);
        takeOverTyping(form, box);
    });
}

void xText_MouseDown(Zevlin& form, toolkit::TextBox& /*box*/, toolkit::MouseArguments& mouse) {
    procedure(form, "xText_MouseDown", mouseDetails(form, mouse), [&] {
        if (mouse.Button != toolkit::button::right) return;
        mouse.Button = 0;
        openTextMenu(form);
    });
}

void CText_GotFocus(Zevlin& form) {
    Traceit(form, "CText_GotFocus");
    xText_GotFocus(form, form.CText);
}

void CText_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    Traceit(form, "CText_KeyDown");
    xText_KeyDown(form, form.CText, key);
}

void CText_KeyPress(Zevlin& form, int& KeyAscii) {
    Traceit(form, "CText_KeyPress");
    xText_KeyPress(form, form.CText, KeyAscii);
}

void CText_KeyUp(Zevlin& form, toolkit::KeyArguments& key) {
    Traceit(form, "CText_KeyUp");
    xText_KeyUp(form, form.CText, key);
}

void CText_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse) {
    procedure(form, "CText_MouseDown", toolkit::numberText(mouse.Button),
              [&] { openPopup(form, form.CText, mouse); });
}

void LText_GotFocus(Zevlin& form) {
    Traceit(form, "LText_GotFocus");
    xText_GotFocus(form, form.LText);
}

void Ltext_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    Traceit(form, "Ltext_KeyDown");
    xText_KeyDown(form, form.LText, key);
}

void Ltext_KeyPress(Zevlin& form, int& KeyAscii) {
    Traceit(form, "Ltext_KeyPress");
    xText_KeyPress(form, form.LText, KeyAscii);
}

void Ltext_KeyUp(Zevlin& form, toolkit::KeyArguments& key) {
    Traceit(form, "Ltext_KeyUp");
    xText_KeyUp(form, form.LText, key);
}

void Ltext_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse) {
    procedure(form, "Ltext_MouseDown", toolkit::numberText(mouse.Button),
              [&] { openPopup(form, form.LText, mouse); });
}

void mpopUndo_Click(Zevlin& form) { pressKey(form, "mpopUndo_Click", control_key::z); }
void mpopBold_Click(Zevlin& form) { pressKey(form, "mpopBold_Click", control_key::b); }
void mpopItalic_Click(Zevlin& form) { pressKey(form, "mpopItalic_Click", control_key::i); }
void mpopLeft_Click(Zevlin& form) { pressKey(form, "mpopLeft_Click", control_key::l); }

void openTextMenu(Zevlin& form) {
    const auto row = [&form](toolkit::MenuItem& item, std::string shortcut,
                             void (*procedure)(Zevlin&)) {
        return toolkit::PopupRow{.item = &item,
                                 .shortcut = std::move(shortcut),
                                 .Click = [&form, procedure] { procedure(form); }};
    };
    toolkit::MenuItem pasteItem = form.mpopPaste;
    pasteItem.Enabled = takesCopy(form) || toolkit::hasClipboardText();
    const std::vector<toolkit::PopupRow> rows{
        row(form.mpopUndo, "Ctrl+Z", mpopUndo_Click),
        {},
        row(form.mpopBold, "Ctrl+B", mpopBold_Click),
        row(form.mpopItalic, "Ctrl+I", mpopItalic_Click),
        row(form.mpopLeft, "Ctrl+L", mpopLeft_Click),
        row(form.mpopHilite, "Ctrl+G", mpopHilite_Click),
        {},
        row(form.mpopCopy, "Ctrl+C", mpopCopy_Click),
        row(pasteItem, "Ctrl+V", mpopPaste_Click),
    };
    toolkit::popupMenu(rows, "Text");
}

} // namespace zev

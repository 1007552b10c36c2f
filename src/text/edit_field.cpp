#include "text/edit_field.h"

#include <algorithm>
#include <string>
#include <utility>

#include "app/trace.h"
#include "app/zevlin.h"
#include "card/modified.h"
#include "design/drag_field.h"
#include "help/help_page.h"
#include "marks/record_tabs.h"
#include "marks/tab_walk.h"
#include "text/escapes.h"
#include "text/fit.h"
#include "text/fit_text.h"
#include "text/set_sym.h"
#include "toolkit/ansi.h"
#include "toolkit/number_text.h"

namespace zev {
namespace {

/// Pixels by which an edit box is lower than its field.
constexpr float boxLower = 3;

/// The click that opens a field; none for a field reached by key.
struct FieldClick {
    int index = 0;
    int button = 0;
    float x = 0;
    float y = 0;
};

/// OpeningField for as long as a field is being opened, also when that fails.
class OpeningGuard {
  public:
    explicit OpeningGuard(Zevlin& form) : form_(form) { form.OpeningField = true; }
    OpeningGuard(const OpeningGuard&) = delete;
    OpeningGuard& operator=(const OpeningGuard&) = delete;
    ~OpeningGuard() { form_.OpeningField = false; }

  private:
    Zevlin& form_;
};

bool isOpen(const Zevlin& form, int index) {
    return index == form.TIndex && form.OrigIndex != 0 &&
           (form.CText.Visible || form.LText.Visible);
}

void commitFormerField(Zevlin& form) {
    if (form.TIndex <= 0) return;
    if (form.CText.Visible) {
        xText_LostFocus(form, form.CText);
    } else if (form.LText.Visible) {
        xText_LostFocus(form, form.LText);
    }
}

void takeOpeningState(Zevlin& form, int index) {
    const toolkit::Label& field = form.AText[index];
    form.TIndex = form.OrigIndex = static_cast<std::int16_t>(index);
    form.OrigText = field.Tag;
    form.CText.Text = form.LText.Text = form.OrigText;
    form.OrigAlign = field.Alignment;
    SetTextBox(form, form.UText, index);
}

toolkit::TextBox& showBox(Zevlin& form, int index) {
    const bool centered = form.AText[index].Alignment == toolkit::Alignment::Center;
    toolkit::TextBox& box = centered ? form.CText : form.LText;
    toolkit::TextBox& other = centered ? form.LText : form.CText;
    SetTextBox(form, box, index);
    box.Visible = true;
    other.Visible = false;
    form.P1Stack.bringToFront(box);
    form.SetFocus(box);
    return box;
}

/// What was typed so far stays in the box, and so does the way back.
toolkit::TextBox& showOpenBox(Zevlin& form, int index) {
    const std::string typed = form.LText.Visible ? form.LText.Text : form.CText.Text;
    const bool undo = form.mpopUndo.Enabled;
    toolkit::TextBox& box = showBox(form, index);
    box.Text = typed;
    form.mpopUndo.Enabled = undo;
    return box;
}

void placeCaret(Zevlin& form, toolkit::TextBox& box, float x) {
    form.Testtext.Font = box.Font;
    const bool centered = box.Alignment == toolkit::Alignment::Center;
    const float offset = centered ? (box.Width - form.Testtext.TextWidth(box.Text)) / 2 : 0;
    const int caret = caretAt(box.Text, x, offset,
                              [&](std::string_view text) { return form.Testtext.TextWidth(text); });
    box.SelStart = std::min(caret, static_cast<int>(box.Text.size()));
    box.SelLength = 0;
}

/// With the caret where it was clicked: a pop-up that opens at once pastes there.
toolkit::TextBox& showClosedField(Zevlin& form, int index, float x) {
    commitFormerField(form);
    takeOpeningState(form, index);
    toolkit::TextBox& box = showBox(form, index);
    placeCaret(form, box, x);
    return box;
}

/// A right click opens the pop-up menu at once.
void passPress(toolkit::TextBox& box, const FieldClick& click) {
    if (click.index == 0 || !box.MouseDown) return;
    toolkit::MouseArguments press{.Button = click.button, .Shift = 0, .X = click.x, .Y = click.y};
    box.MouseDown(press);
}

void openField(Zevlin& form, int index, const FieldClick& click) {
    const bool open = isOpen(form, index);
    passPress(open ? showOpenBox(form, index) : showClosedField(form, index, click.x), click);
    // The pop-up may have changed the alignment, and with it the box.
    toolkit::TextBox& box = form.LText.Visible ? form.LText : form.CText;
    PositionTextCursor(form, box, click.x);
    // A centred text that is longer than its field begins left of it.
    if (click.index == 0) box.SelStart = 0;
    box.Height = form.AText[index].Height - boxLower * static_cast<float>(form.TwipsPerPixel);
}

/// The click is over with this, whatever comes of it: a field that is reached by key later must not
/// find it.
FieldClick takeClick(Zevlin& form, int index) {
    const int pressed = std::exchange(form.ClickIndex, std::int16_t{0});
    if (pressed != index) return {};
    return {pressed, form.ClickButton, form.ClickX, form.ClickY};
}

void dressBox(Zevlin& form, toolkit::TextBox& box, int index) {
    const toolkit::Label& field = form.AText[index];
    box.Font = field.Font;
    box.BaseLine = field.BaseLine;
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
    form.ClickX = 0;
    form.ClickY = 0;
}

void commit(Zevlin& form, toolkit::TextBox& box, const CommitCause& cause) {
    if (form.TIndex == 0) return;
    if (form.MShowShapes.Checked || form.OrigIndex != form.TIndex) return;
    takeOverText(form, box);
    if (cause.key != CommitCause::Key::None) walkFromText(form, cause.backward);
}

std::string commitTrace(const Zevlin& form) {
    return "xText_LostFocus tindex=" + toolkit::numberText(form.TIndex) +
           ",  origindex=" + toolkit::numberText(form.OrigIndex) + ", " +
           std::string(truthText(form.TabActive));
}

} // namespace

void AText_MouseDown(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    trapped(form, "Error in AText_MouseDown: #", [&] {
        form.FieldHeld = false;
        if (form.THelp.Visible || recordTabPress(form, index, mouse)) return;
        if (form.MShowShapes.Checked) return pressField(form, {FieldKind::Text, index}, mouse);
        form.ClickIndex = static_cast<std::int16_t>(index);
        form.ClickButton = static_cast<std::int16_t>(mouse.Button);
        form.ClickX = mouse.X;
        form.ClickY = mouse.Y;
    });
}

void AText_Click(Zevlin& form, int index) {
    Traceit(form, "AText_Click " + toolkit::numberText(index));
    trapped(form, "Error in AText_Click: #", [&] {
        const FieldClick click = takeClick(form, index);
        if (form.THelp.Visible) return hideHelp(form);
        if (form.MShowShapes.Checked) return;
        const OpeningGuard opening(form);
        openField(form, index, click);
    });
}

void SetTextBox(Zevlin& form, toolkit::TextBox& box, int index) {
    Traceit(form, "SetTextBox " + toolkit::numberText(index));
    trapped(form, "Error in SetTextBox: #", [&] { dressBox(form, box, index); });
}

void PositionTextCursor(Zevlin& form, toolkit::TextBox& box, float x) {
    if (box.Text.empty()) return;
    Traceit(form, "PositionTextCursor");
    trapped(form, "Error in PositionTextCursor: #", [&] { placeCaret(form, box, x); });
}

void xText_LostFocus(Zevlin& form, toolkit::TextBox& box, const CommitCause& cause) {
    Traceit(form, commitTrace(form));
    trapped(form, "Error in xText_LostFocus: #", [&] { commit(form, box, cause); });
}

void CText_LostFocus(Zevlin& form) {
    Traceit(form, "CText_LostFocus");
    trapped(form, "Error in CText_LostFocus: #", [&] { xText_LostFocus(form, form.CText); });
}

void LText_LostFocus(Zevlin& form) {
    Traceit(form, "Ltext_LostFocus");
    trapped(form, "Error in Ltext_LostFocus: #", [&] { xText_LostFocus(form, form.LText); });
}

void commitOpenField(Zevlin& form) {
    if (form.CText.Visible) CText_LostFocus(form);
    if (form.LText.Visible) LText_LostFocus(form);
}

void hideTextBox(Zevlin& form, toolkit::TextBox& box) {
    box.Visible = false;
    if (form.ActiveControl == &box) form.ActiveControl = &form.P1;
}

} // namespace zev

#include "events/edit_field.h"

#include <algorithm>
#include <string>
#include <utility>

#include "design/drag_field.h"
#include "events/record_tabs.h"
#include "form/panels.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "toolkit/base/number_text.h"

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

/// Sets OpeningField while a field is being opened, also when that fails.
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

/// Shows the box again. What was typed so far stays in it, and can still be undone.
toolkit::TextBox& showOpenBox(Zevlin& form, int index) {
    const std::string typed = form.LText.Visible ? form.LText.Text : form.CText.Text;
    const bool undo = form.mpopUndo.Enabled;
    toolkit::TextBox& box = showBox(form, index);
    box.Text = typed;
    form.mpopUndo.Enabled = undo;
    return box;
}

/// Opens the field with the caret at the click, because a paste from the pop-up menu goes there.
toolkit::TextBox& showClosedField(Zevlin& form, int index, float x) {
    commitFormerField(form);
    takeOpeningState(form, index);
    toolkit::TextBox& box = showBox(form, index);
    placeCaret(box, x);
    return box;
}

/// Passes the press on to the box: a right click opens the pop-up menu at once.
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
    // Without a click the caret goes to the beginning: a centred text that is too long begins left
    // of its field.
    if (click.index == 0) box.SelStart = 0;
    box.Height = form.AText[index].Height - boxLower * static_cast<float>(form.TwipsPerPixel);
}

/// The click on this field, if there was one. It is used up, so that a field that is reached by key
/// later doesn't find it.
FieldClick takeClick(Zevlin& form, int index) {
    const int pressed = std::exchange(form.ClickIndex, std::int16_t{0});
    if (pressed != index) return {};
    return {pressed, form.ClickButton, form.ClickX, form.ClickY};
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
    procedure(form, "AText_Click", toolkit::numberText(index), [&] {
        const FieldClick click = takeClick(form, index);
        if (form.THelp.Visible) return hideHelp(form);
        if (form.MShowShapes.Checked) return;
        const OpeningGuard opening(form);
        openField(form, index, click);
    });
}

} // namespace zev

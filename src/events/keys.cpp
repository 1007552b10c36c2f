#include "events/keys.h"

#include <string>

#include "card/undo_card.h"
#include "design/design_mode.h"
#include "design/move_marks.h"
#include "events/tab_walk.h"
#include "form/file_note.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "help/help_page.h"
#include "marks/move_card.h"
#include "toolkit/base/key.h"
#include "toolkit/base/number_text.h"
#include "view/fit.h"
#include "view/zoom.h"

namespace zev {
namespace {

using toolkit::numberText;

void consume(toolkit::KeyArguments& key) { key = {}; }

std::string boxPlace(const char* head, const toolkit::TextBox& box) {
    return head + numberText(box.Left) + ", " + numberText(box.Top) + ", " + numberText(box.Width) +
           ", " + numberText(box.Height);
}

std::string imageTrace(const Zevlin& form) {
    const auto& card = form.P1;
    std::string text = "**F4** P1=" + numberText(card.Left) + ", " + numberText(card.Top) + ", " +
                       numberText(card.Width) + ", " + numberText(card.Height) +
                       ", visible=" + std::string(truthText(card.Visible));
    if (!form.LText.Visible && !form.CText.Visible) return text + " no text entry visible";
    if (form.LText.Visible) text += boxPlace(" ltext: ", form.LText);
    if (form.CText.Visible) text += boxPlace(" ctext: ", form.CText);
    return text;
}

void traceKeys(Zevlin& form, toolkit::KeyArguments& key) {
    if (key.KeyCode == toolkit::key::f3 && key.Shift == toolkit::shift::shift) {
        form.TraceOn = true;
        consume(key);
    } else if (key.KeyCode == toolkit::key::f3 && key.Shift == toolkit::shift::alt) {
        form.TraceOn = false;
        consume(key);
    } else if (key.KeyCode == toolkit::key::f4 && key.Shift == toolkit::shift::shift) {
        Traceit(form, imageTrace(form));
        consume(key);
    }
}

/// Ctrl+A in an open text selects all of it and not what the menu has under that key. The menu's
/// other shortcuts mean nothing in a text. True if it was this key.
bool selectAllByKey(Zevlin& form, const toolkit::KeyArguments& key) {
    if (key.KeyCode != 'A' || key.Shift != toolkit::shift::ctrl) return false;
    toolkit::TextBox& box = form.LText.Visible ? form.LText : form.CText;
    if (!box.Visible) return false;
    box.SelStart = 0;
    box.SelLength = static_cast<int>(box.Text.size());
    return true;
}

void handleFormKey(Zevlin& form, toolkit::KeyArguments& key) {
    form.ShiftHeld = (key.Shift & toolkit::shift::shift) != 0;
    form.CursorPos = toolkit::cursorPosition();
    traceKeys(form, key);
    if (key.KeyCode == 0 && key.Shift == 0) return;
    // What lies over the card handles its keys itself.
    if (form.BOK.Visible || form.THelp.Visible || form.ColorPic.Visible) return;
    if (key.KeyCode == toolkit::key::f1) {
        consume(key);
        hideFileNote(form);
        MHelp_Click(form);
    } else if (selectAllByKey(form, key) || moveCardByKey(form, key.KeyCode, key.Shift)) {
        consume(key);
    }
}

/// The zoom keys, with Ctrl alone. Held down they walk on along the ladder. True if it was one of
/// them.
bool zoomByKey(Zevlin& form, const toolkit::KeyArguments& key) {
    // Many keyboards have the "+" above the "=".
    const bool isShiftedPlus = key.Shift == (toolkit::shift::shift | toolkit::shift::ctrl) &&
                               key.KeyCode == toolkit::key::plus;
    if (key.Shift != toolkit::shift::ctrl && !isShiftedPlus) return false;
    switch (key.KeyCode) {
    case toolkit::key::digit0:
        // This key always ends in a fit; the other two leave one.
        form.MFitScreenWidth.Checked = false;
        MFitScreenWidth_Click(form);
        return true;
    case toolkit::key::add:
    case toolkit::key::plus:
        MZoomIn_Click(form);
        return true;
    case toolkit::key::subtract:
    case toolkit::key::minus:
        MZoomOut_Click(form);
        return true;
    default:
        return false;
    }
}

/// Arrows with any modifier, in design mode. True if it was one of them.
bool moveMarksByKey(Zevlin& form, const toolkit::KeyArguments& key) {
    if (key.Shift == 0 || !form.MShowShapes.Checked) return false;
    switch (key.KeyCode) {
    case toolkit::key::left:
        MoveMarks(form, -1, 0, key.Shift);
        return true;
    case toolkit::key::up:
        MoveMarks(form, 0, -1, key.Shift);
        return true;
    case toolkit::key::right:
        MoveMarks(form, 1, 0, key.Shift);
        return true;
    case toolkit::key::down:
        MoveMarks(form, 0, 1, key.Shift);
        return true;
    default:
        return false;
    }
}

/// Beside the menu's key, the one of most other programs. True if it was this one.
bool redoByKey(Zevlin& form, const toolkit::KeyArguments& key) {
    if (key.KeyCode != 'Z' || key.Shift != (toolkit::shift::shift | toolkit::shift::ctrl))
        return false;
    MRedo_Click(form);
    return true;
}

bool isDesignKey(const toolkit::KeyArguments& key) {
    return key.Shift == (toolkit::shift::shift | toolkit::shift::ctrl) &&
           (key.KeyCode == 'D' || key.KeyCode == 'S');
}

void handleCardKey(Zevlin& form, toolkit::KeyArguments& key) {
    if (moveCardByKey(form, key.KeyCode, key.Shift)) return;
    if (zoomByKey(form, key) || redoByKey(form, key)) return hideFileNote(form);
    if (moveMarksByKey(form, key)) return;
    if (toolkit::isKeyRepeat()) return;
    if (isDesignKey(key)) {
        hideFileNote(form);
        MShowDesignMenu_Click(form);
    } else if (key.KeyCode == toolkit::key::tab) {
        walkFromCard(form, key.Shift);
    } else if (key.KeyCode == toolkit::key::space) {
        toggleTabbedMark(form);
    }
}

} // namespace

void Form_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    trapped(form, "Error in Form_KeyDown: #", [&] { handleFormKey(form, key); });
}

void P1_KeyDown(Zevlin& form, toolkit::KeyArguments& key) {
    trapped(form, "Error in P1_KeyDown: #", [&] { handleCardKey(form, key); });
}

} // namespace zev

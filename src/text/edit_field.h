// Opening a text field for editing and closing it.
#pragma once

#include "toolkit/control.h"

namespace zev {

struct Zevlin;

/// Opens the field under an edit box, with the caret where it was clicked.
void AText_Click(Zevlin& form, int index);
void AText_MouseDown(Zevlin& form, int index, toolkit::MouseArguments& mouse);

/// Dresses a box like the field: font, colour, place, text with single ampersands.
void SetTextBox(Zevlin& form, toolkit::TextBox& box, int index);

/// Puts the caret where x (twips in the box) falls into the text.
void PositionTextCursor(Zevlin& form, toolkit::TextBox& box, float x);

/// What closes a field: only TAB and Enter go on to the next one.
struct CommitCause {
    enum class Key { None, Tab, Enter } key = Key::None;
    bool backward = false;
};

/// The commit: the box's text goes to the field, which is fitted and gets its symbols; the box is
/// hidden. A second commit of the same field is harmless.
void xText_LostFocus(Zevlin& form, toolkit::TextBox& box, const CommitCause& cause = {});
void CText_LostFocus(Zevlin& form);
void LText_LostFocus(Zevlin& form);

/// Commits the field that is open, if any, and gives the card the focus.
void commitOpenField(Zevlin& form);

/// Hides a box; the focus, if it had it, goes to the card without a further commit.
void hideTextBox(Zevlin& form, toolkit::TextBox& box);

} // namespace zev

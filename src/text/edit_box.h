// The two boxes in which a text field is edited: their look, their caret, and taking over what was
// typed.
#pragma once

#include <functional>

#include "toolkit/model/control.h"

namespace zev {

struct Zevlin;

/// Whether one of the boxes is open over a field.
[[nodiscard]] bool isEditing(const Zevlin& form);
/// The box that is open; the centred one if none is.
[[nodiscard]] toolkit::TextBox& openBox(Zevlin& form);

/// Dresses a box like the field: font, colour, place, text with single ampersands.
void SetTextBox(Zevlin& form, toolkit::TextBox& box, int index);

/// Puts the caret where x (twips in the box) falls into the text.
void PositionTextCursor(Zevlin& form, toolkit::TextBox& box, float x);

/// The same without a trace line; an empty text has its caret where the box begins.
void placeCaret(toolkit::TextBox& box, float x);

void xText_GotFocus(Zevlin& form, toolkit::TextBox& box);

/// What stands in the box after an edit goes into the label behind it, which is fitted.
void takeOverTyping(Zevlin& form, toolkit::TextBox& box);

/// The commit: the box's text goes to the field, which is fitted and gets its symbols; the box is
/// hidden. A second commit of the same field is harmless. `next` follows where there was something
/// to commit; its failures are trapped with those of the commit.
void xText_LostFocus(Zevlin& form, toolkit::TextBox& box, const std::function<void()>& next = {});
void CText_LostFocus(Zevlin& form);
void LText_LostFocus(Zevlin& form);

/// Commits the field that is open, if any, and gives the card the focus.
void commitOpenField(Zevlin& form);

/// Hides a box; the focus, if it had it, goes to the card without a further commit.
void hideTextBox(Zevlin& form, toolkit::TextBox& box);

} // namespace zev

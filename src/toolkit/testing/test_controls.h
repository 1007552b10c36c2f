// Controls of the real window, for tests.
#pragma once

#include <string>

#include "toolkit/model/control.h"
#include "toolkit/model/panel.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/testing/screen_area.h"
#include "toolkit/testing/test_mouse.h"

namespace toolkit::test {

/// A point in a control that is shown, the middle of one, of a label of a panel, of a list's row.
[[nodiscard]] PointOnCard pointIn(const Control& control, float x, float y);
[[nodiscard]] PointOnCard pointOn(const Control& control);
[[nodiscard]] PointOnCard pointOn(const Panel& panel, const Label& label);
[[nodiscard]] PointOnCard pointOnRow(const ListBox& list, int row);

/// What the window shows within the control, or of a label of a panel; one pixel for each logical
/// one.
[[nodiscard]] Bitmap grabControl(const Control& control);
[[nodiscard]] Bitmap grabLabel(const Panel& panel, const Label& label);

/// The desktop's colours, until the next call.
enum class Desktop { Light, Dark };
void useDesktop(Desktop desktop);

/// Turns the wheel over a control that is shown.
void turnWheelOver(const Control& control, int rotation);

/// The tool tip that comes up when the pointer rests there, over the control; empty for none.
[[nodiscard]] std::string toolTipAt(const Control& control, PointOnCard point);
/// Where the caret of a box that is shown stands, and what is inside the window.
[[nodiscard]] ScreenArea caretArea(const TextBox& box);
[[nodiscard]] ScreenArea insideArea();
/// Where the tool tip lies that came up last.
[[nodiscard]] ScreenArea toolTipArea();
/// Whether the control looks as if it can't be used.
[[nodiscard]] bool isGreyed(const Control& control);

} // namespace toolkit::test

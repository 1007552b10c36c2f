// Which controls are fields of the card, and which are only there so that the others keep their
// numbers.
#pragma once

#include "toolkit/model/control_array.h"
#include "toolkit/model/label.h"

namespace zev {

/// False for a hole: a control without a width, left by a record that is out of sequence or has no
/// character. It is never shown, and the fields behind it keep the numbers that card files know.
[[nodiscard]] inline bool isField(const toolkit::Label& label) { return label.Width > 0; }

/// Makes the control what it was before any record filled it.
inline void makeHole(toolkit::ControlArray<toolkit::Label>& fields, int index) {
    const int stack = fields[index].Stack;
    fields[index] = fields[0];
    fields[index].Stack = stack;
    fields[index].Visible = false;
    fields[index].Width = 0;
}

/// Calls `act` with the number of each field, from 1 up.
template <typename Act>
void forEachField(const toolkit::ControlArray<toolkit::Label>& fields, Act act) {
    for (int i = 1; i <= fields.UBound(); ++i) {
        if (isField(fields[i])) act(i);
    }
}

} // namespace zev

// Walking from field to field by key.
#pragma once

#include "toolkit/model/label.h"

namespace zev {

struct Zevlin;

/// Opens the successor of the text field that was just committed, or its predecessor.
void walkFromText(Zevlin& form, bool backward);

/// TAB where no text is open: from the mark on which the walk rests, else from the field that was
/// last. `shift` is the modifier mask: any modifier walks backward.
void walkFromCard(Zevlin& form, int shift);

/// SPACE: toggles the mark on which the walk has stopped, unless the cursor has moved away.
void toggleTabbedMark(Zevlin& form);

/// Moves the cursor, and with it the walk, onto the mark with this item number.
void TabToMark(Zevlin& form, int item);

/// The mark on which the walk rests, while SPACE would toggle it and no pointer shows it, as where
/// the platform lets no program move the pointer; else nullptr.
[[nodiscard]] const toolkit::Label* unseenMark(const Zevlin& form);

/// Where the walk begins, as an item number: at its head, in a circle at text 1, or at the lowest
/// item if that text isn't on it. Without any walk it is the first text; 0 where there is no field.
[[nodiscard]] int firstItem(const Zevlin& form);

/// Begins the walk there. An open text is left first.
void MFirstField_Click(Zevlin& form);

} // namespace zev

// Walking from field to field by key.
#pragma once

namespace zev {

struct Zevlin;

/// Opens the successor of the text field that was just committed, or its predecessor.
void walkFromText(Zevlin& form, bool backward);

/// TAB on a mark. `shift` is the modifier mask: any modifier walks backward.
void walkFromMark(Zevlin& form, int shift);

/// SPACE: toggles the mark on which the walk has stopped, unless the cursor has moved away.
void toggleTabbedMark(Zevlin& form);

/// Moves the cursor, and with it the walk, onto the mark with this item number.
void TabToMark(Zevlin& form, int item);

} // namespace zev

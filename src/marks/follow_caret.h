// Keeping in sight what is typed.
#pragma once

namespace zev {

struct Zevlin;

/// Once the caret of an open text has moved, or the text has changed: moves the card so that the
/// caret can be seen. For the end of each event.
void followCaret(Zevlin& form);

} // namespace zev

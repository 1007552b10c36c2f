// Loading a card.
#pragma once

namespace zev {

struct Zevlin;

/// Loads the card named by CardName into the fields, which the caller has cleared. What was read
/// before a failure stays; a card without records is told to be bad.
void GetCardFile(Zevlin& form);

} // namespace zev

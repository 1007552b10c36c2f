// Laying suit symbols over a field's text.
#pragma once

namespace zev {

struct Zevlin;

/// Expects the raw text in the field's caption and the field's font to be final. Leaves the raw
/// text in the Tag, the text with its escapes blanked in the caption, and the symbols shown.
void SetSym(Zevlin& form, int index);

/// Takes all symbols off the card.
void unloadSymbols(Zevlin& form);

} // namespace zev

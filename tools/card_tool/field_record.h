// Where the labels of fields stand.
#pragma once

#include "card_tool/sheet.h"
#include "card_tool/typeface.h"
#include "layout/layout_file.h"

namespace card_tool {

/// Places the label so that its character's middle stands on the mark's place, with the fonts as
/// large as they are on a screen of that resolution. The number is left open.
[[nodiscard]] zev::FieldRecord markRecord(const MarkPlace& mark, const Typefaces& faces,
                                          int twipsPerPixel);

/// Places the label so that the text's baseline lies on the printed rule or just above it.
[[nodiscard]] zev::FieldRecord textRecord(const TextPlace& text, const Typefaces& faces,
                                          int twipsPerPixel);

} // namespace card_tool
